// What the combo and the list of a host table have in common. Internal to the library.
#pragma once

#include "orlo/controls/control_fill.h"
#include "orlo/controls/control_item.h"
#include "orlo/controls/control_items.h"

// Empties a control for the record of a fill message, and takes table and selection over from it. False if
// the record has no table, or lParam is null.
template <class Control>
bool BeginFill(Control& control, LPARAM lParam) {
    const auto* const record = reinterpret_cast<const ControlFillRecord*>(lParam);
    control.ResetContent();
    control.m_pTable = record ? record->pTable : nullptr;
    if (record) control.m_nSelected = record->nSelected;
    return control.m_pTable != nullptr;
}

// Identifier of an item; its name goes to a buffer of kItemTextSize bytes. 0 and no text without such an
// item.
unsigned long ItemOf(const ControlItems& items, int index, char* text);

// Prepares a window that existed before its object as a template would: its rows get that height (device pixels), and
// the control announces itself, which the host may answer at once.
void TakeWindowOver(HWND control, const ControlItems& items, int rowHeight);

// Height of a row of the control in device pixels, as it measures it.
template <class Control>
int MeasuredRow(Control& control) {
    MEASUREITEMSTRUCT measure = {};
    control.MeasureItem(&measure);
    return static_cast<int>(measure.itemHeight);
}

// The shared control font for a control that gets WM_INITIALUPDATE.
void UseSharedFont(HWND control);

// Device pixels.
SIZE WindowSize(HWND window);

// Gives a control that height, its width and place as they are. Nothing is redrawn.
void SetControlHeight(HWND control, int height);

// Notifies the application of a control of that kind; see combo_control.h.
void NotifyApplication(CWnd& control, unsigned int kind, unsigned int notification);
