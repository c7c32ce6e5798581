// An application's palette in a device context.

#include "orlo/win/realized_palette.h"

RealizedPalette::RealizedPalette(HDC dc, HPALETTE palette)
    : dc_(dc), before_(palette ? ::SelectPalette(dc, palette, FALSE) : nullptr) {
    if (before_) ::RealizePalette(dc);
}

RealizedPalette::~RealizedPalette() {
    if (!before_) return;
    ::SelectPalette(dc_, before_, TRUE);
    ::RealizePalette(dc_);
}
