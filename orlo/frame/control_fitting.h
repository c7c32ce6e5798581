// Fits the controls of a page's template to what the template does not consider: use by keyboard and by ear, the size
// of the page, the resolution of the screen. For old templates such as the library's own.
#pragma once

#include <windows.h>

void FitControls(HWND page);
