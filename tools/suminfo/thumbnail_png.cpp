// Saves the thumbnail as a PNG file or in its stored format.

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "commands.h"
#include "failure.h"
#include "fields.h"
#include "metafile_drawing.h"
#include "orlo/propset/inspect/set_image.h"
#include "orlo/summary/dib_drawing.h"
#include "output_file.h"
#include "picture_format.h"
#include "sources.h"

#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STBI_WRITE_NO_STDIO
#include <stb/stb_image_write.h>

namespace suminfo {
namespace {

constexpr uint32_t kThumbnailId = 17;
constexpr int kLargest = 8192;       // maximum width and height in pixels
constexpr int kVectorSide = 256;     // longer side of a metafile, which has no size in pixels
constexpr size_t kPictureOffset = 8; // after tag and format

// Returns the value of the thumbnail without its length.
orlo::Bytes ThumbnailOf(const Source& source) {
    const NamedStream stream = SummaryOf(source);
    std::vector<orlo::Finding> findings;
    const auto set = orlo::ReadSetImage(stream.bytes.data(), stream.bytes.size(), findings);
    const orlo::ImageSection* section = set ? set->Find(kSummaryFormat) : nullptr;
    const orlo::ImageProperty* property = section ? section->Find(kThumbnailId) : nullptr;
    if (!property) throw Failure("the document has no thumbnail");
    constexpr size_t kLength = 4;
    if (property->type != VT_CF || property->state != orlo::ValueState::complete ||
        property->bytes.size() < kLength + kPictureOffset)
        throw Failure("the thumbnail is damaged");
    return orlo::Bytes(property->bytes.begin() + kLength, property->bytes.end());
}

template <typename Number>
Number At(const orlo::Bytes& bytes, size_t offset) {
    Number number = 0;
    if (offset + sizeof number <= bytes.size()) std::memcpy(&number, bytes.data() + offset, sizeof number);
    return number;
}

bool IsBitmap(const orlo::Bytes& value) {
    return At<uint32_t>(value, 4) == kBitmap;
}

// Reads width and height from the picture's header. Drawing decides whether the picture is valid.
Extent ExtentInside(const orlo::Bytes& value) {
    const Extent wide = {At<int32_t>(value, kPictureOffset + 4), At<int32_t>(value, kPictureOffset + 8)};
    const auto width = At<int16_t>(value, kPictureOffset + 2);
    return IsBitmap(value) || width <= 0 ? wide : Extent{width, At<int16_t>(value, kPictureOffset + 4)};
}

Extent OwnExtent(const orlo::Bytes& value) {
    const Extent extent = ExtentInside(value);
    if (extent.width <= 0 || extent.height <= 0) throw Failure("the thumbnail is damaged");
    const int longer = std::max(extent.width, extent.height);
    if (IsBitmap(value) && longer <= kLargest) return extent;
    const double scale = static_cast<double>(kVectorSide) / longer;
    const auto scaled = [scale](int side) { return std::max(1, static_cast<int>(side * scale)); };
    return {scaled(extent.width), scaled(extent.height)};
}

void Append(void* bytes, void* data, int size) {
    static_cast<std::string*>(bytes)->append(static_cast<const char*>(data), static_cast<size_t>(size));
}

void RequireDrawable(const orlo::Bytes& value) {
    const auto tag = At<int32_t>(value, 0);
    const auto format = At<uint32_t>(value, 4);
    if (tag == kOfWindows && (format == kMetafilePicture || format == kBitmap)) return;
    const std::string kind = tag == kOfMacintosh                                ? "a Macintosh picture"
                             : tag == kOfWindows && format == kEnhancedMetafile ? "an enhanced metafile"
                                                                                : "of an unknown clipboard format";
    throw Failure("cannot draw the thumbnail, which is " + kind + "; use --original to save it unchanged");
}

std::vector<uint8_t> Drawn(const orlo::Bytes& value, Extent extent) {
    auto colors = IsBitmap(value) ? orlo::DrawDibFitted(value.data() + kPictureOffset, value.size() - kPictureOffset,
                                                        extent.width, extent.height)
                                  : DrawMetafile(value, extent);
    if (!colors) throw Failure("the thumbnail is damaged");
    return std::move(*colors);
}

struct StoredPicture {
    const char* ending;
    const char* kind;
    orlo::Bytes bytes;
};

StoredPicture PictureIn(const orlo::Bytes& value) {
    constexpr size_t kExtents = 8; // mapping mode, width, height and a handle without meaning
    const auto tag = At<int32_t>(value, 0);
    const auto format = At<uint32_t>(value, 4);
    const auto from = [&value](size_t offset) {
        return orlo::Bytes(value.begin() + static_cast<std::ptrdiff_t>(offset), value.end());
    };
    if (tag == kOfMacintosh) return {"pict", "a Macintosh picture", from(kPictureOffset)};
    if (tag == kOfWindows && format == kEnhancedMetafile) return {"emf", "an enhanced metafile", from(kPictureOffset)};
    if (tag == kOfWindows && format == kMetafilePicture && value.size() > kPictureOffset + kExtents)
        return {"wmf", "a metafile", from(kPictureOffset + kExtents)};
    if (tag != kOfWindows || format != kBitmap)
        return {"bin", "data of an unknown clipboard format", from(kPictureOffset)};
    auto file = orlo::BitmapFileFrom(value.data() + kPictureOffset, value.size() - kPictureOffset);
    if (!file) throw Failure("the thumbnail is damaged");
    return {"bmp", "a bitmap", std::move(*file)};
}

} // namespace

void SaveThumbnail(const Source& source, const std::string& png, std::optional<Extent> size) {
    const orlo::Bytes value = ThumbnailOf(source);
    RequireDrawable(value);
    const Extent extent = size ? *size : OwnExtent(value);
    if (extent.width <= 0 || extent.height <= 0 || extent.width > kLargest || extent.height > kLargest)
        throw Failure("the size must be between 1x1 and 8192x8192");
    const std::vector<uint8_t> colors = Drawn(value, extent);
    WarnOfEnding(png, "png", "a PNG picture");
    OnFile(png, [&] {
        std::string bytes;
        if (!stbi_write_png_to_func(Append, &bytes, extent.width, extent.height, 3, colors.data(), 3 * extent.width))
            throw Failure("cannot be written");
        WriteOutput(png, bytes);
    });
}

void SaveOriginalThumbnail(const Source& source, const std::string& output) {
    const StoredPicture picture = PictureIn(ThumbnailOf(source));
    WarnOfEnding(output, picture.ending, picture.kind);
    const std::string_view bytes(reinterpret_cast<const char*>(picture.bytes.data()), picture.bytes.size());
    OnFile(output, [&] { WriteOutput(output, bytes); });
}

} // namespace suminfo
