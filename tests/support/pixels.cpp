// Reads pixels of a bitmap in memory.

#include "support/pixels.h"

#include <stdexcept>

Pixels::Pixels(int width, int height) {
    if (!m_picture.Resize({width, height})) throw std::runtime_error("no memory for a picture");
    Clear(RGB(255, 255, 255));
}

void Pixels::Clear(COLORREF color) {
    const COLORREF before = ::GetBkColor(DC());
    m_picture.Fill(m_picture.Bounds(), color);
    ::SetBkColor(DC(), before);
}

COLORREF Pixels::At(int x, int y) const {
    const uint32_t pixel = m_picture.Row(y)[x];
    return RGB(pixel >> 16, pixel >> 8, pixel);
}

int Pixels::Count(const RECT& rect, COLORREF color) const {
    return CountWhere(rect, [=](COLORREF at) { return at == color; });
}

int Pixels::CountWhere(const RECT& rect, const std::function<bool(COLORREF)>& is) const {
    int count = 0;
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x)
            count += is(At(x, y));
    }
    return count;
}

int Pixels::ChangesAlongRow(int y, int left, int right, COLORREF color) const {
    int changes = 0;
    for (int x = left + 1; x < right; ++x)
        changes += (At(x, y) == color) != (At(x - 1, y) == color);
    return changes;
}
