// Which bitmaps pass, and which promise more than they hold. Runs without windows too, under the sanitizers.

#include "orlo/summary/dib_layout.h"

#include <gtest/gtest.h>

#include "picture_bytes.h"

using orlo::DibColours;
using orlo::ReadDibLayout;

namespace {

DibBytes Dib(int32_t width, int32_t height, uint16_t bits) {
    DibBytes dib;
    dib.width = width;
    dib.height = height;
    dib.bitsPerPixel = bits;
    return dib;
}

struct Passing {
    const char* name;
    DibBytes dib;
    size_t pixelOffset;
    size_t pixelBytes;
};

DibBytes WithTable(DibBytes dib, size_t colours, uint32_t used) {
    dib.table.assign(colours, 0x00102030);
    dib.coloursUsed = used;
    return dib.Fill(0);
}

DibBytes RunLength(DibBytes dib, ByteVector codes) {
    dib.compression = dib.bitsPerPixel == 8 ? 1 : 2;
    dib.table.assign(size_t{1} << dib.bitsPerPixel, 0);
    dib.imageBytes = static_cast<uint32_t>(codes.size());
    dib.pixels = std::move(codes);
    return dib;
}

DibBytes Masked(DibBytes dib) {
    dib.compression = 3;
    dib.table = {0xF800, 0x07E0, 0x001F};
    return dib.Fill(0);
}

const Passing kPassing[] = {
    {"TrueColour", Dib(3, 2, 24).Fill(0), 40, 24},
    {"OneBitTwoColours", WithTable(Dib(33, 2, 1), 2, 0), 48, 16},
    {"FourBitsFewColours", WithTable(Dib(3, 1, 4), 5, 5), 60, 4},
    {"EightBitsFullTable", WithTable(Dib(3, 1, 8), 256, 0), 40 + 1024, 4},
    {"TrueColourWithTable", WithTable(Dib(1, 1, 24), 7, 7), 68, 4},
    {"Masks", Masked(Dib(2, 2, 16)), 52, 8},
    {"TopDown", Dib(3, -2, 32).Fill(0), 40, 24},
    {"RunLengthEight", RunLength(Dib(4, 2, 8), {4, 1, 0, 0, 0, 3, 1, 2, 3, 0, 1, 9, 0, 1}), 40 + 1024, 14},
    {"RunLengthFour", RunLength(Dib(4, 2, 4), {4, 0x12, 0, 0, 0, 2, 1, 0, 0, 3, 0x12, 0x30, 0, 1}), 40 + 64,
     14},
};

class DibPasses : public testing::TestWithParam<Passing> {};

TEST_P(DibPasses, WithItsPartsInPlace) {
    const ByteVector bytes = GetParam().dib.Build();
    const auto layout = ReadDibLayout(bytes.data(), bytes.size(), DibColours::Rgb);
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->pixelOffset, GetParam().pixelOffset);
    EXPECT_EQ(layout->pixelBytes, GetParam().pixelBytes);
    EXPECT_EQ(layout->height, std::abs(GetParam().dib.height));
    EXPECT_EQ(layout->topDown, GetParam().dib.height < 0);
}

TEST_P(DibPasses, NotWhenCutAnywhere) {
    const ByteVector bytes = GetParam().dib.Build();
    for (size_t size = 0; size < bytes.size(); ++size) {
        const ByteVector cut(bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(size));
        EXPECT_FALSE(ReadDibLayout(cut.data(), cut.size(), DibColours::Rgb)) << size << " bytes";
    }
}

INSTANTIATE_TEST_SUITE_P(Bitmaps, DibPasses, testing::ValuesIn(kPassing),
                         [](const auto& row) { return std::string(row.param.name); });

struct Refused {
    const char* name;
    DibBytes dib;
};

template <typename Field>
DibBytes With(DibBytes dib, Field DibBytes::*field, Field value) {
    dib.*field = value;
    return dib;
}

