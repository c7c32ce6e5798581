// Typing ahead in a control whose item texts may begin with a hidden key. Internal to the library.
#pragma once

#include "orlo/controls/control_items.h"
#include "orlo/controls/item_names.h"

// Handles a typed character. Characters that follow each other within the system's typing pause form a prefix: the
// first item from the selected one on, wrapping around, whose name begins with it is selected, and the parent is
// notified. A character that does not continue a matching prefix starts a new one; if no name begins with it, it is
// ignored. Typing the same letter again therefore selects the next item with it. Backspace removes the last character
// and returns to the item selected before it. Returns false, without doing anything, if the character should be handled
// as usual.
bool TypeAhead(HWND control, const ControlItems& items, ItemNames& names, WPARAM character);

// Notifies the parent of a changed selection, as the system does after a keystroke.
void NotifySelectionChange(HWND control);
