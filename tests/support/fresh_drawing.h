// Compares the screen contents of a window with a fresh drawing of it, to find parts that were not redrawn after
// moving, copying or partial drawing.
//
//   user.ClickSheetButton(kNext);
//   EXPECT_EQ(StalePart(user.Sheet()), "");
#pragma once

#include <windows.h>

#include <string>

// Returns the child window and the rectangle (in pixels of the window) where the two differ, or an empty string. The
// window must be visible and its messages handled.
std::string StalePart(HWND window);
