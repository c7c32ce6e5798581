// Exchange with the selection of plain list boxes (LB) and combo boxes (CB). None of these can fail. See
// ddx.h for the convention.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

// Save: the text of the selected item, empty without one. Load: selects the first item that begins with the
// text.
ORLO_API int DDX_LBString(int bReport, CDataExchange* pDX, int nIDC, CString& value);
// Save: the text that the combo shows. Load: selects the item of that text; a text that is not in the list
// is shown without a selection.
ORLO_API int DDX_CBString(int bReport, CDataExchange* pDX, int nIDC, CString& value);

// Save: as the framework's functions of these names without Exact. Load: a text that is not in the list
// changes nothing.
ORLO_API int DDX_LBStringExact(int bReport, CDataExchange* pDX, int nIDC, CString& value);
ORLO_API int DDX_CBStringExact(int bReport, CDataExchange* pDX, int nIDC, CString& value);

// Index of the selected item, or -1.
ORLO_API int DDX_LBIndex(int bReport, CDataExchange* pDX, int nIDC, int& value);
ORLO_API int DDX_CBIndex(int bReport, CDataExchange* pDX, int nIDC, int& value);
