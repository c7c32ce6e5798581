// The pixel size of a dialog from its template, before any window of it is made.
#pragma once

#include <afxwin.h>

// hDialog is a loaded dialog resource (DIALOG, not DIALOGEX), or null, which measures 250 by 62 dialog units in
// "System" 8. A template that breaks off is measured as far as it can be read.
CSize MeasureDialog(void* hDialog);
