// What the menu of styles does: the host's part of making, choosing, editing, applying and deleting styles. Each
// command gives the text for the status line, empty if there is nothing to tell.
#pragma once

#include <afxwin.h>

#include <string>

class Document;

// By the wizard, after the selection.
std::string NewStyle(CWnd* owner, Document& document);
// The library's sheet over the current style, and over those that the user makes or chooses in it, until it is closed.
std::string EditStyles(CWnd* owner, Document& document);
// Puts the current style on the selection, as one step of undo.
std::string ApplyStyle(Document& document);
