// The library's module, and the texts of its resources, which are preferred to texts of the host with the same number.
#pragma once

#include <afx.h>

HINSTANCE LibraryModule();

// Copies a text, at most nSize bytes with the NUL. If the library does not have the number, the modules of the
// framework are searched. Returns the length, or 0 and an empty text if it was not found.
int LoadLibraryText(UINT nID, char* pszBuffer, int nSize);
// Returns an empty text if it was not found.
CString LibraryText(UINT nID);
