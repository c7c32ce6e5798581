// How the controls of a page bring their values to its preview.
#pragma once

#include <afxwin.h>

// What a three-state box gives the preview. The box comes up indeterminate, leaves that state at the first click, and never
// returns to it: a box that the user has clicked into that state (bAll 0) is set to the opposite of last, its last definite
// state, which the call keeps.
int CheckForPreview(CDataExchange* pDX, int nID, int bAll, int& last);
