// Computes the brush scale at which a hatch is recognizable in a small sample.
#pragma once

#include "orlo/host/records.h"

// Returns the scale at which about `lines` lines of the style fall across width (drawing units), or 1.0 for a style
// without lines. The spacings of several line families are combined by frequency: 1 / sqrt(sum of 1 / spacing^2).
double HatchScale(TableStruct* styles, unsigned int style, double width, double lines);
