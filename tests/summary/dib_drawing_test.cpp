// Bitmaps drawn without the system: colors at every depth, positions, and averaging.

#include "orlo/summary/dib_drawing.h"

#include <gtest/gtest.h>

#include "picture_bytes.h"

using orlo::DrawDibFitted;

namespace {

// Pixels as 0xRRGGBB, from the top line down.
using Drawn = std::vector<uint32_t>;

Drawn Draw(const ByteVector& dib, int width, int height) {
    const auto colors = DrawDibFitted(dib.data(), dib.size(), width, height);
    Drawn drawn;
    for (size_t i = 0; colors && i + 2 < colors->size(); i += 3)
        drawn.push_back((*colors)[i] << 16u | (*colors)[i + 1] << 8u | (*colors)[i + 2]);
    return drawn;
}

// Sets table and pixels; lines are given from the bottom and padded to four bytes.
DibBytes With(DibBytes dib, std::vector<uint32_t> table, ByteVector pixels) {
    dib.table = std::move(table);
    dib.colorsUsed = dib.bitsPerPixel <= 8 ? static_cast<uint32_t>(dib.table.size()) : 0;
    dib.pixels = std::move(pixels);
    return dib;
}

DibBytes Masked(uint16_t bits, std::vector<uint32_t> masks, ByteVector pixels) {
    DibBytes dib = With(Dib(2, 1, bits), std::move(masks), std::move(pixels));
    dib.compression = 3;
    return dib;
}

DibBytes Runs(uint16_t bits, ByteVector codes) {
    DibBytes dib = Dib(4, 2, bits).RunLength(std::move(codes));
    for (uint32_t i = 0; i < dib.table.size(); ++i)
        dib.table[i] = i;
    return dib;
}

constexpr uint32_t kWhite = 0xFFFFFF;

TEST(DibDrawing, ColorsOfEveryDepth) {
    const struct {
        const char* name;
        DibBytes dib;
        Drawn drawn;
    } rows[] = {
        {"1 bit",
         With(Dib(9, 1, 1), {0x102030, 0x405060}, {0x40, 0x80, 0, 0}),
         {0x102030, 0x405060, 0x102030, 0x102030, 0x102030, 0x102030, 0x102030, 0x102030, 0x405060}},
        {"4 bits", With(Dib(3, 1, 4), {1, 2, 3}, {0x21, 0x00, 0, 0}), {3, 2, 1}},
        {"8 bits, two lines", With(Dib(1, 2, 8), {1, 2, 3}, {0, 0, 0, 0, 2, 0, 0, 0}), {3, 1}},
        {"past the table", With(Dib(2, 1, 8), {kWhite}, {0, 1, 0, 0}), {kWhite, 0}},
        {"16 bits", With(Dib(2, 1, 16), {}, {0x00, 0x7C, 0xE3, 0x03}), {0xFF0000, 0x00FF18}},
        {"24 bits", With(Dib(1, 1, 24), {}, {1, 2, 3, 0}), {0x030201}},
        {"32 bits", With(Dib(1, 1, 32), {}, {1, 2, 3, 4}), {0x030201}},
        {"masks of 5, 6 and 5", Masked(16, {0xF800, 0x07E0, 0x001F}, {0x1F, 0xF8, 0x20, 0x00}), {0xFF00FF, 0x000400}},
        {"masks of 10 bits and 1, and none",
         Masked(32, {0xFFC00000, 0x1, 0}, {1, 0, 0xC0, 0x80, 0, 0, 0, 0}),
         {0x80FF00, 0}},
        {"runs of 8 bits", Runs(8, {2, 7, 0, 2, 1, 1, 1, 9, 0, 1}), {kWhite, kWhite, kWhite, 9, 7, 7, kWhite, kWhite}},
        {"pixels of 8 bits",
         Runs(8, {0, 3, 4, 5, 6, 0, 0, 0, 1, 8, 0, 1}),
         {8, kWhite, kWhite, kWhite, 4, 5, 6, kWhite}},
        {"runs of 4 bits", Runs(4, {3, 0x12, 0, 0, 0, 3, 0x34, 0x50, 0, 1}), {3, 4, 5, kWhite, 1, 2, 1, kWhite}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Draw(row.dib.Build(), row.dib.width, row.dib.height), row.drawn) << row.name;
}

// Later headers include the masks.
TEST(DibDrawing, MasksInTheHeader) {
    DibBytes dib = Masked(16, {0x001F, 0x07E0, 0xF800, 0}, {0x1F, 0, 0, 0xF8});
    dib.headerSize = 56;
    EXPECT_EQ(Draw(dib.Build(), 2, 1), (Drawn{0xFF0000, 0x0000FF}));
}

TEST(DibDrawing, IsCentered) {
    const ByteVector dib = With(Dib(2, 1, 8), {0, 0x808080}, {0, 1, 0, 0}).Build();
    const struct {
        const char* name;
        int width, height;
        Drawn drawn;
    } rows[] = {
        {"taller", 2, 3, {kWhite, kWhite, 0, 0x808080, kWhite, kWhite}},
        {"wider", 4, 1, {kWhite, 0, 0x808080, kWhite}},
        {"larger", 4, 2, {0, 0, 0x808080, 0x808080, 0, 0, 0x808080, 0x808080}},
        {"in between", 3, 1, {0, 0x808080, kWhite}},
        {"without room", 1, 1, {kWhite}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Draw(dib, row.width, row.height), row.drawn) << row.name;
}

TEST(DibDrawing, SmallerPictureAveragesPixels) {
    const ByteVector even = With(Dib(4, 2, 8), {0x000000, 0x050A11, 0xFFFFFF}, {0, 1, 2, 2, 1, 1, 0, 2}).Build();
    EXPECT_EQ(Draw(even, 2, 1), (Drawn{0x04080D, 0xBFBFBF}));
    // Each of two target pixels covers one and a half.
    const ByteVector odd = With(Dib(3, 3, 8), {0, 0x0000FF}, {0, 1, 1, 0, 0, 1, 1, 0, 0, 1, 1, 0}).Build();
    EXPECT_EQ(Draw(odd, 2, 2), (Drawn{0x000055, 0x0000FF, 0x000055, 0x0000FF}));
}

TEST(DibDrawing, RejectsWhatTheSystemRejects) {
    const ByteVector whole = Runs(8, {4, 1, 0, 1}).Build();
    for (size_t size = 0; size < whole.size(); ++size) {
        const ByteVector cut(whole.begin(),
                             whole.begin() + static_cast<ptrdiff_t>(size)); // accesses beyond its end are detected
        EXPECT_FALSE(DrawDibFitted(cut.data(), cut.size(), 4, 2)) << size << " bytes";
    }
    EXPECT_EQ(Draw(Dib(2, -2, 24).Fill(0).Build(), 2, 2), Drawn()) << "from the top down";
    ByteVector old;
    AppendWords(old, {12, 0, 1, 1, 1, 24, 0, 0});
    EXPECT_EQ(Draw(old, 1, 1), Drawn()) << "the header of 12 bytes";
}

} // namespace
