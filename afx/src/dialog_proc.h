// The dialog procedure of all windows that are made from a template: it leaves everything to the object's
// message map.
#pragma once

#include <afx.h>

INT_PTR CALLBACK AfxDialogProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
