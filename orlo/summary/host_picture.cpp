// Implements the host's bitmap function for programs without a host. Only in the static library.

#include "orlo/host/dib_palette.h"
#include "orlo/host/picture.h"

uint16_t PaletteSize(const void* dib) {
    return orlo::host::PaletteSizeOf(dib);
}
