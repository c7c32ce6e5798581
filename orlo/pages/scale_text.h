// The exchange of a scale edit, shared by the pages that have one.
#pragma once

#include <afxwin.h>

// Exchanges a scale. "Indeterminate" represents the indeterminate value. Loading, a value outside the range of a float
// is first clamped to it, in the variable itself; so a stored 0 shows as 1.17549e-38.
int DDX_TextScale(int bReport, CDataExchange* pDX, int nIDC, double& value);
