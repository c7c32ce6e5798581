// Captures the displayed state of a control in a comparable form, to decide whether the user has changed it.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

// Returns the text of a field, or the selection of a list, a check box, or the radio buttons from this one to the end
// of its group. Returns std::nullopt if the control does not display its value: a push button, a window of another
// class, or no window.
std::optional<std::string> ShownState(HWND control);
