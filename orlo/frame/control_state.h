// What a control shows, in a form that can be compared: whether the user has changed it is decided by this.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

// Returns the text of a field, or the selection of a list, a box, or the radio buttons from this one to the end of its
// group. Returns nothing if the value cannot be seen in the control: a push button, a window of another class, no
// window.
std::optional<std::string> ShownState(HWND control);
