// Fields that show no value: blank ones, and those of a number in which the graphics differ.
#pragma once

#include <windows.h>

// Returns whether the window's text has nothing but blanks and tabs.
bool IsBlankText(HWND window);

// Whether the text is kIndeterminateStars, exactly.
bool IsIndeterminateText(const char* text);
void SetIndeterminateText(HWND window);

// Whether the number counts as the indeterminate marker, as far as a text field distinguishes numbers (CompareDoubles).
bool IsNearlyIndeterminate(double value);
