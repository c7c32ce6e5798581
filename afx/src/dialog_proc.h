// The dialog procedure of all windows that are created from a template. Messages are handled by the object's message
// map.
#pragma once

#include <afx.h>

INT_PTR CALLBACK AfxDialogProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
