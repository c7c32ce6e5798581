// The library's sheet over the selection of a document.
#pragma once

#include <afxwin.h>

class Document;

struct SheetOutcome {
    int code = 0;    // IDOK, IDCANCEL, an end code of a page, or -1: the sheet could not be shown
    int changed = 0; // graphics; one step of undo takes them back
};

// Shows the sheet and waits until it is closed. owner is the main window, which fills the sheet's controls.
SheetOutcome EditSelection(CWnd* owner, Document& document);
