// Adapts the widths of a page's controls to the page and to the screen resolution, which old templates such as the
// library's own do not consider.
#pragma once

#include <windows.h>

#include <vector>

// children: the child windows of the page, recursively. Those of controls are left alone.
void FitControls(HWND page, const std::vector<HWND>& children);
