// The text beside a list of styles that names the chosen one.
#pragma once

#include <windows.h>

constexpr int kStyleNameSize = 128;

// Shows the name in that control of the page if it differs from what it shows already, and records it in shown.
void ShowStyleName(HWND page, int nID, const char* name, char (&shown)[kStyleNameSize]);
