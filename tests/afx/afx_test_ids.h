// Identifiers of the tests' resources.
#pragma once

#define IDD_FORM 200
#define IDC_NAME 1001
#define IDC_COUNT 1002
#define IDC_BOLD 1003
#define IDC_CHOICE 1004
#define IDC_COLOR 1005

// Pages of equal size; the last is written as an extended template, and named.
#define IDD_PAGE_ONE 210
#define IDD_PAGE_TWO 211
#define IDD_PAGE_TALL 212
#define IDC_FIELD 1010
#define IDC_PRESS 1011
#define IDC_LINES 1012

#define IDR_FRAME 220
#define ID_GREET 2000
#define ID_LAST_OF_RANGE 2009

#define IDS_TAB_TEXT 230
#define IDS_INSERTS 231
#define IDS_SHEET 232
#define IDS_LONG 233
