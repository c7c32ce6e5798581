// The scale and the conversions of a viewport.
#include "drawcore/src/paint/viewport.h"

#include <algorithm>
#include <cmath>

#include "drawcore/src/graphics/object_counts.h"

namespace drawcore {

namespace {

// Beyond these limits, doubles or device coordinates are too imprecise.
constexpr double kSmallestScale = 1e-12, kLargestScale = 1e12;

} // namespace

Viewport::Viewport() {
    ++ObjectCounts::viewports;
}

Viewport::~Viewport() {
    --ObjectCounts::viewports;
}

Point Viewport::Middle() const {
    return {(rect.left + rect.right - 1) / 2.0, (rect.top + rect.bottom - 1) / 2.0};
}

void Viewport::Show(const Extents& extents) {
    if (extents.IsEmpty()) return;
    const double width = extents.high.x - extents.low.x, height = extents.high.y - extents.low.y;
    if (!std::isfinite(width) || !std::isfinite(height)) return;
    // From the center of the first pixel to that of the last, so that geometry on the edge is visible.
    const double across = std::max<double>(rect.right - rect.left - 1, 1),
                 down = std::max<double>(rect.bottom - rect.top - 1, 1);
    double scale = kLargestScale;
    if (width > 0) scale = std::min(scale, across / width);
    if (height > 0) scale = std::min(scale, down / height);
    scale_ = width > 0 || height > 0 ? std::max(scale, kSmallestScale) : 1;
    center_ = {extents.low.x + width / 2, extents.low.y + height / 2};
}

void Viewport::Zoom(Point fixed, double factor) {
    if (!(factor > 0) || !std::isfinite(factor)) return;
    const Point anchor = ToDrawing(fixed);
    scale_ = std::clamp(scale_ * factor, kSmallestScale, kLargestScale);
    const Point now = ToDrawing(fixed);
    center_ = {center_.x + anchor.x - now.x, center_.y + anchor.y - now.y};
}

void Viewport::Pan(double dx, double dy) {
    center_ = {center_.x - dx / scale_, center_.y + dy / scale_};
}

Point Viewport::ToDrawing(Point device) const {
    const Point middle = Middle();
    return {center_.x + (device.x - middle.x) / scale_, center_.y - (device.y - middle.y) / scale_};
}

Matrix Viewport::ToDevice() const {
    const Point middle = Middle();
    return Matrix::FromAxes({scale_, 0, 0}, {0, -scale_, 0}, {0, 0, scale_},
                            {middle.x - center_.x * scale_, middle.y + center_.y * scale_, 0});
}

} // namespace drawcore
