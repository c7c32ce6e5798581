// Reads the texts of windows and of the items of combo boxes, without a limit on their length.
#pragma once

#include <windows.h>

#include <string>

std::string WindowText(HWND window);
// Returns an empty string if there is no such item.
std::string ComboItem(HWND combo, int index);
