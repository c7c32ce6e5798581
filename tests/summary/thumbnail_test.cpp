// Thumbnails drawn on a canvas: placement, preserved state, and malicious pictures.

#include "orlo/summary/thumbnail.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <psapi.h>

#include "canvas.h"
#include "orlo/summary/dib_drawing.h"
#include "orlo/win/gdi.h"
#include "picture_bytes.h"

namespace {

constexpr uint32_t kBlue = 0x00FF0000; // as a COLORREF

ByteVector BlueDib(int width, int height) {
    DibBytes dib = Dib(width, height, 8);
    dib.colorsUsed = 2;
    dib.table = {0x00FF0000, 0x000000FF}; // red, blue
    return dib.Fill(1).Build();
}

ByteVector BluePicture(int16_t width, int16_t height) {
    return MetaFileBytes(width, height).FilledRectangle(kBlue, 0, 0, width, height).Build();
}

int DrawDib(const ByteVector& dib, HDC dc, const RECT* rect, int keep) {
    return DrawDIB(reinterpret_cast<const BITMAPINFOHEADER*>(dib.data()), dc, rect, keep);
}

int DrawMeta(const ByteVector& picture, HDC dc, const RECT* rect, int keep) {
    return DrawMetaFilePict(picture.data(), dc, rect, keep);
}

struct Fit {
    const char* name;
    int width, height; // of the picture
    RECT target;
    int keepAspect;
    RECT covered;
};

const Fit kFits[] = {
    {"Wide", 200, 100, {0, 0, 100, 100}, 1, {0, 25, 100, 75}},
    {"Tall", 100, 200, {0, 0, 100, 100}, 1, {25, 0, 75, 100}},
    {"Square", 100, 100, {0, 0, 100, 100}, 1, {0, 0, 100, 100}},
    {"Truncated", 3, 1, {0, 0, 10, 10}, 1, {0, 3, 10, 6}},
    {"Filling", 200, 100, {0, 0, 100, 100}, 0, {0, 0, 100, 100}},
    {"AwayFromTheCorner", 10, 20, {30, 40, 70, 80}, 1, {40, 40, 60, 80}},
};

TEST(Fitting, OfBitmapsAndMetafilePictures) {
    for (const Fit& fit : kFits) {
        Canvas canvas(100, 100);
        const auto width = static_cast<int16_t>(fit.width), height = static_cast<int16_t>(fit.height);
        const auto expectDrawn = [&](const char* kind, int drawn) {
            SCOPED_TRACE(std::string(fit.name) + " " + kind);
            const RECT covered = canvas.Covered().value_or(RECT());
            EXPECT_NE(drawn, 0);
            EXPECT_TRUE(covered == fit.covered)
                << covered.left << " " << covered.top << " " << covered.right << " " << covered.bottom;
            EXPECT_EQ(canvas.At(fit.covered.left, fit.covered.top), kBlue);
            canvas.Whiten();
        };
        expectDrawn("bitmap", DrawDib(BlueDib(width, height), canvas.DC(), &fit.target, fit.keepAspect));
        expectDrawn("picture", DrawMeta(BluePicture(width, height), canvas.DC(), &fit.target, fit.keepAspect));
    }
}

// The product of the extents exceeds 32 bits.
TEST(Fitting, HandlesHugeExtents) {
    Canvas canvas(100, 100);
    const RECT whole = canvas.Whole();
    EXPECT_EQ(DrawMeta(BluePicture(32767, 32000), canvas.DC(), &whole, 1), 1);
    EXPECT_EQ(canvas.Covered()->right, 100);
    EXPECT_EQ(canvas.Covered()->bottom, 98);
}

class Thumbnail : public testing::Test {
protected:
    void ExpectNothingDrawn() { EXPECT_FALSE(canvas_.Covered()); }
    Canvas canvas_{60, 60};
    RECT whole_ = canvas_.Whole();
};

TEST_F(Thumbnail, EmptyRectanglesDrawNothing) {
    for (const RECT& rect : {RECT{5, 5, 5, 20}, RECT{5, 5, 20, 5}, RECT{20, 20, 5, 5}}) {
        EXPECT_EQ(DrawDib(BlueDib(4, 4), canvas_.DC(), &rect, 1), 0);
        EXPECT_EQ(DrawMeta(BluePicture(4, 4), canvas_.DC(), &rect, 1), 0);
    }
    ExpectNothingDrawn();
}

TEST_F(Thumbnail, NullArgumentsDrawNothing) {
    EXPECT_EQ(DrawDib(BlueDib(4, -4), canvas_.DC(), &whole_, 1), 0) << "from the top down";
    EXPECT_EQ(DrawDIB(nullptr, canvas_.DC(), &whole_, 1), 0);
    EXPECT_EQ(DrawMetaFilePict(nullptr, canvas_.DC(), &whole_, 1), 0);
    EXPECT_EQ(DrawDib(BlueDib(4, 4), nullptr, &whole_, 1), 0);
    EXPECT_EQ(DrawMeta(BluePicture(4, 4), nullptr, &whole_, 1), 0);
    EXPECT_EQ(DrawThumbnail(nullptr, canvas_.DC(), &whole_), 0);
    ExpectNothingDrawn();
}

TEST_F(Thumbnail, KeepsTheAspectRatioForEachFormat) {
    const ByteVector dib = BlueDib(2, 1);
    const ByteVector picture = BluePicture(2, 1);
    const unsigned char formats[] = {3, 8, 14};
    const ThumbnailClip rejected[] = {
        {0, 0xFFFFFFFF, &formats[1], dib.data()},
        {1, 0xFFFFFFFE, &formats[1], dib.data()},
        {1, 0xFFFFFFFF, &formats[1], nullptr},
        {1, 0xFFFFFFFF, &formats[2], dib.data()},
    };
    for (const ThumbnailClip& clip : rejected)
        EXPECT_EQ(DrawThumbnail(&clip, canvas_.DC(), &whole_), 0);
    ExpectNothingDrawn();
    const RECT middle = {0, 15, 60, 45};
    const ThumbnailClip drawn[] = {{1, 0xFFFFFFFF, &formats[0], picture.data()},
                                   {1, 0xFFFFFFFF, &formats[1], dib.data()}};
    for (const ThumbnailClip& clip : drawn) {
        canvas_.Whiten();
        EXPECT_NE(DrawThumbnail(&clip, canvas_.DC(), &whole_), 0);
        EXPECT_TRUE(*canvas_.Covered() == middle);
    }
}

TEST_F(Thumbnail, StoredValueIsLimitedByItsLength) {
    ByteVector value;
    AppendLong(value, 0xFFFFFFFF);
    AppendLong(value, 8);
    const ByteVector dib = BlueDib(10, 10);
    value.insert(value.end(), dib.begin(), dib.end());
    const auto size = static_cast<DWORD>(value.size());
    EXPECT_EQ(DrawThumbnailValue(value.data(), size - 1, canvas_.DC(), &whole_), 0);
    EXPECT_EQ(DrawThumbnailValue(value.data(), 7, canvas_.DC(), &whole_), 0);
    ExpectNothingDrawn();
    EXPECT_NE(DrawThumbnailValue(value.data(), size, canvas_.DC(), &whole_), 0);
    EXPECT_TRUE(*canvas_.Covered() == whole_);
}

TEST_F(Thumbnail, BitmapsOfEveryKindDraw) {
    struct Row {
        DibBytes dib;
        COLORREF color;
    };
    std::vector<Row> rows = {{Dib(4, 1, 16).Masked(), RGB(255, 0, 0)}, {Dib(4, 1, 8).RunLength({4, 1, 0, 1}), kBlue}};
    rows[0].dib.pixels = {0, 0xF8, 0, 0xF8, 0, 0xF8, 0, 0xF8};
    rows[1].dib.table.assign(256, 0x000000FF);
    for (const uint16_t bits : {1, 4, 8, 16, 24, 32}) {
        DibBytes dib = Dib(5, 3, bits);
        if (bits <= 8) dib.table.assign(size_t{1} << bits, 0x000000FF);
        rows.push_back({dib.Fill(0), bits <= 8 ? kBlue : 0u});
    }
    for (const Row& row : rows) {
        canvas_.Whiten();
        EXPECT_NE(DrawDib(row.dib.Build(), canvas_.DC(), &whole_, 0), 0) << row.dib.bitsPerPixel;
        EXPECT_EQ(canvas_.At(30, 30), row.color) << row.dib.bitsPerPixel;
    }
}

// Pixel for pixel, at the original size.
TEST(DrawingWithoutTheSystem, HasTheColorsOfTheSystem) {
    std::vector<DibBytes> dibs = {Dib(5, 3, 16).Masked(),
                                  Dib(5, 3, 8).RunLength({4, 1, 0, 0, 0, 3, 1, 200, 3, 9, 0, 2, 1, 1, 0, 1}),
                                  Dib(5, 3, 4).RunLength({5, 0x12, 0, 0, 0, 3, 0xF2, 0x30, 0, 1})};
    for (const uint16_t bits : {1, 4, 8, 16, 24, 32}) {
        dibs.push_back(Dib(5, 3, bits).Fill(0));
        if (bits <= 8) dibs.back().table.resize(size_t{1} << bits);
    }
    for (DibBytes& dib : dibs) {
        SCOPED_TRACE(std::to_string(dib.bitsPerPixel) + " bits, form " + std::to_string(dib.compression));
        uint32_t next = 1;
        const auto any = [&next] { return next = next * 1103515245 + 12345; };
        if (dib.bitsPerPixel <= 8) std::generate(dib.table.begin(), dib.table.end(), [&] { return any() >> 8; });
        if (dib.imageBytes == 0) std::generate(dib.pixels.begin(), dib.pixels.end(), [&] { return any() >> 16; });
        const ByteVector bytes = dib.Build();
        Canvas canvas(dib.width, dib.height);
        const RECT whole = canvas.Whole();
        ASSERT_NE(DrawDib(bytes, canvas.DC(), &whole, 1), 0);
        const auto drawn = orlo::DrawDibFitted(bytes.data(), bytes.size(), dib.width, dib.height);
        ASSERT_TRUE(drawn);
        for (int y = 0; y < dib.height; ++y)
            for (int x = 0; x < dib.width; ++x) {
                const uint8_t* at = drawn->data() + 3 * (y * dib.width + x);
                EXPECT_EQ(canvas.At(x, y), RGB(at[0], at[1], at[2])) << x << ", " << y;
            }
    }
}

// Objects, mapping and clipping of the device context are restored even if the metafile saves states without restoring
// them.
TEST_F(Thumbnail, TheDeviceContextIsRestored) {
    ::SetMapMode(canvas_.DC(), MM_ANISOTROPIC);
    ::SetViewportOrgEx(canvas_.DC(), 7, 8, nullptr);
    const HGDIOBJ brush = ::GetCurrentObject(canvas_.DC(), OBJ_BRUSH);
    const ByteVector picture =
        MetaFileBytes(50, 50).Record(0x001E, {}).Record(0x001E, {}).FilledRectangle(kBlue, 0, 0, 50, 50).Build();
    EXPECT_EQ(DrawMeta(picture, canvas_.DC(), &whole_, 1), 1);
    POINT origin;
    ::GetViewportOrgEx(canvas_.DC(), &origin);
    EXPECT_EQ(origin.x, 7);
    EXPECT_EQ(origin.y, 8);
    EXPECT_EQ(::GetMapMode(canvas_.DC()), MM_ANISOTROPIC);
    EXPECT_EQ(::GetCurrentObject(canvas_.DC(), OBJ_BRUSH), brush);
    EXPECT_EQ(::SaveDC(canvas_.DC()), 1) << "saved states were not restored";
}

TEST_F(Thumbnail, NothingIsPaintedOutsideTheRectangle) {
    const RECT target = {20, 20, 40, 40};
    const ByteVector picture = MetaFileBytes(50, 50)
                                   .Record(0x020E, {60, 60}) // sets its own viewport
                                   .Record(0x020D, {0, 0})   // at the corner of the device
                                   .Record(0x012C, {3})      // selects the clip region of an empty slot
                                   .FilledRectangle(kBlue, -500, -500, 1000, 1000)
                                   .Build();
    EXPECT_EQ(DrawMeta(picture, canvas_.DC(), &target, 1), 1);
    EXPECT_TRUE(*canvas_.Covered() == target);
}

TEST_F(Thumbnail, RecordsForOtherDevicesAreSkipped) {
    const ByteVector picture = MetaFileBytes(50, 50)
                                   .Record(0x0626, {9, 4, 0x1234, 0x5678}) // an escape with an address
                                   .Record(0x0626, {12, 0})                // requests a page from a printer
                                   .Record(0x0035, {})                     // realizes a palette
                                   .Record(0x0922, {0, 0, 0, 0, 9, 9, 0, 0, 0, 99, 99, 0, 1, 1})
                                   .Record(0x01F9, {3, 0, 8, 8, 2, 0x0101, 0, 0}) // a pattern, in slot 0
                                   .Record(0x02FC, {0, 0, 0x00FF, 0})             // a blue brush, in slot 1
                                   .Record(0x012D, {1})
                                   .Record(0x061D, {0x0021, 0x00F0, 50, 50, 0, 0})
                                   .Build();
    EXPECT_EQ(DrawMeta(picture, canvas_.DC(), &whole_, 1), 1);
    EXPECT_TRUE(*canvas_.Covered() == whole_);
}

SIZE_T MostMemorySoFar() {
    PROCESS_MEMORY_COUNTERS counters = {};
    ::K32GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return counters.PeakPagefileUsage;
}

// Pictures of a few hundred bytes with sizes that used all memory or ended the process; the records that follow are
// still drawn.
TEST_F(Thumbnail, UsesLittleMemoryForAnyDeclaredSize) {
    const auto picture = [](uint16_t scale) {
        return MetaFileBytes(60, 60).Record(0x0103, {8}).Record(0x020C, {1, 1}).Record(0x020E, {scale, scale});
    };
    const auto text = [](MetaFileBytes bytes, uint16_t height) {
        bytes.Record(0x02FB, {height, 0, 0, 0, 0, 0, 0, 0, 0, 0x7241, 0x6169, 0x6C}).Record(0x012D, {0});
        for (uint16_t letters = 0x4241; letters < 0x5A00; letters = static_cast<uint16_t>(letters + 0x0202))
            bytes.Record(0x0521, {2, letters, 0, 0});
        return bytes;
    };
    const auto pen = [](MetaFileBytes bytes, uint16_t width) {
        return bytes.Record(0x02FA, {0, width, 0, 0, 0}).Record(0x012D, {0});
    };
    constexpr uint16_t kMax = 0x7FFF, kMin = 0x8001;
    const struct {
        const char* name;
        MetaFileBytes picture;
    } rows[] = {
        {"font", text(picture(1), 30000)},
        {"font under a mapping", text(picture(kMax), 1)},
        {"ellipse", picture(100).Record(0x0418, {kMax, kMax, kMin, kMin})},
        {"corners", picture(100).Record(0x061C, {kMax, kMax, kMax, kMax, kMin, kMin})},
        {"polygon", picture(kMax).Record(0x0324, {3, kMax, kMax, kMin, kMin, 0, kMax})},
        {"pen", pen(picture(100), kMax).Record(0x0325, {3, 10, 10, 20, 20, 10, 20})},
        {"frame", picture(1)
                      .Record(0x06FF, {0, 6, 0, 0, 0, 1, 2, 0, 0, 9, 9, 2, 0, 5, 1, 4, 2})
                      .Record(0x02FC, {0, 0, 0, 0})
                      .Record(0x0429, {0, 1, kMax, kMax})},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        canvas_.Whiten();
        MetaFileBytes bytes = row.picture;
        const ByteVector whole =
            bytes.Objects(9).Record(0x01F0, {0}).Record(0x020E, {60, 60}).FilledRectangle(kBlue, 0, 0, 60, 60).Build();
        const SIZE_T before = MostMemorySoFar();
        EXPECT_EQ(DrawMeta(whole, canvas_.DC(), &whole_, 1), 1);
        EXPECT_LT((MostMemorySoFar() - before) >> 20, 16u) << "megabytes";
        EXPECT_TRUE(canvas_.Covered() && *canvas_.Covered() == whole_);
    }
}

// For every function number: parameters far beyond its slots and its bitmap.
TEST_F(Thumbnail, SurvivesEveryRecordWithInvalidWords) {
    for (uint16_t function = 0; function < 0x1100; ++function) {
        for (const size_t count : {2, 20}) {
            std::vector<uint16_t> words(count, 0x7FFF);
            words[0] = 0; // usually a slot
            DrawMeta(MetaFileBytes(60, 60).Record(0x02FC, {0, 0, 0, 0}).Record(function, words).Build(), canvas_.DC(),
                     &whole_, 1);
        }
    }
    EXPECT_EQ(::SaveDC(canvas_.DC()), 1);
}

TEST_F(Thumbnail, InvalidRecordsPreventAnyDrawing) {
    const ByteVector picture =
        MetaFileBytes(50, 50).FilledRectangle(kBlue, 0, 0, 50, 50).Record(0x0324, {999, 0, 0}).Build();
    EXPECT_EQ(DrawMeta(picture, canvas_.DC(), &whole_, 1), 0);
    ExpectNothingDrawn();
}

// A picture at the end of readable memory that declares more bytes.
TEST_F(Thumbnail, PicturesWithoutLengthAreLimitedByReadableMemory) {
    constexpr size_t kPage = 4096;
    auto* pages = static_cast<uint8_t*>(::VirtualAlloc(nullptr, 2 * kPage, MEM_RESERVE, PAGE_NOACCESS));
    ::VirtualAlloc(pages, kPage, MEM_COMMIT, PAGE_READWRITE);
    const auto atTheEnd = [&](const ByteVector& bytes, size_t missing) {
        uint8_t* at = pages + kPage - (bytes.size() - missing);
        std::memcpy(at, bytes.data(), bytes.size() - missing);
        return at;
    };
    const ByteVector dib = BlueDib(20, 20), picture = BluePicture(20, 20);
    for (const size_t missing : {size_t{1}, dib.size() - 40, dib.size() - 20, dib.size() - 1})
        EXPECT_EQ(DrawDIB(reinterpret_cast<BITMAPINFOHEADER*>(atTheEnd(dib, missing)), canvas_.DC(), &whole_, 1), 0);
    for (const size_t missing : {size_t{2}, picture.size() - 10, picture.size() - 1})
        EXPECT_EQ(DrawMetaFilePict(atTheEnd(picture, missing), canvas_.DC(), &whole_, 1), 0);
    ExpectNothingDrawn();
    EXPECT_NE(DrawDIB(reinterpret_cast<BITMAPINFOHEADER*>(atTheEnd(dib, 0)), canvas_.DC(), &whole_, 1), 0);
    EXPECT_EQ(DrawMetaFilePict(atTheEnd(picture, 0), canvas_.DC(), &whole_, 1), 1);
    ::VirtualFree(pages, 0, MEM_RELEASE);
}

TEST_F(Thumbnail, BitmapFromAPicture) {
    const SIZE size = {40, 40};
    EXPECT_EQ(CreateBitmapFromMetaFilePict(nullptr, &size), nullptr);
    const struct {
        ByteVector picture;
        COLORREF middle;
    } rows[] = {{BluePicture(40, 20), kBlue}, {BluePicture(0, 20), RGB(255, 255, 255)}};
    for (const auto& row : rows) {
        const orlo::OwnedBitmap bitmap(CreateBitmapFromMetaFilePict(row.picture.data(), &size));
        ASSERT_NE(bitmap, nullptr);
        BITMAP shape;
        ::GetObjectA(bitmap.get(), sizeof shape, &shape);
        EXPECT_TRUE(shape.bmWidth == 40 && shape.bmHeight == 40);
        const orlo::OwnedDC memory(::CreateCompatibleDC(nullptr));
        const orlo::SelectedObject selected(memory.get(), bitmap.get());
        EXPECT_EQ(::GetPixel(memory.get(), 20, 20), row.middle);
        EXPECT_EQ(::GetPixel(memory.get(), 20, 2), RGB(255, 255, 255)) << "above the picture";
    }
}

} // namespace
