// The highlight around selected graphics.
//
// The selection is drawn once more, on a background of a color that is not used otherwise: every pixel of another color
// belongs to it. This works for everything that the drawing code draws, including texts and hatches. If everything is
// selected, the picture of the drawing is used instead.

#include "demo/viewer/selection_highlight.h"

#include <algorithm>

namespace {

constexpr COLORREF kGround = RGB(1, 2, 3);
constexpr uint32_t kGroundPixel = 0x010203;
constexpr uint32_t kRim = 0x3D9BFF;

// Mixes three parts of the highlight color with one part of the existing color.
uint32_t Blend(uint32_t below) {
    const uint32_t quarter = (below >> 2) & 0x3F3F3F;
    return quarter + ((kRim >> 1) & 0x7F7F7F) + ((kRim >> 2) & 0x3F3F3F);
}

} // namespace

bool SelectionHighlight::Begin(CSize scene, CRect area) {
    const CRect all(CPoint(), scene);
    m_area.SetRectEmpty();
    if (!m_mask.Resize(scene) || !m_area.IntersectRect(area, all)) return false;
    m_around = m_area;
    m_around.InflateRect(kRadius, kRadius);
    m_around.IntersectRect(m_around, all);
    ::SelectClipRgn(m_mask.Dc(), nullptr);
    m_mask.Fill(m_around, kGround);
    ::IntersectClipRect(m_mask.Dc(), m_around.left, m_around.top, m_around.right, m_around.bottom);
    return true;
}

void SelectionHighlight::TakeFrom(const MemoryPicture& picture, COLORREF background) {
    const uint32_t backgroundPixel =
        static_cast<uint32_t>(RGB(GetBValue(background), GetGValue(background), GetRValue(background)));
    const CRect& around = m_around;
    for (int y = around.top; y < around.bottom; ++y) {
        const uint32_t* pixels = picture.Row(y);
        std::replace_copy_if(
            pixels + around.left, pixels + around.right, m_mask.Row(y) + around.left,
            [=](uint32_t pixel) { return (pixel & 0xFFFFFF) == backgroundPixel; }, kGroundPixel);
    }
}

void SelectionHighlight::DrawInto(MemoryPicture& scene) {
    if (m_area.IsRectEmpty()) return;
    Spread();
    const CRect &area = m_area, &around = m_around;
    const int width = around.Width();
    for (int y = area.top; y < area.bottom; ++y) {
        uint32_t* pixels = scene.Row(y);
        const int row = y - around.top;
        const int first = std::max(0, row - kRadius), last = std::min(around.Height() - 1, row + kRadius);
        for (int x = area.left; x < area.right; ++x) {
            const int column = x - around.left;
            if (m_drawn[row * width + column]) continue;
            for (int line = first; line <= last; ++line) {
                if (!m_spread[line * width + column]) continue;
                pixels[x] = Blend(pixels[x]);
                break;
            }
        }
    }
}

void SelectionHighlight::Spread() {
    const CRect& area = m_around;
    const int width = area.Width();
    m_drawn.assign(static_cast<size_t>(width) * area.Height(), 0);
    m_spread.assign(m_drawn.size(), 0);
    for (int y = 0; y < area.Height(); ++y) {
        const uint32_t* pixels = m_mask.Row(area.top + y) + area.left;
        uint8_t* drawn = &m_drawn[static_cast<size_t>(y) * width];
        uint8_t* spread = &m_spread[static_cast<size_t>(y) * width];
        for (int x = 0; x < width; ++x) {
            if ((pixels[x] & 0xFFFFFF) == kGroundPixel) continue;
            drawn[x] = 1;
            std::fill(spread + std::max(0, x - kRadius), spread + std::min(width, x + kRadius + 1), uint8_t{1});
        }
    }
}
