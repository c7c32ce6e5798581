// The thumbnail as a PNG file: drawn by the library on a white bitmap in memory.

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>
#include <windows.h>

#include "commands.h"
#include "failure.h"
#include "fields.h"
#include "orlo/propset/inspect/set_image.h"
#include "orlo/summary/thumbnail.h"
#include "orlo/win/gdi.h"
#include "output_file.h"
#include "sources.h"

#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STBI_WRITE_NO_STDIO
#include <stb/stb_image_write.h>

namespace suminfo {
namespace {

constexpr uint32_t kThumbnailId = 17;
constexpr LONG kLargest = 8192;      // pixels on a side
constexpr LONG kVectorSide = 256;    // a metafile has no size in pixels: its longer side
constexpr size_t kPictureOffset = 8; // after tag and format

// The value of the thumbnail, after its length.
orlo::Bytes ThumbnailOf(const Source& source) {
    const NamedStream stream = SummaryOf(source);
    std::vector<orlo::Finding> findings;
    const auto set = orlo::ReadSetImage(stream.bytes.data(), stream.bytes.size(), findings);
    const orlo::ImageSection* section = set ? set->Find(kSummaryFormat) : nullptr;
    const orlo::ImageProperty* property = section ? section->Find(kThumbnailId) : nullptr;
    if (!property) throw Failure("it has no thumbnail");
    constexpr size_t kLength = 4;
    if (property->type != VT_CF || property->state != orlo::ValueState::complete ||
        property->bytes.size() < kLength + kPictureOffset)
        throw Failure("its thumbnail is damaged");
    return orlo::Bytes(property->bytes.begin() + kLength, property->bytes.end());
}

template <typename Number>
Number At(const orlo::Bytes& bytes, size_t offset) {
    Number number = 0;
    if (offset + sizeof number <= bytes.size()) std::memcpy(&number, bytes.data() + offset, sizeof number);
    return number;
}

// Width and height in the picture's own head; the library has the last word on whether it is one.
SIZE SizeInside(const orlo::Bytes& value) {
    if (At<uint32_t>(value, 4) == CF_DIB)
        return {At<LONG>(value, kPictureOffset + 4), At<LONG>(value, kPictureOffset + 8)};
    const auto width = At<int16_t>(value, kPictureOffset + 2);
    if (width > 0) return {width, At<int16_t>(value, kPictureOffset + 4)};
    return {At<LONG>(value, kPictureOffset + 4), At<LONG>(value, kPictureOffset + 8)};
}

SIZE OwnSize(const orlo::Bytes& value) {
    SIZE size = SizeInside(value);
    if (size.cx <= 0 || size.cy <= 0) throw Failure("its thumbnail is damaged");
    const LONG longer = std::max(size.cx, size.cy);
    const bool bitmap = At<uint32_t>(value, 4) == CF_DIB;
    if (bitmap && longer <= kLargest) return size;
    const double scale = static_cast<double>(kVectorSide) / longer;
    return {std::max(1L, static_cast<LONG>(size.cx * scale)),
            std::max(1L, static_cast<LONG>(size.cy * scale))};
}

class WhiteBitmap {
public:
    explicit WhiteBitmap(SIZE size)
        : size_(size), dc_(::CreateCompatibleDC(nullptr)), bitmap_(Made(dc_.get(), size, pixels_)),
          selected_(dc_.get(), bitmap_.get()) {
        if (!selected_) throw Failure("the system can't make a bitmap of that size");
        ::PatBlt(dc_.get(), 0, 0, size.cx, size.cy, WHITENESS);
        ::SetStretchBltMode(dc_.get(), HALFTONE);
    }

    HDC dc() const { return dc_.get(); }
    // Red, green and blue, line by line from the top.
    std::vector<uint8_t> Pixels() const {
        ::GdiFlush();
        const size_t count = static_cast<size_t>(size_.cx) * static_cast<size_t>(size_.cy);
        std::vector<uint8_t> colours;
        colours.reserve(3 * count);
        const auto* pixels = static_cast<const uint8_t*>(pixels_);
        for (const uint8_t* at = pixels; at != pixels + 4 * count; at += 4)
            colours.insert(colours.end(), {at[2], at[1], at[0]});
        return colours;
    }

private:
    // From the top down; the bitmap's memory is stored in `pixels`.
    static HBITMAP Made(HDC dc, SIZE size, void*& pixels) {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        return ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    }

    SIZE size_;
    void* pixels_ = nullptr;
    orlo::OwnedDC dc_;
    orlo::OwnedBitmap bitmap_;
    orlo::SelectedObject selected_;
};

void Append(void* file, void* data, int size) {
    std::fwrite(data, 1, static_cast<size_t>(size), static_cast<FILE*>(file));
}

void RefuseOtherKinds(const orlo::Bytes& value) {
    const auto tag = At<int32_t>(value, 0);
    const auto format = At<uint32_t>(value, 4);
    if (tag == -1 && (format == CF_METAFILEPICT || format == CF_DIB)) return;
    if (tag == -2) throw Failure("its thumbnail is a Macintosh picture, which suminfo doesn't draw");
    if (tag == -1 && format == CF_ENHMETAFILE)
        throw Failure("its thumbnail is an enhanced metafile, which suminfo doesn't draw");
    throw Failure("its thumbnail is of a clipboard format that suminfo doesn't draw");
}

} // namespace

void SaveThumbnail(const Source& source, const std::string& png, std::optional<SIZE> size) {
    const orlo::Bytes value = ThumbnailOf(source);
    RefuseOtherKinds(value);
    const SIZE pixels = size ? *size : OwnSize(value);
    if (pixels.cx <= 0 || pixels.cy <= 0 || pixels.cx > kLargest || pixels.cy > kLargest)
        throw Failure("a size is between 1x1 and 8192x8192");
    const WhiteBitmap bitmap(pixels);
    const RECT all = {0, 0, pixels.cx, pixels.cy};
    if (!DrawThumbnailValue(value.data(), static_cast<DWORD>(value.size()), bitmap.dc(), &all))
        throw Failure("its thumbnail is damaged");
    const std::vector<uint8_t> colours = bitmap.Pixels();
    OnFile(png, [&] {
        OutputFile file(png);
        if (!stbi_write_png_to_func(Append, file.Stream(), pixels.cx, pixels.cy, 3, colours.data(),
                                    3 * pixels.cx))
            throw Failure("can't be written");
        file.Finish();
    });
}

} // namespace suminfo
