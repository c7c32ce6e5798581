// What the owner-drawn controls of the library share when they draw an item.

#include "orlo/controls/item_drawing.h"

#include "orlo/controls/paint.h"

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);

} // namespace

ItemPart RequestedPart(const DRAWITEMSTRUCT& item) {
    if (IsClosedField(item) || IsNoItem(item) || (item.itemAction & ODA_DRAWENTIRE)) return ItemPart::Whole;
    if (item.itemAction & ODA_SELECT) return ItemPart::SelectionFrame;
    if (item.itemAction & ODA_FOCUS) return ItemPart::Focus;
    return ItemPart::Nothing;
}

void DrawSelectionFrame(const DRAWITEMSTRUCT& item, SIZE beyond) {
    RECT frame = Inflated(item.rcItem, -1);
    frame.right += beyond.cx;
    frame.bottom += beyond.cy;
    const int color = item.itemState & ODS_SELECTED ? COLOR_HIGHLIGHT : COLOR_WINDOW;
    FrameRectangle(item.hDC, frame, ::GetSysColor(color), 2);
}

void DrawItemFocus(const DRAWITEMSTRUCT& item) {
    if (!IsClosedField(item) && (item.itemState & ODS_FOCUS)) ::DrawFocusRect(item.hDC, &item.rcItem);
}

void ClearItem(const DRAWITEMSTRUCT& item) {
    FillSolid(item.hDC, IsClosedField(item) ? Inflated(item.rcItem, 2) : item.rcItem,
              ::GetSysColor(COLOR_WINDOW));
}

void DrawFramedName(const DRAWITEMSTRUCT& item, const RECT& frame, POINT at, const char* name) {
    FrameRectangle(item.hDC, frame, kBlack, 1);
    DrawClippedText(item.hDC, at.x, at.y, item.rcItem, name, kBlack);
}
