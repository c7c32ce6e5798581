// A bitmap in memory with 32 bits per pixel, for drawing with GDI and for direct access to pixels.
#pragma once

#include <afxgdi.h>

#include <cstdint>

#include "orlo/win/gdi.h"

class MemoryPicture {
public:
    // Changes the size; the content becomes undefined. Returns false, with the bitmap empty, if there is not enough
    // memory.
    bool Resize(CSize size);
    CSize Size() const { return m_size; }
    CRect Bounds() const { return CRect(CPoint(), m_size); }

    // Returns null if the bitmap is empty. Objects selected into it must be deselected by the function that selected
    // them.
    HDC Dc() const { return m_dc.get(); }
    // Returns the pixels of a row as 0x00rrggbb, after flushing GDI.
    uint32_t* Row(int y) const;

    void Fill(const CRect& area, COLORREF color);
    // Copies an area from the same position of the source.
    void CopyFrom(HDC source, const CRect& area);
    // Copies and scales one area to another without interpolation.
    void Stretch(HDC source, const CRect& from, const CRect& to);
    // Moves the content; the pixels that enter at the edges are undefined.
    void Shift(CSize by);

private:
    void Free();

    CSize m_size;
    orlo::OwnedBitmap m_bitmap; // selected during the lifetime of the device context
    orlo::OwnedDC m_dc;
    uint32_t* m_pixels = nullptr;
};
