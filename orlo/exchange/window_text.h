// Reads and clears the texts of controls for exchange functions. Internal to the library.
#pragma once

#include <afxwin.h>

// Returns the whole text, or at most 255 characters if the control does not report its length.
CString WindowText(HWND control);

// Clears selection and text of a combo box.
void ShowBlank(HWND combo);

// Returns the text of the selected item of a combo box, or its window text without a selection.
CString ShownText(HWND combo);
