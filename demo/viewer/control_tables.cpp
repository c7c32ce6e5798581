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

// Kinds of controls: the identifiers of their notifications.
enum : UINT { kFontFaces = 0x7D00, kStyleNames = 0x7D0F };

struct ControlTable {
    UINT kind;
    const char* table;
    unsigned int selected; // 0, or a colour that is none: the page selects what the graphics have
};

constexpr ControlTable kTables[] = {
    {kFontFaces, kTableUnits, 1},   {0x7D01, kTableUnits, 0},       {0x7D04, kTableLineStyles, 0},
    {0x7D05, kTableColors, ~1u},    {0x7D07, kTableBrushStyles, 0}, {0x7D08, kTableLayers, 0},
    {kStyleNames, kTableBlocks, 0}, {0x7D15, kTableLineStyles, 0},  {0x7D18, kTableBrushStyles, 0},
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
    const std::string face = row->kind == kFontFaces ? FaceOf(*document) : "";
    if (!face.empty()) fill.dwValue = reinterpret_cast<UINT_PTR>(face.c_str());
    if (row->kind == kStyleNames) fill.nSelected = document->Styles().Current();
    ::SendMessageA(reinterpret_cast<HWND>(lParam), kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
    return true;
}
