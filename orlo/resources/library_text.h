// The library's module, and the texts and dialogs of its resources. They are loaded from the library itself, even if
// the host has resources with the same numbers, or from a translation for the user's preferred languages:
// orlo.LANGUAGE.dll in the folder of orlo.dll, such as orlo.de-AT.dll or orlo.de.dll.
#pragma once

#include <afx.h>

#include <vector>

HINSTANCE LibraryModule();

// Returns the module of the translation that is in use, or null if there is none. It is loaded by the first call.
HINSTANCE TranslationModule();
// Frees the module. Called when the library is unloaded.
void ReleaseTranslation();

// Copies a string, at most nSize bytes including the NUL, and returns its length. If it is not found, stores an empty
// string and returns 0.
int LoadLibraryText(UINT nID, char* pszBuffer, int nSize);
// Returns a string, which is empty if it is not found.
CString LibraryText(UINT nID);
// Returns a copy of the template of a dialog, which is empty if it is not found.
std::vector<BYTE> LibraryDialog(UINT nID);
// Does the same for a dialog of another module.
std::vector<BYTE> DialogTemplate(HINSTANCE module, const char* pszName);
