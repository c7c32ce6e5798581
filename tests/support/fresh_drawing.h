// Compares what the screen shows of a window with a fresh drawing of it: whatever was moved, copied or drawn in part
// must look as if it had just been drawn.
//
//   user.ClickSheetButton(kNext);
//   EXPECT_EQ(StalePart(user.Sheet()), "");
#pragma once

#include <windows.h>

#include <string>

// Returns where the two differ: in which child, and in which rectangle (pixels of the window); empty if nowhere. The
// window is visible, and its messages have been handled.
std::string StalePart(HWND window);
