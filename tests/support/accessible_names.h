// Walks windows as a screen reader does: each field has a name, and no text contains the key of an item.
#pragma once

#include <windows.h>

#include <string>

// Returns the name from the window's own accessibility object, or else from the label before the window, which Windows
// uses for fields but Wine does not, or else from the system's object.
std::string AccessibleName(HWND control);

// Expects that names and values of the window and its items contain neither a tab character nor a hexadecimal key. For
// tabs, status bars and list views, whose items only the accessibility objects of Windows report, uses their texts.
void ExpectNoKeys(HWND window);

// Does the same for the window and all its visible descendants, and expects that each of them that the keyboard can
// reach has a name. Returns the number of those.
int ExpectAccessible(HWND window);
