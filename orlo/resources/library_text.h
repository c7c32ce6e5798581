// The library's own module, and its texts: found there before a string of the same number in the host.
#pragma once

#include <afx.h>

HINSTANCE LibraryModule();

// The text goes to pszBuffer, nSize bytes with the NUL. A number that the library has not is searched along the framework's
// modules. The length; 0 and an empty buffer if there is none.
int LoadLibraryText(UINT nID, char* pszBuffer, int nSize);
// Empty if there is none.
CString LibraryText(UINT nID);
