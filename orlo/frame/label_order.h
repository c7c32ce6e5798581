// Labels directly before their fields, for those who read a page to the user: a field has the name of the text before
// it.
#pragma once

#include <windows.h>

#include <vector>

// The controls are those of the page, in their order. A field is a control with no text of its own to be known by: an
// edit, a combo, a list. Its label is the text beside or above it, else the group box around it. The order of the
// fields stays as it is.
void PutLabelsBeforeFields(HWND page, std::vector<HWND> controls);