const Refused kRefused[] = {
    {"NoWidth", Dib(0, 1, 24)},
    {"NegativeWidth", Dib(-3, 1, 24)},
    {"NoHeight", Dib(1, 0, 24)},
    {"HeightWithoutOpposite", Dib(1, INT32_MIN, 24)},
    {"SizeBeyondAnyMemory", Dib(INT32_MAX, INT32_MAX, 32)},
    {"StrideThatWraps", Dib(0x40000001, 1, 32)},
    {"HugePalette", With(WithTable(Dib(1, 1, 8), 256, 0), &DibBytes::coloursUsed, 0x10000000u)},
    {"MoreColoursThanNameable", WithTable(Dib(1, 1, 4), 17, 17)},
    {"HugePaletteOfTrueColour", WithTable(Dib(1, 1, 24), 257, 257)},
    {"TwoPlanes", With(Dib(1, 1, 24).Fill(0), &DibBytes::planes, uint16_t{2})},
    {"ThreeBits", Dib(1, 1, 3).Fill(0)},
    {"OtherHeader", With(Dib(1, 1, 24).Fill(0), &DibBytes::headerSize, 41u)},
    {"HeaderSizeOf32Bits", With(Dib(1, 1, 24).Fill(0), &DibBytes::headerSize, 0x10028u)},
    {"WholeJpegInside", With(Dib(1, 1, 24).Fill(0), &DibBytes::compression, 4u)},
    {"MasksOfTrueColour", Masked(Dib(1, 1, 24))},
    {"RunPastTheLine", RunLength(Dib(4, 2, 8), {5, 1, 0, 1})},
    {"LinesPastTheTop", RunLength(Dib(4, 1, 8), {0, 0, 1, 1, 0, 1})},
    {"DeltaOutside", RunLength(Dib(4, 2, 8), {0, 2, 3, 3, 0, 1})},
    {"DeltaCut", RunLength(Dib(4, 2, 8), {0, 2, 1})},
    {"AbsoluteCut", RunLength(Dib(4, 2, 8), {0, 4, 1, 2})},
    {"NoEnd", RunLength(Dib(4, 2, 8), {4, 1})},
    {"RunLengthBomb", RunLength(Dib(30000, 30000, 8), {0, 1})},
    {"RunLengthTopDown", RunLength(Dib(4, -2, 8), {4, 1, 0, 1})},
    {"RunLengthOfOtherBits", With(Dib(4, 2, 24).Fill(0), &DibBytes::compression, 1u)},
    {"RunLengthWithoutSize", With(RunLength(Dib(4, 2, 8), {0, 1}), &DibBytes::imageBytes, 0u)},
};

class DibIsRefused : public testing::TestWithParam<Refused> {};

TEST_P(DibIsRefused, WithoutReadingPastIt) {
    const ByteVector bytes = GetParam().dib.Build();
    EXPECT_FALSE(ReadDibLayout(bytes.data(), bytes.size(), DibColours::Rgb));
}

INSTANTIATE_TEST_SUITE_P(Bitmaps, DibIsRefused, testing::ValuesIn(kRefused),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(DibLayout, PaletteIndicesTakeTwoBytesEach) {
    DibBytes dib = Dib(4, 1, 8);
    dib.table.assign(128, 0); // 256 indices
    const ByteVector bytes = dib.Fill(0).Build();
    const auto layout = ReadDibLayout(bytes.data(), bytes.size(), DibColours::PaletteIndices);
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->pixelOffset, 40u + 512u);
}

TEST(DibLayout, OnlyTheLinesThatAreAskedForNeedBeThere) {
    DibBytes dib = Dib(1, 100, 24);
    dib.pixels.assign(12, 0); // three lines
    const ByteVector bytes = dib.Build();
    EXPECT_TRUE(ReadDibLayout(bytes.data(), bytes.size(), DibColours::Rgb, 3));
    EXPECT_FALSE(ReadDibLayout(bytes.data(), bytes.size(), DibColours::Rgb, 4));
}

TEST(DibLayout, ReadsTheOldTwelveByteHeader) {
    ByteVector bytes;
    AppendLong(bytes, 12);
    for (const uint16_t word : {8, 2, 1, 1})
        AppendWord(bytes, word);
    bytes.insert(bytes.end(), 2 * 3 + 2 * 4, 0); // two colours of three bytes, two lines
    const auto layout = ReadDibLayout(bytes.data(), bytes.size(), DibColours::Rgb);
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->pixelOffset, 18u);
    EXPECT_FALSE(ReadDibLayout(bytes.data(), bytes.size() - 1, DibColours::Rgb));
}

} // namespace
