// The text of a control, as the exchange functions read it. Internal to this folder.
#pragma once

#include <afxwin.h>

// The whole text; of a control that does not tell its length up to 255 characters.
CString WindowText(HWND control);
