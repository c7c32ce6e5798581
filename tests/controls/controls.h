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
#define IDC_BRUSH_COMBO 32007
#define IDC_BRUSH_LIST 32024
#define IDC_LAYERS 32008
#define IDC_FACES 32000
#define IDC_SIZES 32001
#define IDC_STYLE_NAMES 32015
