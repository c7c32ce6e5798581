// An implementation of PaletteSize (picture.h) that databases can use. Header only.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace orlo::host {

namespace dib {

// The documented header (BITMAPINFOHEADER) in its memory layout.
struct InfoHeader {
    uint32_t size;
    int32_t width, height;
    uint16_t planes, bitsPerPixel;
    uint32_t compression, imageBytes;
    int32_t xPerMeter, yPerMeter;
    uint32_t colorsUsed, colorsImportant;
};
static_assert(sizeof(InfoHeader) == 40, "the header is copied byte for byte");

inline constexpr uint32_t kPublishedSizes[] = {40, 52, 56, 108, 124};
inline constexpr uint32_t kBitFields = 3;
inline constexpr uint64_t kMaskBytes = 12; // three masks, which follow a header that has no fields for them
inline constexpr uint64_t kColorBytes = 4;

inline uint64_t Colors(const InfoHeader& header) {
    if (header.colorsUsed != 0) return header.colorsUsed;
    return header.bitsPerPixel <= 8 ? uint64_t{1} << header.bitsPerPixel : 0;
}

} // namespace dib

// Returns the result of PaletteSize.
inline uint16_t PaletteSizeOf(const void* bitmap) {
    using namespace dib;
    uint32_t size;
    std::memcpy(&size, bitmap, sizeof size);
    if (std::find(std::begin(kPublishedSizes), std::end(kPublishedSizes), size) == std::end(kPublishedSizes)) return 0;
    InfoHeader header;
    std::memcpy(&header, bitmap, sizeof header);
    const bool masks = header.compression == kBitFields && size == sizeof(InfoHeader);
    const uint64_t bytes = Colors(header) * kColorBytes + (masks ? kMaskBytes : 0);
    return bytes <= UINT16_MAX ? static_cast<uint16_t>(bytes) : uint16_t{0};
}

} // namespace orlo::host
