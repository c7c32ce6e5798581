// Accepted metafile pictures, and the faults that cause rejection. Also runs natively under the sanitizers.

#include "orlo/summary/metafile_check.h"

#include <gtest/gtest.h>

#include "picture_bytes.h"

using orlo::ReadMetaFilePicture;

namespace {

bool Passes(const ByteVector& bytes) {
    return ReadMetaFilePicture(bytes.data(), bytes.size()).has_value();
}

MetaFileBytes Picture() {
    return MetaFileBytes(100, 50);
}

ByteVector SmallDib() {
    return Dib(2, 2, 24).Fill(0).Build();
}

ByteVector CutDib() {
    ByteVector bytes = SmallDib();
    bytes.resize(bytes.size() - 2);
    return bytes;
}

// A pattern of 2^23 pixels in 50 bytes.
std::vector<uint16_t> LargePattern() {
    DibBytes dib = Dib(4096, 2048, 8).RunLength({0, 1});
    dib.table.resize(dib.colorsUsed = 1);
    return Words({5, 0}, dib.Build());
}

TEST(MetaFilePicture, HasItsExtentsWithEitherHeader) {
    const MetaFileBytes made = Picture().FilledRectangle(0, 0, 0, 10, 10);
    for (const ByteVector& bytes : {made.Build(), made.BuildWide()}) {
        const auto picture = ReadMetaFilePicture(bytes.data(), bytes.size());
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->xExtent, 100);
        EXPECT_EQ(picture->yExtent, 50);
        EXPECT_EQ(picture->bits + picture->size, bytes.data() + bytes.size());
        EXPECT_EQ(picture->end + 6, picture->size);
    }
}

// A large extent makes the header look like the 16-bit one, whose extent is then 0.
TEST(MetaFilePicture, LargeExtentsLookLikeTheNarrowHeader) {
    ByteVector bytes = Picture().BuildWide();
    bytes[6] = 1; // x extent 0x10064
    EXPECT_FALSE(Passes(bytes));
    bytes = Picture().BuildWide();
    for (size_t i = 4; i < 8; ++i)
        bytes[i] = 0xFF; // x extent -1
    EXPECT_FALSE(Passes(bytes));
}

TEST(MetaFilePicture, RejectsTruncation) {
    const ByteVector whole = Picture().FilledRectangle(0, 0, 0, 10, 10).Build();
    for (size_t size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(Passes(ByteVector(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size)))) << size;
}

TEST(MetaFilePicture, DoesNotRequireAnEndRecord) {
    ByteVector bytes = Picture().FilledRectangle(0, 0, 0, 10, 10).Build();
    bytes.resize(bytes.size() - 6);
    bytes[8 + 6] = static_cast<uint8_t>(bytes[8 + 6] - 3); // size in words
    EXPECT_TRUE(Passes(bytes));
}

struct Row {
    const char* name;
    MetaFileBytes picture;
};

const Row kPassing[] = {
    {"Empty", Picture()},
    {"OldVersion", Picture().Version(0x0100)},
    {"UnknownRecord", Picture().Record(0x0777, {1, 2, 3})},
    {"ShortFontName", Picture().Record(0x02FB, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0x41})},
    {"PatternAlone", Picture().Record(0x0940, {0, 0, 0, 0, 0, 1, 1, 0, 0})},
    {"BitmapInRecord", Picture().Record(0x0B41, Words({0x20, 0xCC, 2, 2, 0, 0, 2, 2, 0, 0}, SmallDib()))},
    {"SomeScanLines", Picture().Record(0x0D33, Words({0, 1, 0, 0, 0, 2, 2, 0, 0}, SmallDib()))},
    {"PatternBrush", Picture().Record(0x0142, Words({5, 0}, SmallDib()))},
    {"LargePatterns", Picture().Record(0x0142, LargePattern()).Record(0x0142, LargePattern())},
    {"PolyPolygon", Picture().Record(0x0538, {2, 1, 2, 0, 0, 1, 1, 2, 2})},
    {"Region", Picture().Record(0x06FF, {0, 6, 0, 0, 0, 1, 2, 0, 0, 9, 9, 2, 0, 5, 1, 4, 2})},
    {"SavedAndRestored", Picture().Record(0x001E, {}).Record(0x001E, {}).Record(0x0127, {0xFFFE})},
    {"SlotGivenAgain", Picture()
                           .Objects(1)
                           .Record(0x02FC, {0, 0, 0, 0})
                           .Record(0x01F0, {0})
                           .Record(0x02FA, {0, 0, 0, 0, 0})
                           .Record(0x012D, {0})},
    {"TextWithWidths", Picture().Record(0x0A32, {0, 0, 2, 0, 0x4141, 5, 5})},
};

