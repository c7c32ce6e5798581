// Exchange of a control object and of a scroll bar's position. See ddx.h for the convention.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

// Attaches the object to the dialog's control, unless it has a window already. Throws CNotSupportedException
// if the window cannot be subclassed.
ORLO_API int DDX_Control(int bReport, CDataExchange* pDX, int nIDC, CWnd& control);

// Position of a scroll bar control.
ORLO_API int DDX_Scroll(int bReport, CDataExchange* pDX, int nIDC, int& value);
