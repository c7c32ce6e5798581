// Draws the thumbnail of a summary on white, at any size.

#include <windows.h>

#include <algorithm>
#include <cstring>

#include "orlo/c/guarded_call.h"
#include "orlo/c/propset.h"
#include "orlo/summary/thumbnail.h"
#include "orlo/win/gdi.h"

using namespace orlo;

namespace {

constexpr uint32_t kLargest = 8192;     // maximum width and height in pixels
constexpr double kVectorSide = 256;     // longer side of a picture without a size in pixels
constexpr size_t kLengthSize = 4;       // precedes the value
constexpr size_t kPictureOffset = 8;    // follows tag and format
constexpr uint32_t kColor = 0x00FFFFFF; // color bits of a pixel; the others are alpha

template <class Number>
Number At(const Bytes& bytes, size_t offset) {
    Number number = 0;
    if (offset + sizeof number <= bytes.size()) std::memcpy(&number, bytes.data() + offset, sizeof number);
    return number;
}

// Returns the value without its length: tag, format, picture.
Bytes RequireThumbnail(OrloPropset set) {
    const auto open = RequireSet(set);
    const ImageProperty& property = RequireProperty(open->image, &kOrloSummary, kOrloThumbnail);
    if (property.type != kOrloTypeClipboard) ThrowError(kOrloWrongType, "the thumbnail is not a picture");
    if (property.state != ValueState::complete || property.bytes.size() < kLengthSize + kPictureOffset)
        ThrowError(kOrloDamaged, "the thumbnail is damaged");
    return Bytes(property.bytes.begin() + kLengthSize, property.bytes.end());
}

// Reads width and height from the picture's header. Drawing decides whether the picture is valid.
SIZE SizeInside(const Bytes& value) {
    if (At<uint32_t>(value, 4) == CF_DIB)
        return {At<LONG>(value, kPictureOffset + 4), At<LONG>(value, kPictureOffset + 8)};
    const auto width = At<int16_t>(value, kPictureOffset + 2);
    if (width > 0) return {width, At<int16_t>(value, kPictureOffset + 4)};
    return {At<LONG>(value, kPictureOffset + 4), At<LONG>(value, kPictureOffset + 8)};
}

SIZE NaturalSize(const Bytes& value) {
    const SIZE size = SizeInside(value);
    if (size.cx <= 0 || size.cy <= 0) ThrowError(kOrloDamaged, "the thumbnail is damaged or in an unsupported format");
    const double longer = std::max(size.cx, size.cy);
    if (At<uint32_t>(value, 4) == CF_DIB && longer <= kLargest) return size;
    const double scale = kVectorSide / longer;
    return {std::max(1L, static_cast<LONG>(size.cx * scale)), std::max(1L, static_cast<LONG>(size.cy * scale))};
}

// Returns the requested size, and sets it to the picture's own where it is 0 by 0.
SIZE RequestedSize(const Bytes& value, uint32_t& width, uint32_t& height) {
    if (width == 0 && height == 0) {
        const SIZE own = NaturalSize(value);
        width = static_cast<uint32_t>(own.cx);
        height = static_cast<uint32_t>(own.cy);
    }
    if (width == 0 || height == 0 || width > kLargest || height > kLargest)
        ThrowError(kOrloBadArgument, "the size must be between 1x1 and 8192x8192");
    return {static_cast<LONG>(width), static_cast<LONG>(height)};
}

struct Picture {
    orlo::OwnedBitmap bitmap;
    uint32_t* pixels; // pixels of the bitmap, top row first; blue is in the lowest byte
};

Picture Render(const Bytes& value, SIZE size) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const orlo::OwnedDC dc(::CreateCompatibleDC(nullptr));
    void* bits = nullptr;
    Picture picture{orlo::OwnedBitmap(::CreateDIBSection(dc.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0)), nullptr};
    if (!picture.bitmap) ThrowError(kOrloOutOfMemory, "cannot create a bitmap of that size");
    picture.pixels = static_cast<uint32_t*>(bits);
    const orlo::SelectedObject selected(dc.get(), picture.bitmap.get());
    ::PatBlt(dc.get(), 0, 0, size.cx, size.cy, WHITENESS);
    ::SetStretchBltMode(dc.get(), HALFTONE);
    const RECT all = {0, 0, size.cx, size.cy};
    if (!::DrawThumbnailValue(value.data(), static_cast<DWORD>(value.size()), dc.get(), &all))
        ThrowError(kOrloDamaged, "the thumbnail is damaged or in an unsupported format");
    ::GdiFlush();
    const size_t count = static_cast<size_t>(size.cx) * static_cast<size_t>(size.cy);
    std::for_each(picture.pixels, picture.pixels + count, [](uint32_t& pixel) { pixel |= ~kColor; });
    return picture;
}

void SwapRedAndBlue(uint32_t& pixel) {
    pixel = (pixel & 0xFF00FF00) | (pixel & 0xFF) << 16 | (pixel >> 16 & 0xFF);
}

} // namespace

OrloResult ORLO_CALL OrloPropsetGetThumbnailPixels(OrloPropset set, uint32_t order, uint32_t* width, uint32_t* height,
                                                   void* buffer, size_t* size) {
    return GuardedCall([&] {
        RequireNotNull(size, "the size");
        if (order > kOrloRgba) ThrowError(kOrloBadArgument, "unknown pixel order");
        const Bytes value = RequireThumbnail(set);
        const SIZE pixels =
            RequestedSize(value, RequireNotNull(width, "the width"), RequireNotNull(height, "the height"));
        const size_t count = static_cast<size_t>(pixels.cx) * static_cast<size_t>(pixels.cy);
        if (buffer == nullptr || *size < count * sizeof(uint32_t)) // stores the size, and fails for a small buffer
            return CopyOut(nullptr, count * sizeof(uint32_t), buffer, size);
        const Picture picture = Render(value, pixels);
        if (order == kOrloRgba) std::for_each(picture.pixels, picture.pixels + count, SwapRedAndBlue);
        CopyOut(picture.pixels, count * sizeof(uint32_t), buffer, size);
    });
}

OrloResult ORLO_CALL OrloPropsetGetThumbnailBitmap(OrloPropset set, uint32_t* width, uint32_t* height,
                                                   HBITMAP__** bitmap) {
    return GuardedResult(bitmap, "the bitmap", [&] {
        const Bytes value = RequireThumbnail(set);
        const SIZE size =
            RequestedSize(value, RequireNotNull(width, "the width"), RequireNotNull(height, "the height"));
        return Render(value, size).bitmap.release();
    });
}
