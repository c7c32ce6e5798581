// Returns the texts of the library's resources.

#include "orlo/resources/library_text.h"

#include <afxwin.h>

extern "C" IMAGE_DOS_HEADER __ImageBase; // start of the module

HINSTANCE LibraryModule() {
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

int LoadLibraryText(UINT nID, char* pszBuffer, int nSize) {
    const int length = ::LoadStringA(LibraryModule(), nID, pszBuffer, nSize);
    if (length == 0) *pszBuffer = '\0';
    return length;
}

CString LibraryText(UINT nID) {
    char text[256];
    LoadLibraryText(nID, text, sizeof text);
    return text;
}
