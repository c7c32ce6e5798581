// Fits the controls of a page's template to what the template does not know: the keyboard's ways, the page's own size, the
// resolution of the screen. For templates that were made before all that, as the library's own.
#pragma once

#include <windows.h>

void FitControls(HWND page);
