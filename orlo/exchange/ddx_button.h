// Data exchange with check boxes and radio groups. Only DDX_RadioMap can fail. See ddx.h for the convention.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

// Exchange the state of a check box: 0, 1, or 2 for the indeterminate state of a three-state box. Loading any other
// value also sets the variable to 0. The 16-bit form stores the indeterminate state as 0xFFFF.
ORLO_API int DDX_Check(int bReport, CDataExchange* pDX, int nIDC, int& value);
ORLO_API int DDX_Check(int bReport, CDataExchange* pDX, int nIDC, unsigned short& value);

// Exchange the index of the checked button among the radio buttons from nIDC to the next control that starts a group.
// If no button is checked, the index is -1, or 0xFFFF in the 16-bit form. If several are checked, the last one is used.
ORLO_API int DDX_Radio(int bReport, CDataExchange* pDX, int nIDC, int& value);
ORLO_API int DDX_Radio(int bReport, CDataExchange* pDX, int nIDC, unsigned short& value);

// Exchanges a radio group whose buttons map to arbitrary numbers: pMap[i + 1] is the number of button i, pMap[0] that
// of no button; nCount is the number of buttons plus one. Loading a number that is not in the map checks no button; of
// equal numbers the last is used. Fails if the checked button is not in the map.
ORLO_API int DDX_RadioMap(int bReport, CDataExchange* pDX, unsigned int nIDC, int& value, int* pMap, int nCount);
