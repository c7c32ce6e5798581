// Data exchange of numbers and texts with edit controls. See ddx.h for the convention.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

// Exchange integers. Only white space may surround the number, and the whole text is parsed regardless of its length.
// Numbers that exceed 32 bits are clamped. The 8-bit form rejects numbers above 255; the 16-bit form keeps the low 16
// bits.
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, unsigned char& value);
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, int& value);
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, unsigned short& value);
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, unsigned int& value);
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, long& value);
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, unsigned long& value);

// Exchanges the whole text. Cannot fail.
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, CString& value);

// Exchange real numbers, displayed with 6 significant digits. The host parses the whole text, including calculations if
// it supports them. Fails for text that the host does not parse completely and for numbers too large for a float. Zero
// can be written in any form.
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, float& value);

// Saves the float nearest to the text. _HUGE, the indeterminate marker, is displayed as "*****". Saving that text
// leaves the variable unchanged and returns 0 in either mode, since there is no value. A silent failure sets the
// variable to 0.0.
ORLO_API int DDX_Text(int bReport, CDataExchange* pDX, int nIDC, double& value);

// Does the same for controls that may be blank: white space saves 0, and a disabled control is shown empty.
ORLO_API int DDX_TextBlank(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value);
ORLO_API int DDX_TextBlank(int bReport, CDataExchange* pDX, unsigned int nIDC, unsigned int& value);
