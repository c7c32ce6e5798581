// The brush scale at which a hatch can be recognized in a small sample.
#pragma once

#include "orlo/host/records.h"

// The scale at which about that many lines of the style fall across width (drawing units). The spacings of several
// families of lines combine as their frequencies do: 1 / sqrt(sum of 1 / spacing^2). 1.0 for a style without lines.
double HatchScale(TableStruct* styles, unsigned int style, double width, double lines);
