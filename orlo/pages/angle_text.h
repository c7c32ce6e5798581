// The exchange of an angle edit.
#pragma once

#include <afxwin.h>

#include "orlo/host/records.h"

// Exchanges an angle (radians) in the drawing's angular format. "Indeterminate" represents the indeterminate value.
// Never reports. 0: the text is not an angle, and value is what the host has left in it; or the host cannot write the
// value, and the control is as it was.
int DDX_TextAngle(CDataExchange* pDX, int nIDC, double& value, DrawingStruct* pDrawing);
