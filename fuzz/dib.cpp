// Bitmaps: an accepted bitmap has all its parts inside the block, and is drawn.

#include <cstdint>

#include "orlo/summary/dib_drawing.h"
#include "orlo/summary/dib_layout.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    for (const orlo::DibColors colors : {orlo::DibColors::Rgb, orlo::DibColors::PaletteIndices}) {
        const auto layout = orlo::ReadDibLayout(data, size, colors);
        if (!layout) continue;
        if (layout->width <= 0 || layout->height <= 0) __builtin_trap();
        if (layout->headerSize > layout->pixelOffset || layout->pixelOffset > size) __builtin_trap();
        if (layout->pixelBytes > size - layout->pixelOffset) __builtin_trap();
    }
    // The value of a thumbnail begins with tag and format.
    constexpr size_t kHead = 8;
    if (size > kHead) {
        orlo::ReadDibLayout(data + kHead, size - kHead, orlo::DibColors::Rgb, 3);
        orlo::DrawDibFitted(data + kHead, size - kHead, 7, 5);
    }
    return 0;
}
