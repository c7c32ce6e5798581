// Draws metafiles on a white bitmap in memory.

#include "metafile_drawing.h"

#include <windows.h>

#include "failure.h"
#include "orlo/summary/thumbnail.h"
#include "orlo/win/gdi.h"

namespace suminfo {
namespace {

class WhiteBitmap {
public:
    explicit WhiteBitmap(Extent size)
        : size_(size), dc_(::CreateCompatibleDC(nullptr)), bitmap_(CreateBitmap(dc_.get(), size, pixels_)),
          selected_(dc_.get(), bitmap_.get()) {
        if (!selected_) throw Failure("cannot create a bitmap of that size");
        ::PatBlt(dc_.get(), 0, 0, size.width, size.height, WHITENESS);
        ::SetStretchBltMode(dc_.get(), HALFTONE);
    }

    HDC dc() const { return dc_.get(); }
    // Returns red, green and blue of each pixel, from the top line down.
    std::vector<uint8_t> Pixels() const {
        ::GdiFlush();
        const size_t count = static_cast<size_t>(size_.width) * static_cast<size_t>(size_.height);
        std::vector<uint8_t> colors;
        colors.reserve(3 * count);
        const auto* pixels = static_cast<const uint8_t*>(pixels_);
        for (const uint8_t* at = pixels; at != pixels + 4 * count; at += 4)
            colors.insert(colors.end(), {at[2], at[1], at[0]});
        return colors;
    }

private:
    // Creates a top-down bitmap and stores the address of its memory in `pixels`.
    static HBITMAP CreateBitmap(HDC dc, Extent size, void*& pixels) {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof info.bmiHeader, size.width, -size.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        return ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    }

    Extent size_;
    void* pixels_ = nullptr;
    orlo::OwnedDC dc_;
    orlo::OwnedBitmap bitmap_;
    orlo::SelectedObject selected_;
};

} // namespace

std::optional<std::vector<uint8_t>> DrawMetafile(const orlo::Bytes& value, Extent extent) {
    const WhiteBitmap bitmap(extent);
    const RECT all = {0, 0, extent.width, extent.height};
    if (!DrawThumbnailValue(value.data(), static_cast<DWORD>(value.size()), bitmap.dc(), &all)) return std::nullopt;
    return bitmap.Pixels();
}

} // namespace suminfo
