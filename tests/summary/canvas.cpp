// A 32-bit DIB section whose first line is the top.

#include "canvas.h"

#include <algorithm>

namespace {

constexpr uint32_t kRgb = 0x00FFFFFF;

} // namespace

Canvas::Canvas(int width, int height) : width_(width), height_(height), dc_(::CreateCompatibleDC(nullptr)) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    bitmap_ = ::CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    pixels_ = static_cast<uint32_t*>(bits);
    before_ = ::SelectObject(dc_, bitmap_);
    Clear();
}

Canvas::~Canvas() {
    ::SelectObject(dc_, before_);
    ::DeleteObject(bitmap_);
    ::DeleteDC(dc_);
}

void Canvas::Clear() {
    ::GdiFlush();
    std::fill_n(pixels_, width_ * height_, kRgb);
}

COLORREF Canvas::Pixel(int x, int y) const {
    ::GdiFlush();
    const uint32_t pixel = pixels_[y * width_ + x];
    return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

std::optional<RECT> Canvas::Covered() const {
    ::GdiFlush();
    RECT covered = {width_, height_, 0, 0};
    for (LONG y = 0; y < height_; ++y) {
        for (LONG x = 0; x < width_; ++x) {
            if ((pixels_[y * width_ + x] & kRgb) == kRgb) continue;
            covered = {std::min(covered.left, x), std::min(covered.top, y), std::max(covered.right, x + 1),
                       std::max(covered.bottom, y + 1)};
        }
    }
    if (covered.right == 0) return std::nullopt;
    return covered;
}

double Canvas::Coverage(const RECT& rect) const {
    int count = 0;
    for (int y = rect.top; y < rect.bottom; ++y)
        for (int x = rect.left; x < rect.right; ++x)
            count += Pixel(x, y) != RGB(255, 255, 255);
    return count / (double(rect.right - rect.left) * (rect.bottom - rect.top));
}

MeanColour Canvas::Mean(const RECT& rect) const {
    MeanColour mean = {};
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x) {
            const COLORREF pixel = Pixel(x, y);
            mean.red += GetRValue(pixel);
            mean.green += GetGValue(pixel);
            mean.blue += GetBValue(pixel);
        }
    }
    const double pixels = double(rect.right - rect.left) * (rect.bottom - rect.top);
    return {mean.red / pixels, mean.green / pixels, mean.blue / pixels};
}

bool operator==(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}
