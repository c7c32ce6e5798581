// Creates the object of a control in a dialog template.

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
#include "orlo/resources/control_ids.h"

namespace {

// Called from a window procedure, so exceptions must not escape.
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
        case IDC_FONT_FACE:
        case IDC_FONT_FACE_2:
            return new CFontFaceControl(hWnd);
        case IDC_FONT_SIZE:
            return new CFontSizeControl(hWnd);
        case IDC_LINE_STYLE_COMBO:
        case IDC_LINE_STYLE_COMBO_2:
        case IDC_LINE_STYLE_COMBO_3:
        case IDC_LINE_STYLE_COMBO_4:
            return new CLineStyleControlC(hWnd, 1);
        case IDC_COLOR:
        case IDC_BRUSH_COLOR:
        case IDC_COLOR_2:
        case IDC_COLOR_3:
        case IDC_COLOR_4:
        case IDC_COLOR_5:
        case IDC_COLOR_6:
        case IDC_TEXT_COLOR:
        case IDC_COLOR_7:
        case IDC_COLOR_8:
            return new CColorControl(hWnd, 1);
        case IDC_BRUSH_STYLE_COMBO:
            return new CBrushStyleControlC(hWnd);
        case IDC_LAYER:
            return new CLayerControl(hWnd);
        case IDC_STYLE_NAME:
            return new CStyleNameControl(hWnd);
        default:
            return nullptr;
        }
    });
}

CWnd* CreateListObject(HWND hWnd, int nID) {
    return MakeFor(hWnd, [=]() -> CWnd* {
        switch (nID) {
        case IDC_LINE_STYLE_LIST:
            return new CLineStyleControlL(hWnd);
        case IDC_BRUSH_STYLE_LIST:
            return new CBrushStyleControlL(hWnd);
        default:
            return nullptr;
        }
    });
}
