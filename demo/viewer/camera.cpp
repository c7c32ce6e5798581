// The visible part of a drawing.

#include "demo/viewer/camera.h"

#include <cmath>
#include <new>

#include "drawcore/view.h"

namespace {

constexpr double kFarPixel = 1e6;

int Pixel(double value) {
    return static_cast<int>(std::floor(std::clamp(value, -kFarPixel, kFarPixel)));
}

} // namespace

Camera::Camera() : m_viewport(::ViewportNewEx()) {
    if (!m_viewport) throw std::bad_alloc();
}

void Camera::SetWindow(CSize pixels) {
    m_window = pixels;
    ::ViewportSetRect(Viewport(), CRect(CPoint(), m_window));
}

void Camera::Fit(GraphicStruct* graphic, int margin) {
    const CRect window(CPoint(), m_window);
    CRect inner = window;
    inner.DeflateRect(margin, margin);
    ::ViewportSetRect(Viewport(), inner.IsRectEmpty() ? window : inner);
    ::ViewportFitVisible(Viewport(), graphic);
    ::ViewportSetRect(Viewport(), window);
}

void Camera::Zoom(double factor, CPoint anchor) {
    ::ViewportZoom(Viewport(), anchor, factor);
}

void Camera::Pan(CSize pixels) {
    ::ViewportPan(Viewport(), pixels.cx, pixels.cy);
}

void Camera::CenterOn(WorldPoint point) {
    const CPoint now = ToPixels(point);
    Pan(CSize(m_window.cx / 2 - now.x, m_window.cy / 2 - now.y));
}

WorldPoint Camera::ToWorld(CPoint pixel) const {
    WorldPoint point;
    ::ViewportToDrawing(Viewport(), pixel, &point.x, &point.y);
    return point;
}

CPoint Camera::ToPixels(WorldPoint point) const {
    constexpr int kSpan = 1000;
    const WorldPoint origin = ToWorld(CPoint(0, 0)), distant = ToWorld(CPoint(kSpan, kSpan));
    return CPoint(Pixel((point.x - origin.x) / (distant.x - origin.x) * kSpan),
                  Pixel((point.y - origin.y) / (distant.y - origin.y) * kSpan));
}

CRect Camera::ToPixels(const WorldBox& box) const {
    const CPoint topLeft = ToPixels(WorldPoint{box.x1, box.y2});
    const CPoint bottomRight = ToPixels(WorldPoint{box.x2, box.y1});
    return CRect(topLeft.x, topLeft.y, bottomRight.x + 1, bottomRight.y + 1);
}

WorldBox Camera::Visible() const {
    return WorldBox::Between(ToWorld(CPoint(0, 0)), ToWorld(CPoint(m_window.cx, m_window.cy)));
}
