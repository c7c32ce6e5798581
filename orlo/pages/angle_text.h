// Data exchange with an angle edit control.
#pragma once

#include <afxwin.h>

#include "orlo/host/records.h"

// Exchanges an angle in radians with a control that shows it in the drawing's angular format. The indeterminate value
// is displayed as "Indeterminate". Reports nothing. Returns 0 if the text is not an angle, in which case value is
// undefined, or if the host cannot format the value, in which case the control is unchanged.
int DDX_TextAngle(CDataExchange* pDX, int nIDC, double& value, DrawingStruct* pDrawing);
