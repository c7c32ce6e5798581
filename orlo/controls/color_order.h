// The sort order of colors in a list, and conversions between RGB and HSV.
//
// Hue, value and saturation are in the range 0 to 1. Grays have hue 0 and pure red has hue 1, so that grays sort first
// and reds last:
//
//   CompareHSVforRGBs(RGB(255, 255, 255), RGB(0, 0, 10)) == -1    // any gray sorts before any blue
//   CompareHSVforRGBs(RGB(255, 0, 0), RGB(255, 0, 255)) == 1      // red sorts after magenta
//
// Colors have red in the low byte. Values with a nonzero high byte are markers; they sort as black, and black and the
// markers sort by number.
#pragma once

#include <windows.h>

#include "orlo/export.h"

ORLO_API void RGB_to_HSV(double r, double g, double b, double* h, double* s, double* v);
ORLO_API void HSV_to_RGB(double h, double s, double v, double* r, double* g, double* b);

// Compares two colors in the sort order. Returns -1, 0 or 1; 0 only if the values are identical.
ORLO_API int CompareHSVforRGBs(DWORD dwColor1, DWORD dwColor2);

// The sort key of a color, computed once for many comparisons by CompareHSVforRGBs.
struct ColorKey {
    explicit ColorKey(DWORD color);

    DWORD raw;
    DWORD reduced; // 0 for a marker
    double hue, saturation, value;
};

int CompareColorKeys(const ColorKey& a, const ColorKey& b);
