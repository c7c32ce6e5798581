// Data exchange with control objects and scroll bars. See ddx.h for the convention.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

// Subclasses the dialog's control, unless the object already has a window. Throws CNotSupportedException if the window
// cannot be subclassed.
ORLO_API int DDX_Control(int bReport, CDataExchange* pDX, int nIDC, CWnd& control);

// Exchanges the position of a scroll bar control.
ORLO_API int DDX_Scroll(int bReport, CDataExchange* pDX, int nIDC, int& value);
