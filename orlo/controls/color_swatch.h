// Drawing of a color as a swatch with its name, or of a marker as a framed label. Knows no control.
#pragma once

#include <windows.h>

// Where and how.
struct SwatchPlace {
    HDC dc;
    RECT rect;           // device pixels
    bool inField;        // the closed field of a combo, whose border the swatch covers
    bool disabled;       // a label in a frame of its color
    COLORREF ink, paper; // of labels, and of their background
    HFONT font;          // written in bold; null: the font of dc
};

// A color is a plain one, or a marker (high byte not 0), which shows its name in a frame, and nothing if
// that is empty.
void DrawSwatch(const SwatchPlace& place, DWORD color, const char* name);
