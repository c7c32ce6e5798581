// Builds bitmaps and metafiles, field by field.

#include "picture_bytes.h"

#include <cstdlib>
#include <utility>

void AppendWords(ByteVector& bytes, const std::vector<uint16_t>& words) {
    for (const uint16_t word : words)
        bytes.insert(bytes.end(), {static_cast<uint8_t>(word), static_cast<uint8_t>(word >> 8)});
}

void AppendLong(ByteVector& bytes, uint32_t value) {
    AppendWords(bytes, {static_cast<uint16_t>(value), static_cast<uint16_t>(value >> 16)});
}

ByteVector DibBytes::Build() const {
    ByteVector bytes;
    for (const uint32_t field : {headerSize, static_cast<uint32_t>(width), static_cast<uint32_t>(height)})
        AppendLong(bytes, field);
    AppendWords(bytes, {planes, bitsPerPixel});
    for (const uint32_t field : {compression, imageBytes, 0u, 0u, colorsUsed, 0u})
        AppendLong(bytes, field);
    for (const uint32_t color : table)
        AppendLong(bytes, color);
    bytes.insert(bytes.end(), pixels.begin(), pixels.end());
    return bytes;
}

DibBytes Dib(int32_t width, int32_t height, uint16_t bits) {
    DibBytes dib;
    dib.width = width;
    dib.height = height;
    dib.bitsPerPixel = bits;
    return dib;
}

DibBytes& DibBytes::RunLength(ByteVector codes) {
    compression = bitsPerPixel == 8 ? 1 : 2;
    table.resize(size_t{1} << bitsPerPixel);
    imageBytes = static_cast<uint32_t>(codes.size());
    pixels = std::move(codes);
    return *this;
}

DibBytes& DibBytes::Masked() {
    compression = 3;
    table = {0xF800, 0x07E0, 0x001F};
    return Fill(0);
}

DibBytes& DibBytes::Fill(uint8_t value) {
    const int stride = (width * bitsPerPixel + 31) / 32 * 4;
    pixels.assign(static_cast<size_t>(stride) * static_cast<size_t>(std::abs(height)), value);
    return *this;
}

MetaFileBytes& MetaFileBytes::Objects(uint16_t count) {
    objects_ = count;
    return *this;
}

MetaFileBytes& MetaFileBytes::Version(uint16_t version) {
    version_ = version;
    return *this;
}

MetaFileBytes& MetaFileBytes::Record(uint16_t function, std::initializer_list<uint16_t> parameters) {
    return Record(function, std::vector<uint16_t>(parameters));
}

MetaFileBytes& MetaFileBytes::Record(uint16_t function, const std::vector<uint16_t>& parameters) {
    AppendLong(records_, static_cast<uint32_t>(3 + parameters.size()));
    AppendWords(records_, {function});
    AppendWords(records_, parameters);
    return *this;
}

MetaFileBytes& MetaFileBytes::Raw(std::initializer_list<uint16_t> words) {
    AppendWords(records_, words);
    return *this;
}

MetaFileBytes& MetaFileBytes::FilledRectangle(uint32_t color, int16_t left, int16_t top, int16_t width,
                                              int16_t height) {
    const auto low = static_cast<uint16_t>(color);
    const auto high = static_cast<uint16_t>(color >> 16);
    const auto word = [](int16_t value) { return static_cast<uint16_t>(value); };
    Record(0x020B, {0, 0});                           // window origin
    Record(0x020C, {word(yExtent_), word(xExtent_)}); // window extent
    Record(0x02FC, {0, low, high, 0});                // solid brush
    Record(0x012D, {0});
    return Record(0x061D, {0x0021, 0x00F0, word(height), word(width), word(top), word(left)});
}

ByteVector MetaFileBytes::Under(const std::vector<uint16_t>& head) const {
    const auto words = static_cast<uint32_t>(9 + records_.size() / 2 + 3);
    ByteVector bytes;
    AppendWords(bytes, head);
    AppendWords(bytes, {1, 9, version_});
    AppendLong(bytes, words);
    AppendWords(bytes, {objects_, 0, 0, 0}); // the size of the largest record is left 0
    bytes.insert(bytes.end(), records_.begin(), records_.end());
    AppendWords(bytes, {3, 0, 0});
    return bytes;
}

ByteVector MetaFileBytes::Build() const {
    return Under({8, static_cast<uint16_t>(xExtent_), static_cast<uint16_t>(yExtent_), 0});
}

ByteVector MetaFileBytes::BuildWide() const {
    return Under({8, 0, static_cast<uint16_t>(xExtent_), 0, static_cast<uint16_t>(yExtent_), 0, 0, 0});
}

std::vector<uint16_t> Words(std::initializer_list<uint16_t> head, const ByteVector& tail) {
    std::vector<uint16_t> words(head);
    for (size_t i = 0; i + 1 < tail.size(); i += 2)
        words.push_back(static_cast<uint16_t>(tail[i] | tail[i + 1] << 8));
    return words;
}
