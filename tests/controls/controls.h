// Identifiers of dialogs and controls, for sources and resource script.
#pragma once

#include "orlo/resources/control_ids.h"

// Every identifier that a template may use for a control, and two unknown ones.
#define IDD_FACTORY 100
// A combo box and a list box of each kind that draws its items.
#define IDD_DRAWN 101
// A page with a control created by its class, and a system combo box that a member subclasses.
#define IDD_PAGE 102

#define IDC_PLAIN_COMBO IDC_FONT_STYLE
#define IDC_PLAIN_LIST 200
#define IDC_TAKEN_OVER 201
