// Tests and controls of values in which the selected graphics differ.
#pragma once

#include <afxwin.h>

// What a text field shows for a value that differs; text that reads so means no value.
constexpr char kMixedText[] = "Indeterminate";

// Whether the number stands for a mixed selection, as far as a text field tells numbers apart.
bool IsMixed(double value);

// What a three-state box gives the preview. The box comes up mixed, leaves that state at the first click, and never comes
// back to it: a box that the user has clicked into the mixed state (bAll 0) is set to the opposite of last, its last
// definite state, which the call keeps.
int CheckForPreview(CDataExchange* pDX, int nID, int bAll, int& last);
