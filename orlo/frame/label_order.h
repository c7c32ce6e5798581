// Orders labels directly before their fields for screen readers, which name a field after the preceding text.
#pragma once

#include <windows.h>

#include <vector>

// Moves the labels among the page's controls, given in their order. A field is a control without text that names it: an
// edit control, combo box or list box. Its label is the text beside or above it, else the surrounding group box. The
// order of the fields does not change.
void PutLabelsBeforeFields(HWND page, std::vector<HWND> controls);
