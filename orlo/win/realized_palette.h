// Guard that realizes a palette in a device context.
#pragma once

#include <windows.h>

// Selects and realizes a palette as a foreground palette. The destructor selects the previous one as a background
// palette. Does nothing if the palette is null.
class RealizedPalette {
public:
    RealizedPalette(HDC dc, HPALETTE palette);
    ~RealizedPalette();
    RealizedPalette(const RealizedPalette&) = delete;
    RealizedPalette& operator=(const RealizedPalette&) = delete;

private:
    HDC dc_;
    HPALETTE previous_;
};
