// Typing ahead in a control whose items begin with a key that nobody sees. Internal to the library.
#pragma once

#include "orlo/controls/control_items.h"

// A printable character typed into the control selects the next item, going round, whose name begins with it, and tells the
// parent. False, with nothing done, if the character is to take its usual way: it is none, or the items have no keys.
bool TypeAhead(HWND control, const ControlItems& items, WPARAM character);
