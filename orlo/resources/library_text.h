// The library's own module, and its texts: found there before a string of the same number in the host.
#pragma once

#include <afx.h>

HINSTANCE LibraryModule();

// The text goes to pszBuffer, nSize bytes with the NUL. A number that the library lacks is looked up along the
// framework's modules. The length; 0 and an empty buffer if not found.
int LoadLibraryText(UINT nID, char* pszBuffer, int nSize);
// Empty if not found.
CString LibraryText(UINT nID);
