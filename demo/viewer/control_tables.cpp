// Determines the table for each kind of control.

#include "demo/viewer/control_tables.h"

#include <string>

#include "orlo/controls/combo_control.h"
#include "orlo/controls/control_fill.h"
#include "orlo/host/drawing.h"
#include "orlo/host/property.h"
#include "orlo/host/table.h"

namespace {

// Returns the face of the first selected text, which is added to the list if it is not installed, or that of the
// drawing.
std::string FaceOf(const Document& document) {
    for (GraphicStruct* graphic : document.Selected().Members())
        if (auto face = orlo::host::ReadProperty<std::string>(graphic, kPropTextFont)) return *face;
    char face[256] = "";
    ::TableGetStringVar(document.Drawing()->pUnits, kUnitFontName, face, sizeof face);
    return face;
}

} // namespace

bool FillStyleControl(WPARAM wParam, LPARAM lParam, const Document* document) {
    const unsigned kind = LOWORD(wParam);
    const char* const table = ::TableOfControl(kind);
    if (HIWORD(wParam) != kControlReady || !document || !table) return false;
    DrawingStruct* drawing = document->Drawing();
    // The page selects the value of the graphics.
    ControlFillRecord fill = {::DrawingGetTable(drawing, table), 0, 0};
    const std::string face = kind == kControlFontFaces ? FaceOf(*document) : "";
    if (kind == kControlFontFaces) {
        fill.nSelected = 1;
        if (!face.empty()) fill.dwValue = reinterpret_cast<UINT_PTR>(face.c_str());
    }
    if (kind == kControlColors) fill.nSelected = kColorNone; // because 0 is black
    if (kind == kControlStyleNames) fill.nSelected = document->Styles().Current();
    ::SendMessageA(reinterpret_cast<HWND>(lParam), kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
    return true;
}
