// Thumbnails of real documents, compared with renderings by other programs: covered area and mean color.

#include <filesystem>
#include <gtest/gtest.h>

#include "canvas.h"
#include "orlo/summary/thumbnail.h"
#include "picture_bytes.h"
#include "support/file_bytes.h"
#include "support/object_counts.h"
#include "support/png_picture.h"

namespace fs = std::filesystem;

namespace {

const fs::path kThumbnails = fs::path(ORLO_TEST_DATA) / "thumbs";

void ExpectLikeReference(const ByteVector& value, const fs::path& png) {
    const PngPicture picture = ReadPng(png);
    ASSERT_GT(picture.width, 0) << png;
    Canvas reference(picture.width, picture.height), canvas(picture.width, picture.height);
    reference.Fill(picture.colors);
    const RECT whole = canvas.Whole();
    EXPECT_NE(DrawThumbnailValue(value.data(), static_cast<DWORD>(value.size()), canvas.DC(), &whole), 0);
    EXPECT_NEAR(canvas.Coverage(), reference.Coverage(), 0.05);
    const MeanColor mean = canvas.Mean(), expected = reference.Mean();
    EXPECT_NEAR(mean.red, expected.red, 6);
    EXPECT_NEAR(mean.green, expected.green, 6);
    EXPECT_NEAR(mean.blue, expected.blue, 6);
}

// Returns true for the one metafile that was stored without its header.
bool IsBroken(const std::string& name) {
    return name.rfind("metafile-vba-in-ppt", 0) == 0;
}

void Check(const fs::path& file) {
    SCOPED_TRACE(file.filename().string());
    const std::string name = file.filename().string();
    const ByteVector value = FileBytes(file);
    const bool drawn = (name.rfind("dib-", 0) == 0 || name.rfind("metafile-", 0) == 0) && !IsBroken(name);
    Canvas canvas(300, 200);
    const RECT whole = canvas.Whole();
    const int result = DrawThumbnailValue(value.data(), static_cast<DWORD>(value.size()), canvas.DC(), &whole);
    EXPECT_EQ(result != 0, drawn);
    EXPECT_EQ(canvas.Covered().has_value(), drawn);
    const fs::path png = fs::path(file).replace_extension(".png");
    if (drawn && fs::exists(png)) ExpectLikeReference(value, png);
}

void CheckAll() {
    for (const auto& entry : fs::directory_iterator(kThumbnails))
        if (entry.path().extension() == ".cf") Check(entry.path());
}

TEST(RealThumbnails, MatchTheirReferencesAndLeakNoObjects) {
    CheckAll();
    const int before = GdiObjectCount();
    for (int i = 0; i < 3; ++i)
        CheckAll();
    EXPECT_EQ(GdiObjectCount(), before);
}

// With any single byte of the header inverted, nothing must crash.
TEST(RealThumbnails, SurviveEveryWrongHeaderByte) {
    Canvas canvas(50, 50);
    const RECT whole = canvas.Whole();
    for (const auto& entry : fs::directory_iterator(kThumbnails)) {
        if (entry.path().extension() != ".cf") continue;
        const ByteVector good = FileBytes(entry.path());
        for (size_t i = 8; i < std::min<size_t>(good.size(), 600); ++i) {
            for (const uint8_t with : {0x00, 0x01, 0x7F, 0x80, 0xFF}) {
                ByteVector bad = good;
                bad[i] = with;
                DrawThumbnailValue(bad.data(), static_cast<DWORD>(bad.size()), canvas.DC(), &whole);
            }
        }
    }
    EXPECT_EQ(::SaveDC(canvas.DC()), 1);
}

} // namespace
