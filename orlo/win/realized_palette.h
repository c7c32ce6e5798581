// An application's palette in a device context, for as long as an object lives.
#pragma once

#include <windows.h>

// The palette is realized in the foreground, the one before it goes back to the background. Null does nothing.
class RealizedPalette {
public:
    RealizedPalette(HDC dc, HPALETTE palette);
    ~RealizedPalette();
    RealizedPalette(const RealizedPalette&) = delete;
    RealizedPalette& operator=(const RealizedPalette&) = delete;

private:
    HDC dc_;
    HPALETTE before_;
};
