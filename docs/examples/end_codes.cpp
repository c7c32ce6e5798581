// Opens the sheet over a style until the user closes it with OK or Cancel.

#include <memory>

#include <orlo.h>

// Returns the style that is current at the end. The control with the style names must be filled with the current
// style as nSelected.
uint16_t EditStyle(CWnd* owner, DrawingStruct* drawing, uint16_t style) {
    TableStruct* styles = BlocksFromDrawing(drawing);
    for (;;) {
        const std::unique_ptr<CGraphicPropertySheet> sheet(
            InitGraphicPropertySheet(owner, nullptr, drawing, BlockGetGraphic(styles, style), kWithStylePart));
        const int code = static_cast<int>(sheet->DoModal());
        if (code > kStyleChosenByOk) return static_cast<uint16_t>(code - kStyleChosenByOk);
        if (code > kStyleToDelete)
            BlockDispose(styles, static_cast<uint16_t>(code - kStyleToDelete));
        else if (code > kStyleChosen)
            style = static_cast<uint16_t>(code - kStyleChosen); // opens the sheet over that style
        else if (code != kStyleAdded)
            return style; // OK or Cancel
    }
}
