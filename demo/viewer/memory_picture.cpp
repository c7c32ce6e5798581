// A bitmap in memory with 32 bits per pixel.

#include "demo/viewer/memory_picture.h"

#include <cstddef>

void MemoryPicture::Free() {
    m_size = CSize();
    m_pixels = nullptr;
    m_dc.reset();
    m_bitmap.reset();
}

bool MemoryPicture::Resize(CSize size) {
    if (size == m_size) return true;
    Free();
    if (size.cx <= 0 || size.cy <= 0) return true;
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* pixels = nullptr;
    m_dc.reset(::CreateCompatibleDC(nullptr));
    if (m_dc) m_bitmap.reset(::CreateDIBSection(m_dc.get(), &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    if (!m_bitmap) {
        Free();
        return false;
    }
    ::SelectObject(m_dc.get(), m_bitmap.get());
    m_pixels = static_cast<uint32_t*>(pixels);
    m_size = size;
    return true;
}

uint32_t* MemoryPicture::Row(int y) const {
    ::GdiFlush();
    return m_pixels + static_cast<ptrdiff_t>(y) * m_size.cx;
}

void MemoryPicture::Fill(const CRect& area, COLORREF color) {
    ::SetBkColor(Dc(), color);
    ::ExtTextOutA(Dc(), 0, 0, ETO_OPAQUE, area, nullptr, 0, nullptr);
}

void MemoryPicture::CopyFrom(HDC source, const CRect& area) {
    ::BitBlt(Dc(), area.left, area.top, area.Width(), area.Height(), source, area.left, area.top, SRCCOPY);
}

void MemoryPicture::Stretch(HDC source, const CRect& from, const CRect& to) {
    ::SetStretchBltMode(Dc(), COLORONCOLOR);
    ::StretchBlt(Dc(), to.left, to.top, to.Width(), to.Height(), source, from.left, from.top, from.Width(),
                 from.Height(), SRCCOPY);
}

void MemoryPicture::Shift(CSize by) {
    ::BitBlt(Dc(), by.cx, by.cy, m_size.cx, m_size.cy, Dc(), 0, 0, SRCCOPY);
}
