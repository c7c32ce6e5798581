// Adapts the controls of a page to keyboard and screen readers, to the size of the page, and to the screen resolution,
// none of which old templates such as the library's own consider.
#pragma once

#include <windows.h>

#include <vector>

// children: the child windows of the page, recursively. Those of controls are left alone.
void FitControls(HWND page, const std::vector<HWND>& children);
