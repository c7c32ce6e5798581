// Drawing shared by the library's owner-drawn controls. Internal to the library.
#pragma once

#include "orlo/controls/combo_control.h"

// Returns whether the request is for a control without a selected item.
inline bool IsNoItem(const DRAWITEMSTRUCT& item) {
    return item.itemID == static_cast<UINT>(-1);
}

// Rows of a list start at x = 0, so only the closed field of a combo box has a greater left edge.
inline bool IsClosedField(const DRAWITEMSTRUCT& item) {
    return item.rcItem.left > 0;
}

// The colors of a row: selected, normal, or disabled, which has the dialog's background color.
struct RowColors {
    COLORREF text, background;
};
RowColors ColorsOf(const DRAWITEMSTRUCT& item);

// Returns the colors for a control that marks the selection by a frame: black where it is readable.
RowColors SampleColorsOf(const DRAWITEMSTRUCT& item);

// The part of an item that a control of style samples has to draw. A selection change redraws the whole item, because
// the old selection frame overlaps the sample or name.
enum class ItemPart { Nothing, Whole, Focus };
ItemPart RequestedPart(const DRAWITEMSTRUCT& item);

// Draws the frame of the selected item. `beyond` moves its far corner outward (device pixels), within the item.
void DrawSelectionFrame(const DRAWITEMSTRUCT& item, SIZE beyond = {0, 0});

// Marks the current row of a list whose rows have arbitrary colors, with two nested frames of which one is always
// visible.
void MarkCurrentRow(const DRAWITEMSTRUCT& item);

// Draws the focus rectangle in a list or a closed field.
void DrawItemFocus(const DRAWITEMSTRUCT& item);

// Erases the item's background, including the border of a closed field.
void ClearItem(const DRAWITEMSTRUCT& item);

// A row of plain text starts at this distance from the item's corner, or lower if the row is higher than the text.
constexpr POINT kPlainTextAt = {4, 1};
int PlainRowWidth(HDC dc, const char* text);
void DrawPlainRow(const DRAWITEMSTRUCT& item, const char* text, const RowColors& colors);

// Draws a name in a frame, starting at `at`, or lower if the item is higher than the text.
void DrawFramedName(const DRAWITEMSTRUCT& item, const RECT& frame, POINT at, const char* name);

// Draws the requested part of a style sample. drawStyle draws the item without selection and focus, and returns false
// if neither should be drawn.
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

// Returns the identifier that a request refers to and copies its name to a buffer of kItemTextSize bytes, emptied if
// there is no item.
template <class Control>
unsigned int RequestedStyle(Control& control, const DRAWITEMSTRUCT& item, char* name) {
    name[0] = '\0';
    if (IsNoItem(item)) return control.m_nSelected;
    return static_cast<unsigned int>(control.GetControlItem(static_cast<int>(item.itemID), name));
}

// An item that is a plain name without a key.
struct PlainItem {
    unsigned int number; // one-based position in the list, or m_nSelected in a request without an item; 0 if unreadable
    char text[128];      // truncated if longer; empty if IsNothing

    bool IsNothing() const { return IsNoEntry(number); }
};

PlainItem RequestedItem(const CComboControl& control, const DRAWITEMSTRUCT& request);
