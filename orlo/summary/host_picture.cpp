// The host's call for bitmaps, for programs that have no host: part of the static library only.

#include "orlo/host/dib_palette.h"
#include "orlo/host/picture.h"

uint16_t PaletteSize(const void* dib) {
    return orlo::host::PaletteSizeOf(dib);
}
