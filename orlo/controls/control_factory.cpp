// Which object a control of a dialog template becomes.

#include "orlo/controls/control_factory.h"

#include <new>

#include "orlo/controls/brush_style_control_c.h"
#include "orlo/controls/brush_style_control_l.h"
#include "orlo/controls/color_control.h"
#include "orlo/controls/font_face_control.h"
#include "orlo/controls/font_size_control.h"
#include "orlo/controls/layer_control.h"
#include "orlo/controls/line_style_control_c.h"
#include "orlo/controls/line_style_control_l.h"
#include "orlo/controls/style_name_control.h"

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
        case 32000:
        case 32022:
            return new CFontFaceControl(hWnd);
        case 32001:
            return new CFontSizeControl(hWnd);
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
        case 32007:
            return new CBrushStyleControlC(hWnd);
        case 32008:
            return new CLayerControl(hWnd);
        case 32015:
            return new CStyleNameControl(hWnd);
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
        case 32024:
            return new CBrushStyleControlL(hWnd);
        default:
            return nullptr;
        }
    });
}
