// The library's module, and the strings of its resources, which are used even if the host has strings with the same
// numbers.
#pragma once

#include <afx.h>

HINSTANCE LibraryModule();

// Copies a string, at most nSize bytes including the NUL. Returns the length, or 0 and an empty string if it is not
// found.
int LoadLibraryText(UINT nID, char* pszBuffer, int nSize);
// Returns an empty string if it is not found.
CString LibraryText(UINT nID);
