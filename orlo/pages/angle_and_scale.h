// Data exchange with edit controls of angles and scales.
#pragma once

#include <afxwin.h>

#include "orlo/host/records.h"

// Exchanges an angle in radians with a control that shows it in the drawing's angular format. The indeterminate value
// is displayed as "Indeterminate". Reports nothing. Returns 0 if the text is not an angle, in which case value is
// undefined, or if the host cannot format the value, in which case the control is unchanged.
int DDX_TextAngle(CDataExchange* pDX, int nIDC, double& value, DrawingStruct* pDrawing);

// Exchanges a scale. The indeterminate value is displayed as "Indeterminate". Loading first clamps the variable itself
// to the range of a float; a stored 0 is therefore displayed as 1.17549e-38.
int DDX_TextScale(int bReport, CDataExchange* pDX, int nIDC, double& value);

namespace orlo {
// Limits of the scales of dashes and hatches on all pages.
constexpr double kMinScale = 1e-7;
constexpr double kMaxScale = 1e7;
} // namespace orlo
