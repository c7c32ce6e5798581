// Creates the object of a control in a dialog template, by its control identifier (control_ids.h). Internal to the
// library.
#pragma once

#include <afxwin.h>

// Creates an object that is attached to the window and deleted with it. Returns null, leaving a plain control, if the
// identifier is unknown, the window already has an object, or memory runs out.
CWnd* CreateComboObject(HWND hWnd, int nID);
CWnd* CreateListObject(HWND hWnd, int nID);
