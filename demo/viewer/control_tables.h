// The host's side of the control protocol: fills each control of the library with its table when the control notifies
// the main window.
#pragma once

#include <afxwin.h>

#include "demo/viewer/document.h"

// Handles the notification of a control. Returns false if it is another notification or no drawing is open.
bool FillStyleControl(WPARAM wParam, LPARAM lParam, const Document* document);
