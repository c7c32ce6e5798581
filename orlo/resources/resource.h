// Identifiers of the library's resources, for sources and the resource script (preprocessor only).
#pragma once

#include "orlo/resources/control_ids.h"

// Dialog templates. The number identifies the page in its sheet.
#define IDD_GENERAL_PAGE 29000
#define IDD_PEN_PAGE 29001
#define IDD_BRUSH_PAGE 29002
#define IDD_TEXT_PAGE 29003
#define IDD_INSERT_PAGE 29004

// Icons of layers. The image fills the top left quarter.
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

// Buttons of the wizard: text, line feed, width in dialog units. The last string has no width.
#define IDS_WIZARD_CANCEL 111
#define IDS_WIZARD_BACK 112
#define IDS_WIZARD_NEXT 113
#define IDS_WIZARD_FINISH 114

// Messages of the exchange functions.
#define IDS_ENTER_ANGLE 120
#define IDS_ENTER_FONT_SIZE 121
#define IDS_ENTER_POSITIVE 122
#define IDS_ENTER_SCALE 123

// Graphics that the host did not change: %d of %d.
#define IDS_NOT_CHANGED 124

// Texts for screen readers: a field with multiple values, states of a layer, the preview, and the action of a check
// box.
#define IDS_VARIED 125
#define IDS_LAYER_HIDDEN 126
#define IDS_LAYER_LOCKED 127
#define IDS_PREVIEW 128
#define IDS_CHECK 129
#define IDS_UNCHECK 130

// Further messages of the exchange functions.
#define IDS_ENTER_LENGTH 131
#define IDS_ENTER_DATE 132

// The pane around a modeless sheet.
#define IDS_PANE_APPLY 133
#define IDS_PANE_RESET 134
#define IDS_PANE_CLOSE 135
#define IDS_PANE_HELP 136
#define IDS_NOTHING_SELECTED 137

// A value that a check of the host rejects without a message.
#define IDS_ENTER_VALUE 138

// Limits of a date: %1 to %2.
#define IDS_DATE_RANGE 139

// Caption of the property sheet.
#define IDS_PROPERTIES 2000

// Controls of the General page; see also control_ids.h.
#define IDC_INFO 101
#define IDC_STYLE_NEW 102
#define IDC_STYLE_DELETE 103
#define IDC_STYLE_GROUP 104

// The Pen page.
#define IDC_PEN_WIDTH_LABEL 101
#define IDC_PEN_SCALE_LABEL 102
#define IDC_PEN_WIDTH 103
#define IDC_PEN_SCALE 104
#define IDC_SCALE_SYSTEM_LABEL 105
#define IDC_PEN_PATTERN_GROUP 106
#define IDC_PEN_COLOR_GROUP 107
#define IDC_PEN_WIDTH_GROUP 108
#define IDC_SCALE_SYSTEM 109
#define IDC_PEN_ALIGNMENT 110
#define IDC_PEN_STYLE_TEXT 112

// The Brush page.
#define IDC_HATCH_GROUP 101
#define IDC_BRUSH_ANGLE_LABEL 104
#define IDC_BRUSH_SCALE 105
#define IDC_BRUSH_ANGLE 106
#define IDC_BRUSH_PATTERN_GROUP 108
#define IDC_BRUSH_SCALE_LABEL 109
#define IDC_BRUSH_STYLE_TEXT 112
#define IDC_HATCH_CROSS 113
#define IDC_DRAW_MODE_GROUP 114
#define IDC_DRAW_WINDING 115 // first of the group
#define IDC_DRAW_ALTERNATE 116
#define IDC_BRUSH_COLOR_GROUP 117
#define IDC_BRUSH_KIND_TEXT 118
#define IDC_BRUSH_ANGLE_ARROWS 119

// The Text page, and every dialog that uses DDX_ChkBoxEffects.
#define IDC_STRIKETHROUGH 103
#define IDC_HIDDEN 104
#define IDC_ALL_CAPS 105
#define IDC_UNDERLINE 106
#define IDC_TEXT_BOX 107
#define IDC_JUSTIFY_LEFT 108 // first of the group
#define IDC_JUSTIFY_CENTER 109
#define IDC_JUSTIFY_RIGHT 110

// The Block Insertion page.
#define IDC_SCALE_X 101
#define IDC_SCALE_Y 102
#define IDC_SCALE_Z 103
#define IDC_ROTATION_X 104
#define IDC_ROTATION_Y 105
#define IDC_ROTATION_Z 106
#define IDC_POSITION_X 107
#define IDC_POSITION_Y 108
#define IDC_POSITION_Z 109
