// Locates the parts of a device-independent bitmap in memory and checks them against its size. Needs no window header.
//
//   auto layout = ReadDibLayout(data, size, DibColors::Rgb);
//   if (layout) ... data + layout->pixelOffset has layout->pixelBytes bytes, all inside size
//   // returns nothing if the header declares more than size
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace orlo {

// The entries of the color table: colors of 4 bytes (3 after a 12-byte header), or 16-bit palette indices.
enum class DibColors { Rgb, PaletteIndices };

// Compression methods.
constexpr uint32_t kDibUncompressed = 0;
constexpr uint32_t kDibRunLength8 = 1;
constexpr uint32_t kDibRunLength4 = 2;
constexpr uint32_t kDibBitFields = 3; // not compressed: colors are located by masks

struct DibLayout {
    int32_t width = 0;  // in pixels
    int32_t height = 0; // in pixels, never negative
    bool topDown = false;
    uint16_t bitsPerPixel = 0;
    uint32_t headerSize = 0; // in bytes
    uint32_t compression = kDibUncompressed;
    size_t pixelOffset = 0; // size of header, color masks and color table in bytes
    size_t pixelBytes = 0;  // number of bytes that drawing reads there
};

// Returns the layout of the bitmap at data, of which size bytes may be read. Returns nothing if the header is invalid,
// the color table is larger than pixels can index, pixels are missing, or run-length data exceeds the picture or the
// block. With maxLines, only the first maxLines lines in memory must be present.
std::optional<DibLayout> ReadDibLayout(const uint8_t* data, size_t size, DibColors colors,
                                       uint32_t maxLines = UINT32_MAX);

} // namespace orlo
