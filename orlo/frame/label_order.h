// Prepares the labels of a dialog for keyboard and screen readers, which name a field after the preceding text.
#pragma once

#include <vector>
#include <windows.h>

// Changes a dialog template in memory: removes the tab stops of labels, which accept no input, and moves labels
// directly before their fields. A field is a control without text that names it, such as an edit control, combo box or
// list box. Its label is the text beside or above it, else the surrounding group box. The order of the fields does not
// change. A truncated template stays unchanged.
void OrderLabels(std::vector<BYTE>& dialog);
