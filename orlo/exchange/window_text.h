// The texts of controls, as the exchange functions read them. Internal to the library.
#pragma once

#include <afxwin.h>

// The whole text; up to 255 characters of a control that does not give its length.
CString WindowText(HWND control);

// Takes selection and text out of a combo.
void ShowBlank(HWND combo);

// What a combo shows: the text of its selected item, or its window text without one.
CString ShownText(HWND combo);
