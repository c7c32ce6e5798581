// Draws a color as a swatch with its name, or a marker as a framed label. Independent of any control.
#pragma once

#include <windows.h>

// Where a swatch is drawn, and in which state.
struct SwatchPlace {
    HDC dc;
    RECT rect;                      // device pixels
    bool inField;                   // the closed field of a combo box; the swatch covers its border
    bool disabled;                  // draw a label in a frame of the color
    COLORREF textColor, background; // colors of labels and their background
    HFONT font;                     // drawn in bold; null to use the font of dc
};

// Draws a plain color, or for a marker (nonzero high byte) its name in a frame; nothing if the name is empty.
void DrawSwatch(const SwatchPlace& place, DWORD color, const char* name);
