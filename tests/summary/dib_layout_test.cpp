// Accepted bitmaps, and bitmaps that declare more data than they have. Also runs natively under the sanitizers.

#include "orlo/summary/dib_layout.h"

#include <gtest/gtest.h>

#include "picture_bytes.h"

using orlo::DibColors;
using orlo::ReadDibLayout;

namespace {

struct Passing {
    const char* name;
    DibBytes dib;
    size_t pixelOffset;
    size_t pixelBytes;
};

DibBytes WithTable(DibBytes dib, size_t colors, uint32_t used) {
    dib.table.assign(colors, 0x00102030);
    dib.colorsUsed = used;
    return dib.Fill(0);
}

const Passing kPassing[] = {
    {"TrueColor", Dib(3, 2, 24).Fill(0), 40, 24},
    {"OneBitTwoColors", WithTable(Dib(33, 2, 1), 2, 0), 48, 16},
    {"FourBitsFewColors", WithTable(Dib(3, 1, 4), 5, 5), 60, 4},
    {"EightBitsFullTable", WithTable(Dib(3, 1, 8), 256, 0), 40 + 1024, 4},
    {"TrueColorWithTable", WithTable(Dib(1, 1, 24), 7, 7), 68, 4},
    {"Masks", Dib(2, 2, 16).Masked(), 52, 8},
    {"TopDown", Dib(3, -2, 32).Fill(0), 40, 24},
    {"RunLengthEight", Dib(4, 2, 8).RunLength({4, 1, 0, 0, 0, 3, 1, 2, 3, 0, 1, 9, 0, 1}), 40 + 1024, 14},
    {"RunLengthFour", Dib(4, 2, 4).RunLength({4, 0x12, 0, 0, 0, 2, 1, 0, 0, 3, 0x12, 0x30, 0, 1}), 40 + 64, 14},
};

TEST(DibLayout, HasItsPartsAndRejectsTruncation) {
    for (const Passing& row : kPassing) {
        SCOPED_TRACE(row.name);
        const ByteVector bytes = row.dib.Build();
        const auto layout = ReadDibLayout(bytes.data(), bytes.size(), DibColors::Rgb);
        ASSERT_TRUE(layout);
        EXPECT_EQ(layout->pixelOffset, row.pixelOffset);
        EXPECT_EQ(layout->pixelBytes, row.pixelBytes);
        EXPECT_EQ(layout->height, std::abs(row.dib.height));
        EXPECT_EQ(layout->topDown, row.dib.height < 0);
        for (size_t size = 0; size < bytes.size(); ++size) {
            const ByteVector cut(bytes.begin(),
                                 bytes.begin() + static_cast<ptrdiff_t>(size)); // accesses beyond its end are detected
            EXPECT_FALSE(ReadDibLayout(cut.data(), cut.size(), DibColors::Rgb)) << size << " bytes";
        }
    }
}

struct Rejected {
    const char* name;
    DibBytes dib;
};

template <typename Field>
DibBytes With(DibBytes dib, Field DibBytes::*field, Field value) {
    dib.*field = value;
    return dib;
}

const Rejected kRejected[] = {
    {"NoWidth", Dib(0, 1, 24)},
    {"NegativeWidth", Dib(-3, 1, 24)},
    {"NoHeight", Dib(1, 0, 24)},
    {"HeightWithoutOpposite", Dib(1, INT32_MIN, 24)},
    {"SizeBeyondAnyMemory", Dib(INT32_MAX, INT32_MAX, 32)},
    {"StrideThatWraps", Dib(0x40000001, 1, 32)},
    {"HugePalette", With(WithTable(Dib(1, 1, 8), 256, 0), &DibBytes::colorsUsed, 0x10000000u)},
    {"MoreColorsThanNameable", WithTable(Dib(1, 1, 4), 17, 17)},
    {"HugePaletteOfTrueColor", WithTable(Dib(1, 1, 24), 257, 257)},
    {"TwoPlanes", With(Dib(1, 1, 24).Fill(0), &DibBytes::planes, uint16_t{2})},
    {"ThreeBits", Dib(1, 1, 3).Fill(0)},
    {"OtherHeader", With(Dib(1, 1, 24).Fill(0), &DibBytes::headerSize, 41u)},
    {"HeaderSizeOf32Bits", With(Dib(1, 1, 24).Fill(0), &DibBytes::headerSize, 0x10028u)},
    {"WholeJpegInside", With(Dib(1, 1, 24).Fill(0), &DibBytes::compression, 4u)},
    {"MasksOfTrueColor", Dib(1, 1, 24).Masked()},
    {"RunPastTheLine", Dib(4, 2, 8).RunLength({5, 1, 0, 1})},
    {"LinesPastTheTop", Dib(4, 1, 8).RunLength({0, 0, 1, 1, 0, 1})},
    {"EmptyLinesPastTheTop", Dib(4, 1, 8).RunLength({0, 0, 0, 0, 0, 1})},
    {"DeltaOutside", Dib(4, 2, 8).RunLength({0, 2, 3, 3, 0, 1})},
    {"DeltaCut", Dib(4, 2, 8).RunLength({0, 2, 1})},
    {"AbsoluteCut", Dib(4, 2, 8).RunLength({0, 4, 1, 2})},
    {"NoEnd", Dib(4, 2, 8).RunLength({4, 1})},
    {"RunLengthBomb", Dib(30000, 30000, 8).RunLength({0, 1})},
    {"RunLengthTopDown", Dib(4, -2, 8).RunLength({4, 1, 0, 1})},
    {"RunLengthOfOtherBits", With(Dib(4, 2, 24).Fill(0), &DibBytes::compression, 1u)},
    {"RunLengthWithoutSize", With(Dib(4, 2, 8).RunLength({0, 1}), &DibBytes::imageBytes, 0u)},
};

TEST(DibLayout, IsRejectedWithoutReadingPastItsEnd) {
    for (const Rejected& row : kRejected) {
        const ByteVector bytes = row.dib.Build();
        EXPECT_FALSE(ReadDibLayout(bytes.data(), bytes.size(), DibColors::Rgb)) << row.name;
    }
}

TEST(DibLayout, PaletteIndicesHaveTwoBytes) {
    DibBytes dib = Dib(4, 1, 8);
    dib.table.assign(128, 0); // 256 indices
    const ByteVector bytes = dib.Fill(0).Build();
    const auto layout = ReadDibLayout(bytes.data(), bytes.size(), DibColors::PaletteIndices);
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->pixelOffset, 40u + 512u);
}

TEST(DibLayout, OnlyRequestedLinesAreRequired) {
    DibBytes dib = Dib(1, 100, 24);
    dib.pixels.assign(12, 0); // three lines
    const ByteVector bytes = dib.Build();
    EXPECT_TRUE(ReadDibLayout(bytes.data(), bytes.size(), DibColors::Rgb, 3));
    EXPECT_FALSE(ReadDibLayout(bytes.data(), bytes.size(), DibColors::Rgb, 4));
}

TEST(DibLayout, ReadsTheOldTwelveByteHeader) {
    ByteVector bytes;
    AppendWords(bytes, {12, 0, 8, 2, 1, 1});
    bytes.insert(bytes.end(), 2 * 3 + 2 * 4, 0); // two colors of three bytes, two lines
    const auto layout = ReadDibLayout(bytes.data(), bytes.size(), DibColors::Rgb);
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->pixelOffset, 18u);
    EXPECT_FALSE(ReadDibLayout(bytes.data(), bytes.size() - 1, DibColors::Rgb));
}

} // namespace
