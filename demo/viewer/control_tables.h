// The host's half of the talk with the library's style controls: a control that has come to life asks the main window
// for its table, and gets it.
#pragma once

#include <afxwin.h>

#include "demo/viewer/document.h"

// Answers the notification of a control. False: it was none that asks for a table, or nothing is open.
bool FillStyleControl(WPARAM wParam, LPARAM lParam, const Document* document);
