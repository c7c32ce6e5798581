// Pictures in memory.
#pragma once

#include <stdint.h>

#include "orlo/host/api.h"

// The bytes between the header of a device-independent bitmap and its pixels: colour masks and colour table.
// Only the header is read; 0 for a header of another size than the published ones, or a table that no 16-bit
// number can size.
DRAWCORE_API uint16_t PaletteSize(const void* dib);
