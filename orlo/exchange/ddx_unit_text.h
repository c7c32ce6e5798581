// Exchange of lengths and angles with edit controls, as the drawing writes them. See ddx.h for the convention; an
// invalid text shows no message of its own.
//
//   DDX_TextPaperMM(1, pDX, 104, m_dGap, drawing, 0);    // the field "1/4 in" saves 6.35
//
// bBlank  non-zero: a field of blanks saves 0.0, a disabled control is shown empty.
// A null drawing, or one without a unit table, fails in both directions.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"
#include "orlo/host/records.h"

// A length in drawing units; nFormat 0, or 1 for a text size, is handed to the host. A bad text leaves dDefault in the
// variable.
ORLO_API int DDX_TextLinear(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, DrawingStruct* pDrawing,
                            double dDefault, int nFormat, int bBlank);

// A length on paper in millimeters; the unit of a text without one is passed to the host, as the variable 0x5034
// (Paper) or as the unit of the number itself (PaperMM).
ORLO_API int DDX_TextPaper(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, DrawingStruct* pDrawing,
                           int bBlank);
ORLO_API int DDX_TextPaperMM(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, DrawingStruct* pDrawing,
                             int bBlank);

// A length in drawing units, shown as that of it on paper, dScale times as large. Fails for a scale of 1e-7 and less.
ORLO_API int DDX_TextPaperWorld(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value,
                                DrawingStruct* pDrawing, double dScale, int bBlank);

// An angle in radians, in the drawing's angular system.
ORLO_API int DDX_TextAngular(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value, DrawingStruct* pDrawing,
                             int bBlank);

// An angle in radians, shown in degrees with 6 digits; what is saved has passed through a float. A blank field saves
// 0.0, a disabled one is shown empty.
ORLO_API int DDX_TextRadians(int bReport, CDataExchange* pDX, unsigned int nIDC, double& value);
