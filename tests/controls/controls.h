// Controls of the dialogs of these tests, for the sources and the resource script.
#pragma once

#include "orlo/resources/control_ids.h"

// Every identifier that a template may give a control, and two that are nobody's.
#define IDD_FACTORY 100
// One combo and one list of each kind that is drawn.
#define IDD_DRAWN 101
// A page with a control by its class, and a combo of the system that a member takes over.
#define IDD_PAGE 102

#define IDC_PLAIN_COMBO IDC_FONT_STYLE
#define IDC_PLAIN_LIST 200
#define IDC_TAKEN_OVER 201
