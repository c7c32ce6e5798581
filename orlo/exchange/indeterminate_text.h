// Recognizes fields that show no value: blank ones, and those of a number that differs between graphics.
#pragma once

#include <windows.h>

// Returns whether the window's text consists of blanks and tabs only.
bool IsBlankText(HWND window);

// Returns whether the text is exactly kIndeterminateStars.
bool IsIndeterminateText(const char* text);
void SetIndeterminateText(HWND window);

// Returns whether the number equals the indeterminate marker with the precision of a text field (CompareDoubles).
bool IsNearlyIndeterminate(double value);