const Row kRejected[] = {
    {"NoExtent", MetaFileBytes(0, 50)},
    {"NegativeExtent", MetaFileBytes(100, -1)},
    {"OtherVersion", Picture().Version(0x0200)},
    {"RecordOfNoSize", Picture().Raw({0, 0, 0x0213, 0, 0})},
    {"RecordOfOneWord", Picture().Raw({1, 0, 0x0213, 0, 0})},
    {"RecordPastTheEnd", Picture().Raw({0x100, 0, 0x0213, 0, 0})},
    {"RecordSizeThatWraps", Picture().Raw({0x0003, 0x8000, 0x0213, 0, 0})},
    {"LineWithoutPoint", Picture().Record(0x0213, {1})},
    {"PolygonPastRecord", Picture().Record(0x0324, {3, 0, 0, 1, 1})},
    {"PolygonOfNegativeCount", Picture().Record(0x0324, {0xFFFF, 0, 0})},
    {"PolyPolygonCountsPastRecord", Picture().Record(0x0538, {9, 1, 2})},
    {"PolyPolygonPointsPastRecord", Picture().Record(0x0538, {2, 1, 0xFFFF, 0, 0})},
    {"TextPastRecord", Picture().Record(0x0521, {9, 0x4141, 0, 0})},
    {"TextWithoutPlace", Picture().Record(0x0521, {2, 0x4141, 0})},
    {"PositionedTextPastRecord", Picture().Record(0x0A32, {0, 0, 9, 0, 0x4141})},
    {"PositionedTextWithoutRectangle", Picture().Record(0x0A32, {0, 0, 2, 2, 0x4141})},
    {"TextOfGlyphNumbers", Picture().Record(0x0A32, {0, 0, 1, 0x10, 0x41, 0, 0, 0, 0, 0})},
    {"TextWithPairsOfWidths", Picture().Record(0x0A32, {0, 0, 1, 0x2000, 0x41, 0, 0, 0, 0, 0})},
    {"PalettePastRecord", Picture().Record(0x00F7, {0x300, 256, 0, 0})},
    {"PaletteEntriesPastRecord", Picture().Record(0x0037, {0, 0xFFFF, 0, 0})},
    {"RegionBandsPastRecord", Picture().Record(0x06FF, {0, 6, 0, 0, 0, 9, 2, 0, 0, 9, 9, 2, 0, 5, 1, 4, 2})},
    {"RegionBandOfOddCount", Picture().Record(0x06FF, {0, 6, 0, 0, 0, 1, 2, 0, 0, 9, 9, 1, 0, 5, 1, 1})},
    {"RegionPairsPastRecord", Picture().Record(0x06FF, {0, 6, 0, 0, 0, 1, 2, 0, 0, 9, 9, 4, 0, 5, 1, 4, 2})},
    {"BrushOfAnAddress", Picture().Record(0x02FC, {6, 0, 0, 0x1234})},
    {"BitmapPastRecord", Picture().Record(0x0F43, Words({0x20, 0xCC, 0, 2, 2, 0, 0, 2, 2, 0, 0}, CutDib()))},
    {"BitmapOfOtherUsage", Picture().Record(0x0F43, Words({0x20, 0xCC, 9, 2, 2, 0, 0, 2, 2, 0, 0}, SmallDib()))},
    {"MorePatternsThanMemory",
     Picture().Record(0x0142, LargePattern()).Record(0x0142, LargePattern()).Record(0x0142, LargePattern())},
    {"MoreObjectsThanSlots", Picture().Objects(0).Record(0x02FC, {0, 0, 0, 0})},
    {"SelectingPastTheSlots", Picture().Objects(4).Record(0x012D, {4})},
    {"DeletingPastTheSlots", Picture().Record(0x01F0, {0xFFFF})},
    {"ClippingPastTheSlots", Picture().Objects(0).Record(0x012C, {0})},
    {"FrameWithSlotPastTheEnd", Picture().Record(0x0429, {0, 9, 1, 1})},
    {"RestoringTheCallersState", Picture().Record(0x001E, {}).Record(0x0127, {0xFFFE})},
    {"RestoringByAbsoluteLevel", Picture().Record(0x001E, {}).Record(0x0127, {1})},
};

TEST(MetaFilePicture, IsAcceptedOrRejectedAsAWhole) {
    for (const Row& row : kPassing)
        EXPECT_TRUE(Passes(row.picture.Build())) << row.name;
    for (const Row& row : kRejected)
        EXPECT_FALSE(Passes(row.picture.Build())) << row.name;
}

} // namespace
