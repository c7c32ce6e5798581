// Bytes of bitmaps and metafiles, field by field.

#include "picture_bytes.h"

#include <cstdlib>

void AppendWord(ByteVector& bytes, uint16_t value) {
    bytes.push_back(static_cast<uint8_t>(value));
    bytes.push_back(static_cast<uint8_t>(value >> 8));
}

void AppendLong(ByteVector& bytes, uint32_t value) {
    AppendWord(bytes, static_cast<uint16_t>(value));
    AppendWord(bytes, static_cast<uint16_t>(value >> 16));
}

ByteVector DibBytes::Build() const {
    ByteVector bytes;
    AppendLong(bytes, headerSize);
    AppendLong(bytes, static_cast<uint32_t>(width));
    AppendLong(bytes, static_cast<uint32_t>(height));
    AppendWord(bytes, planes);
    AppendWord(bytes, bitsPerPixel);
    AppendLong(bytes, compression);
    AppendLong(bytes, imageBytes);
    AppendLong(bytes, 0); // resolution
    AppendLong(bytes, 0);
    AppendLong(bytes, coloursUsed);
    AppendLong(bytes, 0); // important colours
    for (const uint32_t color : table)
        AppendLong(bytes, color);
    bytes.insert(bytes.end(), pixels.begin(), pixels.end());
    return bytes;
}

DibBytes& DibBytes::Fill(uint8_t byte) {
    const int stride = (width * bitsPerPixel + 31) / 32 * 4;
    pixels.assign(static_cast<size_t>(stride) * static_cast<size_t>(std::abs(height)), byte);
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
    AppendWord(records_, function);
    for (const uint16_t word : parameters)
        AppendWord(records_, word);
    return *this;
}

MetaFileBytes& MetaFileBytes::Raw(std::initializer_list<uint16_t> words) {
    for (const uint16_t word : words)
        AppendWord(records_, word);
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

ByteVector MetaFileBytes::MetaFile() const {
    ByteVector bytes;
    AppendWord(bytes, 1);
    AppendWord(bytes, 9);
    AppendWord(bytes, version_);
    AppendLong(bytes, static_cast<uint32_t>(9 + records_.size() / 2 + 3));
    AppendWord(bytes, objects_);
    AppendLong(bytes, 0); // largest record
    AppendWord(bytes, 0);
    bytes.insert(bytes.end(), records_.begin(), records_.end());
    AppendLong(bytes, 3);
    AppendWord(bytes, 0);
    return bytes;
}

ByteVector MetaFileBytes::Build() const {
    ByteVector bytes;
    AppendWord(bytes, 8);
    AppendWord(bytes, static_cast<uint16_t>(xExtent_));
    AppendWord(bytes, static_cast<uint16_t>(yExtent_));
    AppendWord(bytes, 0);
    const ByteVector metafile = MetaFile();
    bytes.insert(bytes.end(), metafile.begin(), metafile.end());
    return bytes;
}

ByteVector MetaFileBytes::BuildWide() const {
    ByteVector bytes;
    AppendLong(bytes, 8);
    AppendLong(bytes, static_cast<uint32_t>(xExtent_));
    AppendLong(bytes, static_cast<uint32_t>(yExtent_));
    AppendLong(bytes, 0);
    const ByteVector metafile = MetaFile();
    bytes.insert(bytes.end(), metafile.begin(), metafile.end());
    return bytes;
}

std::vector<uint16_t> Words(std::initializer_list<uint16_t> head, const ByteVector& tail) {
    std::vector<uint16_t> words(head);
    for (size_t i = 0; i + 1 < tail.size(); i += 2)
        words.push_back(static_cast<uint16_t>(tail[i] | tail[i + 1] << 8));
    return words;
}
