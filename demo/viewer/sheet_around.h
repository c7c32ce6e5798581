// Finds the sheet that contains a window.
#pragma once

#include "orlo/frame/orlo_property_sheet.h"

// Returns the library's sheet that contains the window, the window's own object if it is such a sheet, or null.
COrloPropertySheet* SheetAround(HWND window);
