// Builds valid and invalid bitmaps and metafile pictures in memory.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

using ByteVector = std::vector<uint8_t>;

void AppendWords(ByteVector& bytes, const std::vector<uint16_t>& words);
void AppendLong(ByteVector& bytes, uint32_t value);

// A 40-byte header with arbitrary fields, a color table, and pixels with the same value.
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
    // Fills the pixels with a byte.
    DibBytes& Fill(uint8_t byte);
    // Run-length data with a full table, in the compression of the depth.
    DibBytes& RunLength(ByteVector codes);
    // Masks of 5, 6 and 5 bits.
    DibBytes& Masked();
};
DibBytes Dib(int32_t width, int32_t height, uint16_t bits);

// A metafile with a 16-bit header.
class MetaFileBytes {
public:
    MetaFileBytes(int16_t xExtent, int16_t yExtent) : xExtent_(xExtent), yExtent_(yExtent) {}

    MetaFileBytes& Objects(uint16_t count);
    MetaFileBytes& Version(uint16_t version);
    MetaFileBytes& Record(uint16_t function, std::initializer_list<uint16_t> parameters);
    MetaFileBytes& Record(uint16_t function, const std::vector<uint16_t>& parameters);
    // Adds raw words in place of a record.
    MetaFileBytes& Raw(std::initializer_list<uint16_t> words);
    // Sets window origin and extent as most writers do, and draws a filled rectangle.
    MetaFileBytes& FilledRectangle(uint32_t color, int16_t left, int16_t top, int16_t width, int16_t height);
    // Returns the picture, including an end-of-file record.
    ByteVector Build() const;
    // Returns the picture with the 32-bit header.
    ByteVector BuildWide() const;

private:
    ByteVector Under(const std::vector<uint16_t>& head) const;

    int16_t xExtent_, yExtent_;
    uint16_t objects_ = 4;
    uint16_t version_ = 0x0300;
    ByteVector records_;
};

// Returns the words of a bitmap as parameters of a record.
std::vector<uint16_t> Words(std::initializer_list<uint16_t> head, const ByteVector& tail);
