// Shared implementation of combo boxes and list boxes of host tables. Internal to the library.
#pragma once

#include "orlo/controls/control_fill.h"
#include "orlo/controls/control_item.h"
#include "orlo/controls/control_items.h"
#include "orlo/win/child_windows.h"

// Empties a control and stores table and selection of a fill record. Returns false if lParam is null or the record has
// no table.
template <class Control>
bool BeginFill(Control& control, LPARAM lParam) {
    const auto* const record = reinterpret_cast<const ControlFillRecord*>(lParam);
    control.ResetContent();
    control.m_pTable = record ? record->pTable : nullptr;
    if (record) control.m_nSelected = record->nSelected;
    return control.m_pTable != nullptr;
}

// Returns the identifier of an item and copies its name to a buffer of kItemTextSize bytes. If the item does not exist,
// returns 0 and empties the buffer.
unsigned long ItemOf(const ControlItems& items, int index, char* text);

// Initializes a window that existed before its object: sets the row height (device pixels) and notifies the
// application, which may fill the control immediately.
void InitializeSubclassedWindow(HWND control, const ControlItems& items, int rowHeight);

// Returns the row height in device pixels, as the control measures it.
template <class Control>
int MeasuredRow(Control& control) {
    MEASUREITEMSTRUCT measure = {};
    control.MeasureItem(&measure);
    return static_cast<int>(measure.itemHeight);
}

// Sets the shared control font; called on WM_INITIALUPDATE.
void UseSharedFont(HWND control);

// Sets the height of a control without moving or redrawing it.
void SetControlHeight(HWND control, int height);

// Notifies the application of a control of that kind; see combo_control.h.
void NotifyApplication(CWnd& control, unsigned int kind, unsigned int notification);
