// Which table each kind of style control shows.

#include "demo/control_tables.h"

#include "orlo/controls/combo_control.h"
#include "orlo/controls/control_fill.h"
#include "orlo/host/drawing.h"

namespace {

struct ControlTable {
    UINT kind; // of the control: the identifier of its notifications
    const char* table;
    unsigned int selected; // nothing yet: the page selects what the graphics have
};

constexpr ControlTable kTables[] = {
    {0x7D05, "_Colors_", 0xFFFFFFFE}, {0x7D04, "_LineStyles_", 0},  {0x7D15, "_LineStyles_", 0},
    {0x7D07, "_BrushStyles_", 0},     {0x7D18, "_BrushStyles_", 0}, {0x7D08, "_Layers_", 0},
};

} // namespace

bool FillStyleControl(WPARAM wParam, LPARAM lParam, DrawingStruct* drawing) {
    if (HIWORD(wParam) != kControlReady || !drawing) return false;
    for (const ControlTable& row : kTables) {
        if (LOWORD(wParam) != row.kind) continue;
        const ControlFillRecord fill = {::DrawingGetTable(drawing, row.table), 0, row.selected};
        ::SendMessageA(reinterpret_cast<HWND>(lParam), kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
        return true;
    }
    return false;
}
