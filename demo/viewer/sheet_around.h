// Finds the sheet that contains a window.
#pragma once

#include "orlo/frame/orlo_property_sheet.h"

// Returns the library's sheet that the window is or is in, or null.
COrloPropertySheet* SheetAround(HWND window);
