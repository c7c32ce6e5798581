// Data exchange with the selection of plain list boxes (LB) and combo boxes (CB). None of these functions can fail. See
// ddx.h for the convention.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

// Save: returns the text of the selected item, or an empty string. Load: selects the first item that begins with the
// text.
ORLO_API int DDX_LBString(int bReport, CDataExchange* pDX, int nIDC, CString& value);
// Save: returns the text that the combo box shows. Load: selects the item with that text, or shows the text without a
// selection if it is not in the list.
ORLO_API int DDX_CBString(int bReport, CDataExchange* pDX, int nIDC, CString& value);

// Save: same as the functions without Exact. Load: text that is not in the list changes nothing.
ORLO_API int DDX_LBStringExact(int bReport, CDataExchange* pDX, int nIDC, CString& value);
ORLO_API int DDX_CBStringExact(int bReport, CDataExchange* pDX, int nIDC, CString& value);

// Exchange the index of the selected item, or -1.
ORLO_API int DDX_LBIndex(int bReport, CDataExchange* pDX, int nIDC, int& value);
ORLO_API int DDX_CBIndex(int bReport, CDataExchange* pDX, int nIDC, int& value);
