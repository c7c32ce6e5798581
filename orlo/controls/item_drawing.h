// What the owner-drawn controls of the library share when they draw an item. Internal.
#pragma once

#include <windows.h>

constexpr int kHostTextSize = 0x7F; // host texts longer than this are cut

// The request is for a control without a selected item.
inline bool IsNoItem(const DRAWITEMSTRUCT& item) {
    return item.itemID == static_cast<UINT>(-1);
}

// The rows of a list start at 0, so that only the closed field of a combo has a left edge above it.
inline bool IsClosedField(const DRAWITEMSTRUCT& item) {
    return item.rcItem.left > 0;
}

// Colors of a row, selected or not, or of a disabled one, whose field is of the color of the dialog.
struct RowColors {
    COLORREF text, background;
};
RowColors ColorsOf(const DRAWITEMSTRUCT& item);

// The same for what shows the selection in another way, and is drawn in black where that can be read.
RowColors SampleColorsOf(const DRAWITEMSTRUCT& item);

// What a request asks a control of style samples to draw. A change of the selection draws the whole item: the frame
// that goes would leave its marks in the sample or the name below it.
enum class ItemPart { Nothing, Whole, Focus };
ItemPart RequestedPart(const DRAWITEMSTRUCT& item);

// The frame of the selected item. Its far corner exceeds the usual one by that much (device pixels), within the item.
void DrawSelectionFrame(const DRAWITEMSTRUCT& item, SIZE beyond = {0, 0});

// Marks the current row of a list whose rows have any color: two frames of which one can be seen on each.
void MarkCurrentRow(const DRAWITEMSTRUCT& item);

// The focus rectangle, in a list and in a closed field.
void DrawItemFocus(const DRAWITEMSTRUCT& item);

// The item's background, the border of a closed field included.
void ClearItem(const DRAWITEMSTRUCT& item);

// A row of plain text, at that distance from the item's corner, or lower if it is in the middle of the item there.
constexpr POINT kPlainTextAt = {4, 1};
int PlainRowWidth(HDC dc, const char* text);
void DrawPlainRow(const DRAWITEMSTRUCT& item, const char* text, const RowColors& colors);

// A name in a frame, the text at that point, or lower if it is in the middle of the item there.
void DrawFramedName(const DRAWITEMSTRUCT& item, const RECT& frame, POINT at, const char* name);

// Draws what a request asks of a control of style samples. drawStyle draws the whole item but selection and
// focus, and returns false if these cannot be drawn on it.
template <class DrawStyle>
void DrawRequest(const DRAWITEMSTRUCT& item, SIZE beyond, DrawStyle drawStyle) {
    switch (RequestedPart(item)) {
    case ItemPart::Whole:
        if (!drawStyle()) break;
        if (item.itemState & ODS_SELECTED) DrawSelectionFrame(item, beyond);
        DrawItemFocus(item);
        break;
    case ItemPart::Focus:
        ::DrawFocusRect(item.hDC, &item.rcItem);
        break;
    case ItemPart::Nothing:
        break;
    }
}

// The identifier that a request is about; its name goes to a buffer of kItemTextSize bytes and is empty
// without an item.
template <class Control>
unsigned int RequestedStyle(Control& control, const DRAWITEMSTRUCT& item, char* name) {
    name[0] = '\0';
    if (IsNoItem(item)) return control.m_nSelected;
    return static_cast<unsigned int>(control.GetControlItem(static_cast<int>(item.itemID), name));
}
