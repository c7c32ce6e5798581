// Conversion of sizes from 96 dpi to the resolution of the screen.
#pragma once

// Converts a size in pixels at 96 dpi to pixels of the screen, rounded.
int ScreenPixels(int at96);
