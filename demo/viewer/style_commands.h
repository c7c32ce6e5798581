// The commands of the Style menu: creating, selecting, editing, applying and deleting styles. Each returns a text for
// the status bar, which may be empty.
#pragma once

#include <afxwin.h>

#include <string>

class Document;

// Creates a style from the selection with the wizard.
std::string NewStyle(CWnd* owner, Document& document);
// Opens the library's sheet for the current style, and then for each style that the user creates or selects in it,
// until the sheet is closed.
std::string EditStyles(CWnd* owner, Document& document);
// Applies the current style to the selection as one undo step.
std::string ApplyStyle(Document& document);
