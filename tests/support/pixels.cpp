// A picture in memory.

#include "support/pixels.h"

Pixels::Pixels(int width, int height)
    : m_width(width), m_height(height), m_dc(::CreateCompatibleDC(nullptr)) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    m_bits = static_cast<const DWORD*>(bits);
    m_before = ::SelectObject(m_dc, m_bitmap);
    Clear(RGB(255, 255, 255));
}

Pixels::~Pixels() {
    ::SelectObject(m_dc, m_before);
    ::DeleteObject(m_bitmap);
    ::DeleteDC(m_dc);
}

void Pixels::Clear(COLORREF color) {
    const COLORREF before = ::SetBkColor(m_dc, color);
    const RECT all = {0, 0, m_width, m_height};
    ::ExtTextOutA(m_dc, 0, 0, ETO_OPAQUE, &all, nullptr, 0, nullptr);
    ::SetBkColor(m_dc, before);
}

COLORREF Pixels::At(int x, int y) const {
    ::GdiFlush();
    const DWORD pixel = m_bits[y * m_width + x];
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
