// Rows of text with complex scripts: written from right to left, joined or stacked. The system's shaping engine
// determines their glyphs and visual order.
#pragma once

#include <string_view>
#include <vector>

#include <windows.h>

#include <usp10.h>

namespace drawcore {

// A run of text with one direction and script. Lengths are in font units.
struct ShapedRun {
    SCRIPT_ANALYSIS analysis;
    std::vector<WORD> glyphs;
    std::vector<int> advances;
    std::vector<GOFFSET> offsets;
    int left = 0; // from the left end of the row
    int width = 0;
};

// Returns the runs in visual order from left to right. Empty if the row needs no shaping, or if the font in the device
// context lacks its letters. cache belongs to that font.
std::vector<ShapedRun> ShapeRow(HDC dc, SCRIPT_CACHE& cache, std::wstring_view row);

// left, baseline: logical coordinates of the device context, with the same font.
void DrawShapedRow(HDC dc, SCRIPT_CACHE& cache, const std::vector<ShapedRun>& row, int left, int baseline);

} // namespace drawcore
