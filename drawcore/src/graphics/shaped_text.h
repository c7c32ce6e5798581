// Rows of text whose letters do not simply follow each other: written from right to left, joined or stacked. The
// system's shaping engine chooses their glyphs and puts them in the order in which they are seen.
#pragma once

#include <string_view>
#include <vector>

#include <windows.h>

#include <usp10.h>

namespace drawcore {

// A piece of a row in one direction and script. Lengths are units of the font.
struct ShapedRun {
    SCRIPT_ANALYSIS analysis;
    std::vector<WORD> glyphs;
    std::vector<int> advances;
    std::vector<GOFFSET> offsets;
    int left = 0; // from the row's left end
    int width = 0;
};

// From left to right as seen. Empty for a row that needs no shaping, and for one whose letters the font of the device
// context lacks. cache belongs to that font.
std::vector<ShapedRun> ShapeRow(HDC dc, SCRIPT_CACHE& cache, std::wstring_view row);

// left, baseline: logical coordinates of the device context, whose font is the one that the row was shaped for.
void DrawShapedRow(HDC dc, SCRIPT_CACHE& cache, const std::vector<ShapedRun>& row, int left, int baseline);

} // namespace drawcore
