// Typing ahead in a control whose items may begin with a key that is not shown. Internal to the library.
#pragma once

#include "orlo/controls/control_items.h"

// Characters typed into the control in a row, until the system's pause, are one prefix: the first item from the selected one
// on, wrapping around, whose name begins with it is selected, and the parent notified. Without a match the selection stays.
// The same letter again selects the next item with it. False, with nothing done, if the character is to be handled as usual.
bool TypeAhead(HWND control, const ControlItems& items, WPARAM character);
