// Where the parts of a device-independent bitmap lie in memory, checked against the bytes that are there.
// Draws nothing and needs no window header.
//
//   auto layout = ReadDibLayout(data, size, DibColors::Rgb);
//   if (layout) ... data + layout->pixelOffset has layout->pixelBytes bytes, all inside size
//   a header that promises more than size holds gives no layout
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace orlo {

// What the color table holds: colors of 4 bytes (3 under a 12-byte header), or 16-bit indices into a
// palette.
enum class DibColors { Rgb, PaletteIndices };

// Compressions.
constexpr uint32_t kDibUncompressed = 0;
constexpr uint32_t kDibRunLength8 = 1;
constexpr uint32_t kDibRunLength4 = 2;
constexpr uint32_t kDibBitFields = 3; // not compressed: colors are where masks say

struct DibLayout {
    int32_t width = 0;  // pixels
    int32_t height = 0; // pixels, never negative
    bool topDown = false;
    uint16_t bitsPerPixel = 0;
    uint32_t headerSize = 0; // bytes
    uint32_t compression = kDibUncompressed;
    size_t pixelOffset = 0; // bytes from the header: header, color masks and color table
    size_t pixelBytes = 0;  // what drawing reads from there
};

// The layout of the bitmap at data, of which size bytes may be read. Nothing comes back for a header that
// isn't one, a color table larger than the pixels can name, pixels that aren't all there, and run-length
// data that leaves the picture or the block. With maxLines, only that many of the first lines in memory need
// be there.
std::optional<DibLayout> ReadDibLayout(const uint8_t* data, size_t size, DibColors colors,
                                       uint32_t maxLines = UINT32_MAX);

} // namespace orlo
