// Which table each kind of style control shows.

#include "demo/viewer/control_tables.h"

#include <algorithm>
#include <string>

#include "orlo/controls/combo_control.h"
#include "orlo/controls/control_fill.h"
#include "orlo/host/drawing.h"
#include "orlo/host/property.h"
#include "orlo/host/table.h"
#include "orlo/host/units.h"

namespace {

struct ControlTable {
    ControlKind kind;
    const char* table;
    unsigned int selected; // 0, or a colour that is none: the page selects what the graphics have
};

constexpr ControlTable kTables[] = {
    {kControlFontFaces, kTableUnits, 1},
    {kControlFontSizes, kTableUnits, 0},
    {kControlLineStyleCombo, kTableLineStyles, 0},
    {kControlColors, kTableColors, ~1u},
    {kControlBrushStyleCombo, kTableBrushStyles, 0},
    {kControlLayers, kTableLayers, 0},
    {kControlStyleNames, kTableBlocks, 0},
    {kControlLineStyleList, kTableLineStyles, 0},
    {kControlBrushStyleList, kTableBrushStyles, 0},
};

// The face of the first selected text, which joins the list if the system lacks it; else that of the drawing.
std::string FaceOf(const Document& document) {
    for (GraphicStruct* graphic : document.Selected().Members())
        if (auto face = orlo::host::ReadProperty<std::string>(graphic, kPropTextFont)) return *face;
    char face[256] = "";
    ::TableGetStringVar(document.Drawing()->pUnits, kUnitFontName, face, sizeof face);
    return face;
}

} // namespace

bool FillStyleControl(WPARAM wParam, LPARAM lParam, const Document* document) {
    if (HIWORD(wParam) != kControlReady || !document) return false;
    const auto row = std::find_if(std::begin(kTables), std::end(kTables),
                                  [&](const ControlTable& table) { return table.kind == LOWORD(wParam); });
    if (row == std::end(kTables)) return false;
    DrawingStruct* drawing = document->Drawing();
    ControlFillRecord fill = {::DrawingGetTable(drawing, row->table), 0, row->selected};
    const std::string face = row->kind == kControlFontFaces ? FaceOf(*document) : "";
    if (!face.empty()) fill.dwValue = reinterpret_cast<UINT_PTR>(face.c_str());
    if (row->kind == kControlStyleNames) fill.nSelected = document->Styles().Current();
    ::SendMessageA(reinterpret_cast<HWND>(lParam), kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
    return true;
}
