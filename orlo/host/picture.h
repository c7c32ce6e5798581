// Pictures in memory.
#pragma once

#include <stdint.h>

#include "orlo/host/api.h"

// The bytes between the header of a device-independent bitmap and its pixels: colour masks and colour table.
// Only the header is read; 0 for a header of a size other than the published ones, or a table whose size
// does not fit 16 bits.
DRAWCORE_API uint16_t PaletteSize(const void* dib);
