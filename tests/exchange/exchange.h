// Identifiers of dialogs and controls, for sources and resource script.
#pragma once

#include "orlo/resources/resource.h"

#define IDD_EXCHANGE 100
#define IDS_LINES 101
// The font controls, with the identifiers that they have on a page.
#define IDD_FONTS 102

#define IDC_EDIT 1001
#define IDC_DISABLED_EDIT 1002
#define IDC_THREE_STATE 1003
#define IDC_RADIO_FIRST 1004
#define IDC_RADIO_LABEL 1005
#define IDC_RADIO_SECOND 1006
#define IDC_RADIO_THIRD 1007
#define IDC_BEHIND_RADIOS 1008
#define IDC_LIST 1009
#define IDC_COMBO 1010
#define IDC_DROP_LIST 1011
#define IDC_SCROLL 1012
#define IDC_SORTED_COMBO 1013
