// Exchange with check boxes and radio groups. Only DDX_RadioMap can fail. See ddx.h for the convention.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

// State of a check box: 0, 1, or 2 for the third state of a box that has one. Loading another value sets the
// variable to 0 as well. The 16-bit form holds the third state as 0xFFFF.
ORLO_API int DDX_Check(int bReport, CDataExchange* pDX, int nIDC, int& value);
ORLO_API int DDX_Check(int bReport, CDataExchange* pDX, int nIDC, unsigned short& value);

// Position of the checked button among the radio buttons from nIDC to the next control that starts a group.
// Without one: -1, or 0xFFFF in the 16-bit form. If several are checked, the last one counts.
ORLO_API int DDX_Radio(int bReport, CDataExchange* pDX, int nIDC, int& value);
ORLO_API int DDX_Radio(int bReport, CDataExchange* pDX, int nIDC, unsigned short& value);

// A radio group whose buttons map to other numbers: pMap[i + 1] for the button at position i, pMap[0] without one;
// nCount is one more than the buttons. Loading a number that is not in the map checks no button; the last of equal ones
// counts. Fails for a checked button that the map doesn't have.
ORLO_API int DDX_RadioMap(int bReport, CDataExchange* pDX, unsigned int nIDC, int& value, int* pMap, int nCount);
