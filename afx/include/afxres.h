// Identifiers of the framework's commands and strings, for C++ and resource scripts.
#pragma once

// Commands
#define ID_HELP 0xE145
#define ID_APPLY_NOW 0xEA00

// Child windows of the framework
#define AFX_IDC_TAB_CONTROL 0x3020

// Messages to the user; %1 and %2 are replaced
#define AFX_IDP_INTERNAL_FAILURE 0xF108
#define AFX_IDP_PARSE_INT 0xF110
#define AFX_IDP_PARSE_REAL 0xF111
#define AFX_IDP_PARSE_INT_RANGE 0xF112
#define AFX_IDP_PARSE_REAL_RANGE 0xF113
#define AFX_IDP_PARSE_STRING_SIZE 0xF114
#define AFX_IDP_PARSE_BYTE 0xF116
#define AFX_IDP_PARSE_UINT 0xF117

// Exceptions
#define AFX_IDS_NOT_SUPPORTED_EXCEPTION 0xF182
#define AFX_IDS_RESOURCE_EXCEPTION 0xF183
// The first of the strings for the causes of a CFileException; %1 is the file
#define AFX_IDP_FILE_FIRST 0xF1A0

// Buttons of a property sheet: caption, line feed, width in dialog units
#define AFX_IDS_SHEET_OK 0xF220
#define AFX_IDS_SHEET_CANCEL 0xF221
#define AFX_IDS_SHEET_HELP 0xF222
#define AFX_IDS_SHEET_APPLY 0xF223

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif
