// Identifiers with which a QXComboBox or a QXListBox of a dialog template becomes a control of the library, for sources
// and resource scripts (preprocessor only). If a dialog has several controls of a kind, each needs its own number.
#pragma once

// QXComboBox.
#define IDC_FONT_FACE 32000
#define IDC_FONT_FACE_2 32022
#define IDC_FONT_SIZE 32001
#define IDC_FONT_STYLE 32002 // an ordinary combo box, filled by FillFontDropDown
#define IDC_LINE_STYLE_COMBO 32004
#define IDC_LINE_STYLE_COMBO_2 32017
#define IDC_LINE_STYLE_COMBO_3 32020
#define IDC_LINE_STYLE_COMBO_4 32026
#define IDC_COLOR 32005
#define IDC_BRUSH_COLOR 32006
#define IDC_COLOR_2 32012
#define IDC_COLOR_3 32013
#define IDC_COLOR_4 32014
#define IDC_COLOR_5 32018
#define IDC_COLOR_6 32019
#define IDC_TEXT_COLOR 32023
#define IDC_COLOR_7 32025
#define IDC_COLOR_8 32027
#define IDC_BRUSH_STYLE_COMBO 32007
#define IDC_LAYER 32008
#define IDC_STYLE_NAME 32015

// QXListBox.
#define IDC_LINE_STYLE_LIST 32021
#define IDC_BRUSH_STYLE_LIST 32024
