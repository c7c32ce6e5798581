// Identifiers of the demo's menu, keys and strings, for C++ and the resource script.
#pragma once

#define IDR_MAINFRAME 128
#define IDC_VIEW 129
#define IDC_STATUS 130
#define IDC_PROPERTIES_PANE 131
#define IDC_SPLITTER 133
// Keys of the main window that also work in the pane.
#define IDR_PANE 132

#define ID_FILE_OPEN 0xE101
#define ID_FILE_SAVE 0xE103
#define ID_FILE_SAVE_AS 0xE104
#define ID_APP_EXIT 0xE141
#define ID_EDIT_UNDO 0xE12B
#define ID_EDIT_REDO 0xE12C
#define ID_EDIT_SELECT_ALL 0xE12A
#define ID_EDIT_SELECT_NEXT 201
#define ID_EDIT_SELECT_PREVIOUS 202
#define ID_EDIT_SELECT_NONE 203
#define ID_EDIT_PROPERTIES 204
#define ID_EDIT_SELECT_SIMILAR 208
#define ID_STYLE_NEW 205
#define ID_STYLE_PROPERTIES 206
#define ID_STYLE_APPLY 207
#define ID_VIEW_ZOOM_IN 210
#define ID_VIEW_ZOOM_OUT 211
#define ID_VIEW_FIT_ALL 212
#define ID_VIEW_FIT_SELECTION 213
#define ID_VIEW_DARK_BACKGROUND 214
#define ID_VIEW_LIGHT_BACKGROUND 215
#define ID_VIEW_LINE_WEIGHTS 216
#define ID_VIEW_PROPERTIES 217
#define ID_VIEW_SWITCH_PANE 218
#define ID_HELP_KEYS 220
#define ID_HELP_GUIDE 221
#define ID_VIEW_LAYERS 231
#define ID_FILE_WARNINGS 232
#define ID_VIEW_MARK_SYSTEM 233
#define ID_VIEW_MARK_POINT 234
#define ID_VIEW_MARK_COMMA 235

// Submenus created when they open: the first and the last command of each.
#define ID_SELECT_KIND_FIRST 400
#define ID_SELECT_KIND_LAST 419
#define ID_FILE_RECENT_FIRST 420
#define ID_FILE_RECENT_LAST 427
#define ID_SELECT_LAYER_FIRST 1000
#define ID_SELECT_LAYER_LAST 1999

// Pages of the wizard that creates a style.
#define IDD_STYLE_NAME 300
#define IDD_STYLE_PARTS 301
#define IDD_STYLE_SUMMARY 302
#define IDC_STYLE_NAME_EDIT 310
#define IDC_STYLE_PARTS_PLACE 311
#define IDC_STYLE_PARTS 312
#define IDC_STYLE_SUMMARY 313

// The layers dialog. The check boxes of states have consecutive identifiers.
#define IDD_LAYERS 320
#define IDC_LAYER_LIST 321
#define IDC_LAYER_ON 322
#define IDC_LAYER_FROZEN 323
#define IDC_LAYER_LOCKED 324
#define IDC_LAYER_FIND 325

// The dialog of keys, in two columns.
#define IDD_KEYS 330
#define IDC_KEYS 331
#define IDC_MEANINGS 332

#define IDD_WARNINGS 340
#define IDC_WARNINGS 341
