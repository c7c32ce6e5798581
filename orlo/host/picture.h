// Bitmaps in memory.
#pragma once

#include <stdint.h>

#include "orlo/host/api.h"

// Returns the number of bytes between the header of a device-independent bitmap and its pixels: color masks and color
// table. Only the header is read. Returns 0 if the header size is not one of the documented ones or the result does not
// fit into 16 bits.
// Called: when thumbnails of summaries are read or written.
// Stub: return 0. Lost: thumbnails with a palette.
DRAWCORE_API uint16_t PaletteSize(const void* dib);
