// Thumbnails of real documents against pictures of them that other programs made: covered area and mean
// colour.

#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>

#include "canvas.h"
#include "orlo/summary/thumbnail.h"
#include "picture_bytes.h"
#include "support/object_counts.h"

#define STB_IMAGE_IMPLEMENTATION
#define STBI_ONLY_PNG
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb/stb_image.h>
#pragma GCC diagnostic pop

namespace fs = std::filesystem;

namespace {

const fs::path kThumbnails = fs::path(ORLO_TEST_DATA) / "thumbs";

ByteVector FileBytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return ByteVector(std::istreambuf_iterator<char>(file), {});
}

struct Reference {
    int width = 0, height = 0;
    double coverage = 0; // share of pixels that aren't white
    MeanColour mean = {};
};

Reference ReadReference(const fs::path& path) {
    Reference reference;
    int channels = 0;
    const std::unique_ptr<stbi_uc, decltype(&stbi_image_free)> pixels(
        stbi_load(path.string().c_str(), &reference.width, &reference.height, &channels, 3),
        &stbi_image_free);
    if (!pixels) return reference;
    const int count = reference.width * reference.height;
    for (int i = 0; i < count; ++i) {
        const stbi_uc* p = pixels.get() + 3 * i;
        reference.coverage += p[0] != 255 || p[1] != 255 || p[2] != 255;
        reference.mean.red += p[0];
        reference.mean.green += p[1];
        reference.mean.blue += p[2];
    }
    reference.coverage /= count;
    reference.mean = {reference.mean.red / count, reference.mean.green / count, reference.mean.blue / count};
    return reference;
}

void ExpectLikeReference(const ByteVector& value, const fs::path& png) {
    const Reference reference = ReadReference(png);
    ASSERT_GT(reference.width, 0) << png;
    Canvas canvas(reference.width, reference.height);
    const RECT whole = canvas.Whole();
    EXPECT_NE(DrawThumbnailValue(value.data(), static_cast<DWORD>(value.size()), canvas.DC(), &whole), 0);
    EXPECT_NEAR(canvas.Coverage(), reference.coverage, 0.05);
    const MeanColour mean = canvas.Mean();
    EXPECT_NEAR(mean.red, reference.mean.red, 6);
    EXPECT_NEAR(mean.green, reference.mean.green, 6);
    EXPECT_NEAR(mean.blue, reference.mean.blue, 6);
}

// The one metafile that was stored without its header.
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
    const int result =
        DrawThumbnailValue(value.data(), static_cast<DWORD>(value.size()), canvas.DC(), &whole);
    EXPECT_EQ(result != 0, drawn);
    EXPECT_EQ(canvas.Covered().has_value(), drawn);
    const fs::path png = fs::path(file).replace_extension(".png");
    if (drawn && fs::exists(png)) ExpectLikeReference(value, png);
}

void CheckAll() {
    for (const auto& entry : fs::directory_iterator(kThumbnails))
        if (entry.path().extension() == ".cf") Check(entry.path());
}

TEST(RealThumbnails, DrawLikeTheirReferences) {
    CheckAll();
}

TEST(RealThumbnails, LeaveNoObjectsBehind) {
    CheckAll();
    const int before = GdiObjectCount();
    for (int i = 0; i < 3; ++i)
        CheckAll();
    EXPECT_EQ(GdiObjectCount(), before);
}

// Every byte of the head, one after the other, turned over: whatever comes of it, nothing breaks.
TEST(RealThumbnails, SurviveEveryWrongByteInTheirHeads) {
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
