// Typing ahead in a control whose items may begin with a key that is not shown. Internal to the library.
#pragma once

#include "orlo/controls/control_items.h"
#include "orlo/controls/item_names.h"

// Characters typed into the control in a row, until the system's pause, are one prefix: the first item from the
// selected one on, wrapping around, whose name begins with it is selected, and the parent notified. A character that
// continues no name begins a new prefix; one that begins no name either is ignored. The same letter again therefore
// selects the next item with it. Backspace takes the last character back and returns to the item that was selected
// before it. Returns false, with nothing done, if the character is to be handled as usual.
bool TypeAhead(HWND control, const ControlItems& items, ItemNames& names, WPARAM character);

// Notifies the parent that the selection has changed, as the system does after a key.
void NotifySelectionChange(HWND control);
