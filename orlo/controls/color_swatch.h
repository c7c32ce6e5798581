// Drawing of a colour as a swatch with its name, or of a marker as a framed label. Knows no control.
#pragma once

#include <windows.h>

// Where and how; the colours are fixed, since a swatch has to look the same under every colour scheme.
struct SwatchPlace {
    HDC dc;
    RECT rect;    // device pixels
    bool inField; // the closed field of a combo, whose border the swatch covers
    HFONT font;   // written in bold; null: the font of dc
};

// A colour is a plain one, or a marker (high byte not 0), which shows its name in a frame, and nothing if
// that is empty.
void DrawSwatch(const SwatchPlace& place, DWORD color, const char* name);
