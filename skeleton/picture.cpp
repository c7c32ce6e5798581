// Bitmaps in memory: the size of the data between header and pixels.

#include <algorithm>
#include <cstring>
#include <iterator>

#include "database.h"

uint16_t PaletteSize(const void* dib) {
    constexpr DWORD kPublishedSizes[] = {40, 52, 56, 108, 124};
    BITMAPINFOHEADER header = {};
    std::memcpy(&header.biSize, dib, sizeof header.biSize);
    if (std::find(std::begin(kPublishedSizes), std::end(kPublishedSizes), header.biSize) == std::end(kPublishedSizes))
        return 0;
    std::memcpy(&header, dib, sizeof header);
    uint64_t colors = header.biClrUsed;
    if (colors == 0 && header.biBitCount <= 8) colors = uint64_t{1} << header.biBitCount;
    const bool masks = header.biSize == sizeof header && header.biCompression == BI_BITFIELDS;
    const uint64_t size = colors * sizeof(RGBQUAD) + (masks ? 3 * sizeof(DWORD) : 0);
    return size <= UINT16_MAX ? static_cast<uint16_t>(size) : uint16_t{0};
}
