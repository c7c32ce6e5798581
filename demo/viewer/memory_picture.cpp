// A picture in memory, 32 bits a pixel.

#include "demo/viewer/memory_picture.h"

#include <cstddef>

MemoryPicture::~MemoryPicture() {
    Free();
}

void MemoryPicture::Free() {
    if (m_before) ::SelectObject(m_dc, m_before);
    if (m_bitmap) ::DeleteObject(m_bitmap);
    if (m_dc) ::DeleteDC(m_dc);
    m_size = CSize();
    m_dc = nullptr;
    m_bitmap = nullptr;
    m_before = nullptr;
    m_pixels = nullptr;
}

bool MemoryPicture::Resize(CSize size) {
    if (size == m_size) return true;
    Free();
    if (size.cx <= 0 || size.cy <= 0) return true;
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy; // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* pixels = nullptr;
    m_dc = ::CreateCompatibleDC(nullptr);
    if (m_dc) m_bitmap = ::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    if (!m_bitmap) {
        Free();
        return false;
    }
    m_before = ::SelectObject(m_dc, m_bitmap);
    m_pixels = static_cast<uint32_t*>(pixels);
    m_size = size;
    return true;
}

uint32_t* MemoryPicture::Row(int y) {
    ::GdiFlush();
    return m_pixels + static_cast<ptrdiff_t>(y) * m_size.cx;
}

void MemoryPicture::Fill(const CRect& area, COLORREF color) {
    ::SetBkColor(m_dc, color);
    ::ExtTextOutA(m_dc, 0, 0, ETO_OPAQUE, area, nullptr, 0, nullptr);
}

void MemoryPicture::CopyFrom(const MemoryPicture& other, const CRect& area) {
    ::BitBlt(m_dc, area.left, area.top, area.Width(), area.Height(), other.m_dc, area.left, area.top,
             SRCCOPY);
}

void MemoryPicture::Shift(CSize by) {
    ::BitBlt(m_dc, by.cx, by.cy, m_size.cx, m_size.cy, m_dc, 0, 0, SRCCOPY);
}
