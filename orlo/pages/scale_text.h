// Data exchange with a scale edit control.
#pragma once

#include <afxwin.h>

// Exchanges a scale. The indeterminate value is displayed as "Indeterminate". Loading first clamps the variable itself
// to the range of a float; a stored 0 is therefore displayed as 1.17549e-38.
int DDX_TextScale(int bReport, CDataExchange* pDX, int nIDC, double& value);
