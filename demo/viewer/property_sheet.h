// The library's sheet over the selection of a document, or over any set of graphics.
#pragma once

#include <afxwin.h>

#include "orlo/host/records.h"

class Document;

// Shows the sheet with the pages that the members of the set deserve and waits until it is closed. owner is the main window,
// which fills the sheet's controls; flags are kAllGraphics or kWithStylePart. IDOK, IDCANCEL, an end code of a page, or
// kNotShown.
constexpr int kNotShown = -1;
int RunSheet(CWnd* owner, DrawingStruct* drawing, GraphicStruct* set, unsigned long flags);

struct SheetOutcome {
    int code;    // as RunSheet gives it
    int changed; // graphics; one step of undo takes them back
};

// Cancel takes back all that the sheet has written.
SheetOutcome EditSelection(CWnd* owner, Document& document);
