// From a window to the sheet that it is in.
#pragma once

#include "orlo/frame/orlo_property_sheet.h"

// The library's sheet that the window is, or is in; null without one.
COrloPropertySheet* SheetAround(HWND window);
