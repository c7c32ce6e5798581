// The sort order of colors in a list, and the conversions between RGB and HSV. Draws nothing.
//
// Hue, value and saturation lie between 0 and 1. Grays have hue 0; pure red has hue 1, so that the grays come
// first and the reds last:
//
//   CompareHSVforRGBs(RGB(255, 255, 255), RGB(0, 0, 10)) == -1    // any gray comes before any blue
//   CompareHSVforRGBs(RGB(255, 0, 0), RGB(255, 0, 255)) == 1      // red after magenta
//
// Colors have red in the low byte. Values with a non-zero high byte are markers; they count as black, and
// among black and the markers the number decides.
#pragma once

#include <windows.h>

#include "orlo/export.h"

ORLO_API void RGB_to_HSV(double r, double g, double b, double* h, double* s, double* v);
ORLO_API void HSV_to_RGB(double h, double s, double v, double* r, double* g, double* b);

// -1, 0 or 1: the order of the two colors. Equal only if the values are equal.
ORLO_API int CompareHSVforRGBs(DWORD dwColor1, DWORD dwColor2);

// What CompareHSVforRGBs compares, worked out once for many comparisons.
struct ColorKey {
    explicit ColorKey(DWORD color);

    DWORD raw;
    DWORD reduced; // 0 for a marker
    double hue, saturation, value;
};

int CompareColorKeys(const ColorKey& a, const ColorKey& b);
