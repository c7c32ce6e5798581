// Which object a control of a dialog template becomes.

#include "orlo/controls/control_factory.h"

#include <new>

#include "orlo/controls/color_control.h"
#include "orlo/controls/line_style_control_c.h"
#include "orlo/controls/line_style_control_l.h"

namespace {

// Called from a window procedure: no exception leaves it.
template <class Make>
CWnd* MakeFor(HWND window, Make make) {
    if (CWnd::FromHandlePermanent(window)) return nullptr;
    try {
        return make();
    } catch (CException* exception) {
        exception->Delete();
    } catch (const std::bad_alloc&) {
    }
    return nullptr;
}

} // namespace

CWnd* CreateComboObject(HWND hWnd, int nID) {
    return MakeFor(hWnd, [=]() -> CWnd* {
        switch (nID) {
        case 32004:
        case 32017:
        case 32020:
        case 32026:
            return new CLineStyleControlC(hWnd, 1);
        case 32005:
        case 32006:
        case 32012:
        case 32013:
        case 32014:
        case 32018:
        case 32019:
        case 32023:
        case 32025:
        case 32027:
            return new CColorControl(hWnd, 1);
        default:
            return nullptr;
        }
    });
}

CWnd* CreateListObject(HWND hWnd, int nID) {
    return MakeFor(hWnd, [=]() -> CWnd* {
        switch (nID) {
        case 32021:
            return new CLineStyleControlL(hWnd);
        default:
            return nullptr;
        }
    });
}
