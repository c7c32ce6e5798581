// Identifiers of the library's resources, for the sources and the resource script. Preprocessor only.
#pragma once

// Dialog templates; the number is the identity of a page in its sheet.
#define IDD_GENERAL_PAGE 29000
#define IDD_PEN_PAGE 29001
#define IDD_BRUSH_PAGE 29002
#define IDD_TEXT_PAGE 29003
#define IDD_INSERT_PAGE 29004

// Icons of layers; the picture fills the top left quarter.
#define IDI_VISIBLE 104
#define IDI_READ_ONLY 106

// Font styles, in the order of the style's two low bits.
#define IDS_REGULAR 100
#define IDS_ITALIC 101
#define IDS_BOLD 102
#define IDS_BOLD_ITALIC 103

// Kinds of brush style.
#define IDS_BITMAP_BRUSH 109
#define IDS_VECTOR_BRUSH 110

// Buttons of the wizard: text, line feed, width in dialog units; the last is the text alone.
#define IDS_WIZARD_CANCEL 111
#define IDS_WIZARD_BACK 112
#define IDS_WIZARD_NEXT 113
#define IDS_WIZARD_FINISH 114

// Messages of the exchange functions.
#define IDS_ENTER_ANGLE 120
#define IDS_ENTER_FONT_SIZE 121
#define IDS_ENTER_POSITIVE 122
#define IDS_ENTER_SCALE 123

// What a host has not written: %d of %d graphics.
#define IDS_NOT_CHANGED 124

// Caption of the property sheet.
#define IDS_PROPERTIES 2000

// Controls that come to life in dialog templates; see controls/control_factory.h for every number.
#define IDC_LINE_STYLE_LIST 32021
#define IDC_COLOR 32005
#define IDC_BRUSH_STYLE_LIST 32024
#define IDC_BRUSH_COLOR 32006
#define IDC_FONT_FACE 32000
#define IDC_FONT_SIZE 32001
#define IDC_FONT_STYLE 32002
#define IDC_TEXT_COLOR 32023
#define IDC_LAYER 32008
#define IDC_STYLE_NAME 32015
