// Data exchange of lengths and angles in the drawing's formats with edit controls. See ddx.h for the convention; these
// functions show no message for invalid text.
//
//   DDX_TextPaperMM(1, pDX, 104, m_dGap, drawing, 0);    // the text "1/4 in" saves 6.35
//
// bBlank  nonzero: white space saves 0.0, and a disabled control is shown empty.
// A null drawing, or a drawing without a units table, fails in both directions.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"
#include "orlo/host/records.h"

// Exchanges a length in drawing units. nFormat is passed to the host: 0, or 1 for a text size. Invalid text sets the
// variable to dDefault.
ORLO_API int DDX_TextLinear(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, DrawingStruct* pDrawing,
                            double dDefault, int nFormat, int bBlank);

// Exchange a length on paper in millimeters. The unit for text without one is passed to the host: that of the variable
// 0x5034 (Paper), or that of the number itself (PaperMM).
ORLO_API int DDX_TextPaper(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, DrawingStruct* pDrawing,
                           int bBlank);
ORLO_API int DDX_TextPaperMM(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, DrawingStruct* pDrawing,
                             int bBlank);

// Exchanges a length in drawing units that is displayed as its length on paper, dScale times as large. Fails if dScale
// is 1e-7 or less.
ORLO_API int DDX_TextPaperWorld(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value,
                                DrawingStruct* pDrawing, double dScale, int bBlank);

// Exchanges an angle in radians, displayed in the drawing's angular system.
ORLO_API int DDX_TextAngular(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, DrawingStruct* pDrawing,
                             int bBlank);

// Exchanges an angle in radians, displayed in degrees with 6 digits and saved with the precision of a float. A blank
// field saves 0.0, and a disabled one is shown empty.
ORLO_API int DDX_TextRadians(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value);
