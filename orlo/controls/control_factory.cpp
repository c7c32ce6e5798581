// Creates the object of a control in a dialog template.

#include "orlo/controls/control_factory.h"

#include <algorithm>
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

// Creates the object of a control.
using Make = CWnd* (*)(HWND window);
struct Kind {
    int id; // of the control
    Make make;
};

// Called from a window procedure, so exceptions must not escape.
template <size_t N>
CWnd* MakeFor(HWND window, int id, const Kind (&kinds)[N]) {
    const Kind* const kind = std::find_if(kinds, kinds + N, [id](const Kind& known) { return known.id == id; });
    if (kind == kinds + N || CWnd::FromHandlePermanent(window)) return nullptr;
    try {
        return kind->make(window);
    } catch (CException* exception) {
        exception->Delete();
    } catch (const std::bad_alloc&) {
    }
    return nullptr;
}

} // namespace

// The tables are in the functions, which are friends of the classes.

CWnd* CreateComboObject(HWND hWnd, int nID) {
    constexpr Make kFace = [](HWND window) -> CWnd* { return new CFontFaceControl(window); };
    constexpr Make kLine = [](HWND window) -> CWnd* { return new CLineStyleControlC(window, 1); };
    constexpr Make kColor = [](HWND window) -> CWnd* { return new CColorControl(window, 1); };
    static constexpr Kind kKinds[] = {
        {IDC_FONT_FACE, kFace},
        {IDC_FONT_FACE_2, kFace},
        {IDC_FONT_SIZE, [](HWND window) -> CWnd* { return new CFontSizeControl(window); }},
        {IDC_LINE_STYLE_COMBO, kLine},
        {IDC_LINE_STYLE_COMBO_2, kLine},
        {IDC_LINE_STYLE_COMBO_3, kLine},
        {IDC_LINE_STYLE_COMBO_4, kLine},
        {IDC_COLOR, kColor},
        {IDC_BRUSH_COLOR, kColor},
        {IDC_COLOR_2, kColor},
        {IDC_COLOR_3, kColor},
        {IDC_COLOR_4, kColor},
        {IDC_COLOR_5, kColor},
        {IDC_COLOR_6, kColor},
        {IDC_TEXT_COLOR, kColor},
        {IDC_COLOR_7, kColor},
        {IDC_COLOR_8, kColor},
        {IDC_BRUSH_STYLE_COMBO, [](HWND window) -> CWnd* { return new CBrushStyleControlC(window); }},
        {IDC_LAYER, [](HWND window) -> CWnd* { return new CLayerControl(window); }},
        {IDC_STYLE_NAME, [](HWND window) -> CWnd* { return new CStyleNameControl(window); }},
    };
    return MakeFor(hWnd, nID, kKinds);
}

CWnd* CreateListObject(HWND hWnd, int nID) {
    static constexpr Kind kKinds[] = {
        {IDC_LINE_STYLE_LIST, [](HWND window) -> CWnd* { return new CLineStyleControlL(window); }},
        {IDC_BRUSH_STYLE_LIST, [](HWND window) -> CWnd* { return new CBrushStyleControlL(window); }},
    };
    return MakeFor(hWnd, nID, kKinds);
}
