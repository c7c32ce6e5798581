// Guard that realizes a palette in a device context.

#include "orlo/win/realized_palette.h"

RealizedPalette::RealizedPalette(HDC dc, HPALETTE palette)
    : dc_(dc), previous_(palette ? ::SelectPalette(dc, palette, FALSE) : nullptr) {
    if (previous_) ::RealizePalette(dc);
}

RealizedPalette::~RealizedPalette() {
    if (!previous_) return;
    ::SelectPalette(dc_, previous_, TRUE);
    ::RealizePalette(dc_);
}
