// The size of a bitmap's color table.

#include "orlo/host/dib_palette.h"
#include "orlo/host/picture.h"

uint16_t PaletteSize(const void* dib) {
    return orlo::host::PaletteSizeOf(dib);
}
