// Which object a control of a dialog template becomes, by its control identifier (control_ids.h). Internal
// to the library.
#pragma once

#include <afxwin.h>

// A new object that is attached to the window and goes with it. Null, and the window stays a plain control:
// the identifier is not one of the library's, the window has an object already, or memory runs out.
CWnd* CreateComboObject(HWND hWnd, int nID);
CWnd* CreateListObject(HWND hWnd, int nID);
