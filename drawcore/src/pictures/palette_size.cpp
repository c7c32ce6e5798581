// The size of a bitmap's colour table, from its header alone.

#include "orlo/host/picture.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

// The published header, as it lies in memory.
struct InfoHeader {
    uint32_t size;
    int32_t width, height;
    uint16_t planes, bitsPerPixel;
    uint32_t compression, imageBytes;
    int32_t xPerMeter, yPerMeter;
    uint32_t coloursUsed, coloursImportant;
};
static_assert(sizeof(InfoHeader) == 40, "the header is read as it stands");

constexpr uint32_t kPublishedSizes[] = {40, 52, 56, 108, 124};
constexpr uint32_t kBitFields = 3;
constexpr uint64_t kMaskBytes = 12; // three masks, outside of the header only where it has no room for them
constexpr uint64_t kColourBytes = 4;

uint64_t Colours(const InfoHeader& header) {
    if (header.coloursUsed != 0) return header.coloursUsed;
    return header.bitsPerPixel <= 8 ? uint64_t{1} << header.bitsPerPixel : 0;
}

} // namespace

uint16_t PaletteSize(const void* dib) {
    uint32_t size;
    std::memcpy(&size, dib, sizeof size);
    if (std::find(std::begin(kPublishedSizes), std::end(kPublishedSizes), size) == std::end(kPublishedSizes))
        return 0;
    InfoHeader header;
    std::memcpy(&header, dib, sizeof header);
    const bool masks = header.compression == kBitFields && size == sizeof(InfoHeader);
    const uint64_t bytes = Colours(header) * kColourBytes + (masks ? kMaskBytes : 0);
    return bytes <= UINT16_MAX ? static_cast<uint16_t>(bytes) : uint16_t{0};
}
