// Exchange of numbers and texts with edit controls. See ddx.h for the convention.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

// Integers. Only blanks are allowed around the number; the whole text is read, however long. A number beyond 32 bits
// gives the limit. The 8-bit form refuses what is above 255; the 16-bit form keeps the low 16 bits.
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, unsigned char& value);
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, int& value);
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, unsigned short& value);
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, unsigned int& value);
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, long& value);
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, unsigned long& value);

// The whole text. Cannot fail.
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, CString& value);

// Real numbers, shown with 6 significant digits. The whole text is read, calculations included if the host calculates.
// Text that the host does not read to its end and a number too large for a float are refused; a zero may be written in
// any way.
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, float& value);

// Goes through a float: what is saved is the float nearest to the text. _HUGE, the indeterminate marker, is shown as
// "*****". Saving that text leaves the variable alone and gives 0 in either mode, since there is no value to use. A
// silent failure sets the variable to 0.0.
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, double& value);

// The same for controls that may be blank: a field of blanks saves 0, a disabled control is shown empty.
ORLO_API int DDX_TextBlank(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value);
ORLO_API int DDX_TextBlank(int bReport, CDataExchange* pDX, unsigned int nIDC, unsigned int& value);
