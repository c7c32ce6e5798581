// The sheet over a style, until it ends with a code that does not concern a style.

#include <memory>

#include <orlo.h>

// Gives the style that is current in the end. The style names must be filled with that style as nSelected.
uint16_t EditStyle(CWnd* owner, DrawingStruct* drawing, uint16_t style) {
    TableStruct* styles = BlocksFromDrawing(drawing);
    for (;;) {
        const std::unique_ptr<CGraphicPropertySheet> sheet(InitGraphicPropertySheet(
            owner, nullptr, drawing, BlockGetGraphic(styles, style), kWithStylePart));
        const int code = static_cast<int>(sheet->DoModal());
        if (code > kStyleChosenByOk) return static_cast<uint16_t>(code - kStyleChosenByOk);
        if (code > kStyleToDelete)
            BlockDispose(styles, static_cast<uint16_t>(code - kStyleToDelete));
        else if (code > kStyleChosen)
            style = static_cast<uint16_t>(code - kStyleChosen); // the sheet comes again, over that one
        else if (code != kStyleAdded)
            return style; // OK or Cancel
    }
}
