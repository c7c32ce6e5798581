// How an exchange function fails. Internal to this folder; see ddx.h for the convention.
#pragma once

#include <afxwin.h>

// Leaves by CDataExchange::Fail, or returns 0 in silent mode.
int FailExchange(int bReport, CDataExchange* pDX);

// The same, with that string in a message box when reporting.
int FailWithPrompt(int bReport, CDataExchange* pDX, UINT nIDPrompt, UINT nType = 0);

// A value outside its limits: in the load direction 1, else a failure, with both limits inserted in the
// message. Whole limits are written with format ("%u", "%ld" or "%lu"), real ones with that many digits.
int FailIntRange(int bReport, CDataExchange* pDX, long min, long max, const char* format, UINT nIDPrompt);
int FailRealRange(int bReport, CDataExchange* pDX, double min, double max, int digits, UINT nIDPrompt);
