// Validation of values against limits. See ddx.h for the convention.
//
//   DDX_Text(1, pDX, 104, m_dScale);
//   DDV_MinMaxDouble(1, pDX, m_dScale, 1e-7, 1e7);   // out of range: a message with the limits, and Fail
//
// Limits are inclusive. Validation can fail only when saving; when loading the functions return 1.
#pragma once

#include <afxwin.h>

#include "orlo/export.h"

ORLO_API int DDV_MinMaxByte(int bReport, CDataExchange* pDX, unsigned char value, unsigned char min, unsigned char max);
ORLO_API int DDV_MinMaxInt(int bReport, CDataExchange* pDX, int value, int min, int max);
ORLO_API int DDV_MinMaxUI2(int bReport, CDataExchange* pDX, unsigned short value, unsigned short min,
                           unsigned short max);
ORLO_API int DDV_MinMaxLong(int bReport, CDataExchange* pDX, long value, long min, long max);
ORLO_API int DDV_MinMaxUInt(int bReport, CDataExchange* pDX, unsigned int value, unsigned int min, unsigned int max);
ORLO_API int DDV_MinMaxDWord(int bReport, CDataExchange* pDX, unsigned long value, unsigned long min,
                             unsigned long max);
ORLO_API int DDV_MinMaxFloat(int bReport, CDataExchange* pDX, const float& value, float min, float max);
ORLO_API int DDV_MinMaxDouble(int bReport, CDataExchange* pDX, const double& value, double min, double max);

// Validates an angle: from -1e38 to 1e38.
ORLO_API int DDV_Radians(int bReport, CDataExchange* pDX, const double& value);
// Validates a font height: from 1e-7 to 1e38.
ORLO_API int DDV_FontSize(int bReport, CDataExchange* pDX, const double& value);
// Validates that the value is greater than 0.0.
ORLO_API int DDV_PositiveValue(int bReport, CDataExchange* pDX, const double& value);

// Validates that the text has at most nChars bytes. Does not limit the text of the control.
ORLO_API int DDV_MaxChars(int bReport, CDataExchange* pDX, const CString& value, int nChars);
