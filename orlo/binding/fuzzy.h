// Three-way comparison of numbers by buckets, and the eight-digit hexadecimal key of control items.
//
//   double a = 1.0, b = 1.000007;
//   CompareDoubles(&a, &b) == 0     // one bucket: what a text field shows as the same number
//   double c = 1.00001;
//   CompareDoubles(&a, &c) == -1    // another bucket, although the distance is only a little larger
//
// Two numbers are equal when they agree in sign, exponent and the top 16 bits of the fraction after rounding. This is a
// quantisation, not a distance: equality is transitive, and close neighbors on either side of a bucket's edge differ.
#pragma once

#include "orlo/export.h"

// -1, 0 or 1: the order of the buckets of *a and *b. Never touches a floating-point register, so NaNs raise nothing.
ORLO_API int CompareDoubles(const double* a, const double* b);
ORLO_API int CompareFloats(const float* a, const float* b);

// Writes value as eight upper-case hexadecimal digits and a NUL: nine bytes.
ORLO_API void DWord_to_Hex(unsigned long value, char* out);
