// Three-way comparison of numbers by buckets, and the eight-digit hexadecimal key of control items.
//
//   double a = 1.0, b = 1.000007;
//   CompareDoubles(&a, &b) == 0     // same bucket: a text field displays them as the same number
//   double c = 1.00001;
//   CompareDoubles(&a, &c) == -1    // different bucket, although only slightly further away
//
// Two numbers are equal if they agree in sign, exponent and the top 16 bits of the fraction after rounding. This is
// quantization rather than a tolerance: equality is transitive, and close neighbors on either side of a bucket boundary
// differ.
#pragma once

#include "orlo/export.h"

// Returns -1, 0 or 1: the order of the buckets of *a and *b. Uses no floating-point registers, so NaNs raise no
// exception.
ORLO_API int CompareDoubles(const double* a, const double* b);
ORLO_API int CompareFloats(const float* a, const float* b);

// Writes value as eight uppercase hexadecimal digits and a NUL: nine bytes.
ORLO_API void DWord_to_Hex(unsigned long value, char* out);
