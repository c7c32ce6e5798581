// Controls of the dialogs of these tests, for the sources and the resource script.
#pragma once

// Every identifier that a template may give a control, and two that are nobody's.
#define IDD_FACTORY 100
// One combo and one list of each kind that is drawn.
#define IDD_DRAWN 101

#define IDC_PLAIN_COMBO 32002
#define IDC_PLAIN_LIST 32003
#define IDC_COLORS 32005
#define IDC_LINE_COMBO 32004
#define IDC_LINE_LIST 32021
