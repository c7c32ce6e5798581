// Which table each kind of style control shows.

#include "demo/control_tables.h"

#include <algorithm>
#include <string>

#include <oaidl.h>

#include "orlo/controls/combo_control.h"
#include "orlo/controls/control_fill.h"
#include "orlo/host/drawing.h"
#include "orlo/host/graphic.h"
#include "orlo/host/memory.h"
#include "orlo/host/table.h"
#include "orlo/host/units.h"

namespace {

struct ControlTable {
    ControlKind kind;
    const char* table;
    unsigned int selected; // 0, or a colour that is none: the page selects what the graphics have
};

constexpr ControlTable kTables[] = {
    {kControlFontFaces, "_Units_", 1},
    {kControlFontSizes, "_Units_", 0},
    {kControlLineStyleCombo, "_LineStyles_", 0},
    {kControlColors, "_Colors_", ~1u},
    {kControlBrushStyleCombo, "_BrushStyles_", 0},
    {kControlLayers, "_Layers_", 0},
    {kControlStyleNames, "_Blocks_", 0},
    {kControlLineStyleList, "_LineStyles_", 0},
    {kControlBrushStyleList, "_BrushStyles_", 0},
};

// The face of the first selected text, which joins the list if the system lacks it; else that of the drawing.
std::string FaceOf(const Document& document) {
    for (GraphicStruct* graphic : document.Selected().Members()) {
        const PropertyTable* table = ::GraphicGetVtbl(graphic);
        const char* name = "TextFont";
        int32_t number;
        if (!table || !table->PropLookup(graphic, &name, 1, 0, &number)) continue;
        char* face = nullptr;
        table->PropGet(graphic, number, VT_BSTR, &face);
        const std::string copy = face ? face : "";
        ::BStringNULL(&face);
        return copy;
    }
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
