// Computes the pixel size of a dialog from its template, before the dialog is created.
#pragma once

#include <afxwin.h>

// Returns the size of a loaded DIALOG (not DIALOGEX) resource. Null measures 250 by 62 dialog units in "System" 8; a
// truncated template is measured as far as it can be read.
CSize MeasureDialog(void* hDialog);
