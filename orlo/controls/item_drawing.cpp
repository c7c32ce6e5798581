// Drawing shared by the library's owner-drawn controls.

#include "orlo/controls/item_drawing.h"

#include <algorithm>

#include "orlo/controls/control_font.h"
#include "orlo/controls/control_items.h"
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
    return {TextColorOnWindow(), ::GetSysColor(COLOR_WINDOW)};
}

ItemPart RequestedPart(const DRAWITEMSTRUCT& item) {
    if (IsClosedField(item) || IsNoItem(item) || (item.itemAction & (ODA_DRAWENTIRE | ODA_SELECT)))
        return ItemPart::Whole;
    if (item.itemAction & ODA_FOCUS) return ItemPart::Focus;
    return ItemPart::Nothing;
}

void DrawSelectionFrame(const DRAWITEMSTRUCT& item, SIZE beyond) {
    RECT frame = Inflated(item.rcItem, -1);
    frame.right += beyond.cx;
    frame.bottom += beyond.cy;
    const orlo::SavedDC clipped(item.hDC);
    ::IntersectClipRect(item.hDC, item.rcItem.left, item.rcItem.top, item.rcItem.right, item.rcItem.bottom);
    FrameRectangle(item.hDC, frame, ::GetSysColor(COLOR_HIGHLIGHT), 2);
}

void MarkCurrentRow(const DRAWITEMSTRUCT& item) {
    FrameRectangle(item.hDC, Inflated(item.rcItem, -1), ::GetSysColor(COLOR_HIGHLIGHT), 2);
    FrameRectangle(item.hDC, Inflated(item.rcItem, -2), ::GetSysColor(COLOR_HIGHLIGHTTEXT), 1);
}

void DrawItemFocus(const DRAWITEMSTRUCT& item) {
    if (item.itemState & ODS_FOCUS) ::DrawFocusRect(item.hDC, &item.rcItem);
}

void ClearItem(const DRAWITEMSTRUCT& item) {
    FillSolid(item.hDC, IsClosedField(item) ? Inflated(item.rcItem, 2) : item.rcItem, SampleColorsOf(item).background);
}

int PlainRowWidth(HDC dc, const char* text) {
    return 2 * kPlainTextAt.x + TextWidth(dc, text);
}

void DrawPlainRow(const DRAWITEMSTRUCT& item, const char* text, const RowColors& colors) {
    const RECT& rect = item.rcItem;
    FillSolid(item.hDC, rect, colors.background);
    const int top = CenteredTextTop(item.hDC, rect, kPlainTextAt.y);
    DrawClippedText(item.hDC, rect.left + kPlainTextAt.x, top, rect, text, colors.text);
}

void DrawFramedName(const DRAWITEMSTRUCT& item, const RECT& frame, POINT at, const char* name) {
    const COLORREF color = SampleColorsOf(item).text;
    FrameRectangle(item.hDC, frame, color, 1);
    const int top = CenteredTextTop(item.hDC, item.rcItem, at.y - item.rcItem.top);
    DrawClippedText(item.hDC, at.x, top, item.rcItem, name, color);
}

PlainItem RequestedItem(const CComboControl& control, const DRAWITEMSTRUCT& request) {
    PlainItem item = {control.m_nSelected, ""};
    if (!IsNoItem(request)) {
        const ControlItems items = ControlItems::OfCombo(control.m_hWnd);
        const bool found = items.GetText(static_cast<int>(request.itemID), item.text, sizeof item.text);
        item.number = found ? request.itemID + 1 : 0;
    }
    if (item.IsNothing()) item.text[0] = '\0';
    return item;
}
