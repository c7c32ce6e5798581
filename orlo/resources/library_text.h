// The library's module, and the texts and dialogs of its resources. They are found in the library itself, also if the
// host has resources with the same numbers. A translation replaces them: orlo.LANGUAGE.dll beside orlo.dll, such as
// orlo.de-AT.dll or orlo.de.dll, for the languages that the user prefers.
#pragma once

#include <afx.h>

#include <vector>

HINSTANCE LibraryModule();

// Returns the module of the translation that is in use, or null if there is none. It is loaded by the first call.
HINSTANCE TranslationModule();
// Frees the module. Called when the library is unloaded.
void ReleaseTranslation();

// Copies a string, at most nSize bytes including the NUL. Returns the length, or 0 and an empty string if it is not
// found.
int LoadLibraryText(UINT nID, char* pszBuffer, int nSize);
// Returns an empty string if it is not found.
CString LibraryText(UINT nID);
// Returns the template of a dialog.
std::vector<BYTE> LibraryDialog(UINT nID);
