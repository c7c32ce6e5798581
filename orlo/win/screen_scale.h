// Sizes that are meant for 96 dots per inch, on the current screen.
#pragma once

// Device pixels of the screen for a size in pixels at 96 dpi, rounded; the same number at 96 dpi.
int ScreenPixels(int at96);
