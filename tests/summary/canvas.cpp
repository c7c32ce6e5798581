// Examines the pixels.

#include "canvas.h"

#include <algorithm>

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);

} // namespace

Canvas::Canvas(int width, int height) : Pixels(width, height), width_(width), height_(height) {}

void Canvas::Fill(const std::vector<uint8_t>& colors) {
    const uint8_t* at = colors.data();
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x, at += 3)
            ::SetPixelV(DC(), x, y, RGB(at[0], at[1], at[2]));
}

std::optional<RECT> Canvas::Covered() const {
    RECT covered = {width_, height_, 0, 0};
    for (LONG y = 0; y < height_; ++y) {
        for (LONG x = 0; x < width_; ++x) {
            if (At(x, y) == kWhite) continue;
            covered = {std::min(covered.left, x), std::min(covered.top, y), std::max(covered.right, x + 1),
                       std::max(covered.bottom, y + 1)};
        }
    }
    if (covered.right == 0) return std::nullopt;
    return covered;
}

double Canvas::Coverage() const {
    const int count = CountWhere(Whole(), [](COLORREF color) { return color != kWhite; });
    return count / (double(width_) * height_);
}

MeanColor Canvas::Mean() const {
    MeanColor mean = {};
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            const COLORREF pixel = At(x, y);
            mean.red += GetRValue(pixel);
            mean.green += GetGValue(pixel);
            mean.blue += GetBValue(pixel);
        }
    }
    const double pixels = double(width_) * height_;
    return {mean.red / pixels, mean.green / pixels, mean.blue / pixels};
}

bool operator==(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}
