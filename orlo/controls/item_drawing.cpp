// What the owner-drawn controls of the library share when they draw an item.

#include "orlo/controls/item_drawing.h"

#include "orlo/controls/paint.h"

namespace {

RowColors DisabledColors(const DRAWITEMSTRUCT& item) {
    return {::GetSysColor(COLOR_GRAYTEXT), ::GetSysColor(IsClosedField(item) ? COLOR_3DFACE : COLOR_WINDOW)};
}

} // namespace

RowColors ColorsOf(const DRAWITEMSTRUCT& item) {
    if (item.itemState & ODS_DISABLED) return DisabledColors(item);
    const bool selected = item.itemState & ODS_SELECTED;
    return {::GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT),
            ::GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW)};
}

RowColors SampleColorsOf(const DRAWITEMSTRUCT& item) {
    if (item.itemState & ODS_DISABLED) return DisabledColors(item);
    return {InkOnWindow(), ::GetSysColor(COLOR_WINDOW)};
}

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

void MarkCurrentRow(const DRAWITEMSTRUCT& item) {
    FrameRectangle(item.hDC, Inflated(item.rcItem, -1), ::GetSysColor(COLOR_HIGHLIGHT), 2);
    FrameRectangle(item.hDC, Inflated(item.rcItem, -2), ::GetSysColor(COLOR_HIGHLIGHTTEXT), 1);
}

void DrawItemFocus(const DRAWITEMSTRUCT& item) {
    if (item.itemState & ODS_FOCUS) ::DrawFocusRect(item.hDC, &item.rcItem);
}

void ClearItem(const DRAWITEMSTRUCT& item) {
    FillSolid(item.hDC, IsClosedField(item) ? Inflated(item.rcItem, 2) : item.rcItem,
              SampleColorsOf(item).background);
}

void DrawPlainRow(const DRAWITEMSTRUCT& item, const char* text, const RowColors& colors) {
    const RECT& rect = item.rcItem;
    FillSolid(item.hDC, rect, colors.background);
    DrawClippedText(item.hDC, rect.left + kPlainTextAt.x, rect.top + kPlainTextAt.y, rect, text, colors.text);
}

void DrawFramedName(const DRAWITEMSTRUCT& item, const RECT& frame, POINT at, const char* name) {
    const COLORREF ink = SampleColorsOf(item).text;
    FrameRectangle(item.hDC, frame, ink, 1);
    DrawClippedText(item.hDC, at.x, at.y, item.rcItem, name, ink);
}
