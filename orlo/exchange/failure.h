// Failure of exchange functions. Internal to this folder; see ddx.h for the convention.
#pragma once

#include <afxwin.h>

// Calls CDataExchange::Fail, or returns 0 in silent mode.
int FailExchange(int bReport, CDataExchange* pDX);

// Does the same, with the string in a message box if reporting.
int FailWithPrompt(int bReport, CDataExchange* pDX, UINT nIDPrompt, UINT nType = 0);

// Handle a value outside its limits: return 1 when loading, else fail with a message that includes both limits. Integer
// limits are formatted with format ("%u", "%ld" or "%lu"), real ones with that many digits.
int FailIntRange(int bReport, CDataExchange* pDX, long min, long max, const char* format, UINT nIDPrompt);
int FailTextRange(int bReport, CDataExchange* pDX, const char* min, const char* max, UINT nIDPrompt);
int FailRealRange(int bReport, CDataExchange* pDX, double min, double max, int digits, UINT nIDPrompt);
