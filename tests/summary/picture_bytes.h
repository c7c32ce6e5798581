// Builds bitmaps and metafile pictures in memory, right ones and wrong ones, for the tests.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

using ByteVector = std::vector<uint8_t>;

void AppendWords(ByteVector& bytes, const std::vector<uint16_t>& words);
void AppendLong(ByteVector& bytes, uint32_t value);

// A 40-byte header with any values in the fields, a color table and pixels of one value.
struct DibBytes {
    uint32_t headerSize = 40;
    int32_t width = 1;
    int32_t height = 1;
    uint16_t planes = 1;
    uint16_t bitsPerPixel = 24;
    uint32_t compression = 0;
    uint32_t imageBytes = 0;
    uint32_t colorsUsed = 0;
    std::vector<uint32_t> table; // colors or masks
    ByteVector pixels;

    ByteVector Build() const;
    // Fills pixels: every byte of every line.
    DibBytes& Fill(uint8_t byte);
    // Run lengths over a full table, in the compression of the depth.
    DibBytes& RunLength(ByteVector codes);
    // The masks of 5, 6 and 5 bits.
    DibBytes& Masked();
};
DibBytes Dib(int32_t width, int32_t height, uint16_t bits);

// A metafile under a 16-bit head.
class MetaFileBytes {
public:
    MetaFileBytes(int16_t xExtent, int16_t yExtent) : xExtent_(xExtent), yExtent_(yExtent) {}

    MetaFileBytes& Objects(uint16_t count);
    MetaFileBytes& Version(uint16_t version);
    MetaFileBytes& Record(uint16_t function, std::initializer_list<uint16_t> parameters);
    MetaFileBytes& Record(uint16_t function, const std::vector<uint16_t>& parameters);
    // Raw words in the place of a record.
    MetaFileBytes& Raw(std::initializer_list<uint16_t> words);
    // Window and extent as most writers set them, then a rectangle filled with that color.
    MetaFileBytes& FilledRectangle(uint32_t color, int16_t left, int16_t top, int16_t width, int16_t height);
    // The picture, with the record that ends it.
    ByteVector Build() const;
    // The same under the 32-bit head.
    ByteVector BuildWide() const;

private:
    ByteVector Under(const std::vector<uint16_t>& head) const;

    int16_t xExtent_, yExtent_;
    uint16_t objects_ = 4;
    uint16_t version_ = 0x0300;
    ByteVector records_;
};

// Words of a bitmap for a record's parameters.
std::vector<uint16_t> Words(std::initializer_list<uint16_t> head, const ByteVector& tail);
