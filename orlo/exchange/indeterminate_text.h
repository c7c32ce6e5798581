// Texts of a field that are no values: blank, and "*****" for a mixed value.
#pragma once

#include <windows.h>

// Nothing but blanks and tabs in the first 63 characters of the window's text.
bool IsBlankText(HWND window);

// The text of a mixed value.
constexpr char kIndeterminateDisplay[] = "*****";

// That text, exactly.
bool IsIndeterminateText(const char* text);
void SetIndeterminateText(HWND window);
