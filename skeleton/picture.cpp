// Bitmaps in memory: what lies between header and pixels.

#include <cstring>

#include "database.h"

uint16_t PaletteSize(const void* dib) {
    BITMAPINFOHEADER header = {};
    if (!dib) return 0;
    std::memcpy(&header.biSize, dib, sizeof header.biSize);
    if (header.biSize == sizeof(BITMAPCOREHEADER)) {
        BITMAPCOREHEADER core;
        std::memcpy(&core, dib, sizeof core);
        return core.bcBitCount <= 8 ? static_cast<uint16_t>(sizeof(RGBTRIPLE) << core.bcBitCount) : 0;
    }
    if (header.biSize != sizeof header && header.biSize != sizeof(BITMAPV4HEADER) &&
        header.biSize != sizeof(BITMAPV5HEADER))
        return 0;
    std::memcpy(&header, dib, sizeof header);
    uint64_t colors = header.biClrUsed;
    if (colors == 0 && header.biBitCount <= 8) colors = uint64_t{1} << header.biBitCount;
    const bool masks = header.biSize == sizeof header && header.biCompression == BI_BITFIELDS;
    const uint64_t size = colors * sizeof(RGBQUAD) + (masks ? 3 * sizeof(DWORD) : 0);
    return size <= UINT16_MAX ? static_cast<uint16_t>(size) : 0;
}
