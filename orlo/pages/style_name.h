// Shows the name of the selected style beside its list.
#pragma once

#include <windows.h>

constexpr int kStyleNameSize = 128;

// Sets the text of the page's control unless it already shows the name, and stores the name in shown.
void ShowStyleName(HWND page, int nID, const char* name, char (&shown)[kStyleNameSize]);
