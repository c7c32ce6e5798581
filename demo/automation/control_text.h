// The texts of windows, and of the items of combos and lists, however long they are.
#pragma once

#include <windows.h>

#include <string>

std::string WindowText(HWND window);
// Empty if there is no such item.
std::string ComboItem(HWND combo, int index);
std::string ListItem(HWND list, int index);
