// Checks header, color table and run-length data before reading them.

#include "orlo/summary/dib_layout.h"

#include <algorithm>
#include <iterator>

#include "orlo/propset/bytes.h"
#include "orlo/summary/run_length.h"

namespace orlo {
namespace {

constexpr uint32_t kCoreHeader = 12;
constexpr uint32_t kInfoHeader = 40;
// Sizes of headers with masks, with an alpha mask, of version 4 and of version 5.
constexpr uint32_t kLaterHeaders[] = {52, 56, 108, 124};

constexpr size_t kMaskBytes = 12;
constexpr uint32_t kMaxColors = 256;
// Limit needed because a few bytes of run-length data can describe any number of pixels, and the system allocates
// memory for each.
constexpr uint64_t kMaxRunLengthPixels = 1u << 24;

struct Header {
    DibLayout layout;
    uint32_t colorsUsed = 0;
    uint32_t imageBytes = 0;
};

std::optional<Header> ReadCoreHeader(const uint8_t* data) {
    Header header;
    header.layout.headerSize = kCoreHeader;
    header.layout.width = LittleEndian<uint16_t>(data + 4);
    header.layout.height = LittleEndian<uint16_t>(data + 6);
    if (LittleEndian<uint16_t>(data + 8) != 1) return std::nullopt;
    header.layout.bitsPerPixel = LittleEndian<uint16_t>(data + 10);
    return header;
}

std::optional<Header> ReadInfoHeader(const uint8_t* data, uint32_t headerSize) {
    Header header;
    header.layout.headerSize = headerSize;
    header.layout.width = LittleEndian<int32_t>(data + 4);
    const auto height = LittleEndian<int32_t>(data + 8);
    if (height == INT32_MIN) return std::nullopt;
    header.layout.topDown = height < 0;
    header.layout.height = height < 0 ? -height : height;
    if (LittleEndian<uint16_t>(data + 12) != 1) return std::nullopt;
    header.layout.bitsPerPixel = LittleEndian<uint16_t>(data + 14);
    header.layout.compression = LittleEndian<uint32_t>(data + 16);
    header.imageBytes = LittleEndian<uint32_t>(data + 20);
    header.colorsUsed = LittleEndian<uint32_t>(data + 32);
    return header;
}

std::optional<Header> ReadHeader(const uint8_t* data, size_t size) {
    if (size < kCoreHeader) return std::nullopt;
    const auto headerSize = LittleEndian<uint32_t>(data);
    if (headerSize == kCoreHeader) return ReadCoreHeader(data);
    const bool known =
        headerSize == kInfoHeader || std::count(std::begin(kLaterHeaders), std::end(kLaterHeaders), headerSize) != 0;
    if (!known || size < headerSize) return std::nullopt;
    return ReadInfoHeader(data, headerSize);
}

bool CompressionFits(const DibLayout& layout) {
    const uint16_t bits = layout.bitsPerPixel;
    switch (layout.compression) {
    case kDibUncompressed:
        return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
    case kDibRunLength8:
        return bits == 8 && !layout.topDown;
    case kDibRunLength4:
        return bits == 4 && !layout.topDown;
    case kDibBitFields:
        return bits == 16 || bits == 32;
    default:
        return false; // embedded files of other formats are meant for printers only
    }
}

// Returns the number of bytes between header and pixels, or nothing if the table is larger than any picture needs.
std::optional<size_t> TableBytes(const Header& header, DibColors colors) {
    const DibLayout& layout = header.layout;
    const uint32_t nameable = layout.bitsPerPixel <= 8 ? 1u << layout.bitsPerPixel : kMaxColors;
    if (header.colorsUsed > nameable) return std::nullopt;
    uint32_t count = header.colorsUsed;
    if (count == 0 && layout.bitsPerPixel <= 8) count = nameable;
    size_t each = colors == DibColors::PaletteIndices ? 2 : 4;
    if (layout.headerSize == kCoreHeader && colors == DibColors::Rgb) each = 3;
    const bool masks = layout.compression == kDibBitFields && layout.headerSize == kInfoHeader;
    return count * each + (masks ? kMaskBytes : 0);
}

bool RunLengthPasses(const uint8_t* pixels, size_t left, uint32_t imageBytes, const DibLayout& layout) {
    if (imageBytes == 0 || imageBytes > left) return false;
    const uint64_t area = static_cast<uint64_t>(layout.width) * static_cast<uint64_t>(layout.height);
    const auto skip = [](const RunOfPixels&) {};
    return area <= kMaxRunLengthPixels && WalkRunLength(pixels, imageBytes, layout, skip);
}

} // namespace

std::optional<DibLayout> ReadDibLayout(const uint8_t* data, size_t size, DibColors colors, uint32_t maxLines) {
    const auto header = ReadHeader(data, size);
    if (!header) return std::nullopt;
    DibLayout layout = header->layout;
    if (layout.width <= 0 || layout.height <= 0 || !CompressionFits(layout)) return std::nullopt;

    const auto table = TableBytes(*header, colors);
    if (!table || *table > size - layout.headerSize) return std::nullopt;
    layout.pixelOffset = layout.headerSize + *table;
    const size_t left = size - layout.pixelOffset;

    if (layout.compression == kDibRunLength8 || layout.compression == kDibRunLength4) {
        if (!RunLengthPasses(data + layout.pixelOffset, left, header->imageBytes, layout)) return std::nullopt;
        layout.pixelBytes = header->imageBytes;
        return layout;
    }
    const uint64_t stride = (static_cast<uint64_t>(layout.width) * layout.bitsPerPixel + 31) / 32 * 4;
    const uint64_t lines = std::min(static_cast<uint32_t>(layout.height), maxLines);
    if (stride * lines > left) return std::nullopt;
    layout.pixelBytes = static_cast<size_t>(stride * lines);
    return layout;
}

} // namespace orlo
