// A picture in memory, 32 bits a pixel, that GDI draws into and programs read and write by pixel.
#pragma once

#include <afxgdi.h>

#include <cstdint>

#include "orlo/win/gdi.h"

class MemoryPicture {
public:
    // Undefined content after a change of size. False, with the picture empty, if there is no memory for it.
    bool Resize(CSize size);
    CSize Size() const { return m_size; }
    CRect Bounds() const { return CRect(CPoint(), m_size); }

    // Null while the picture is empty. Nothing that is selected into it outlives the call that selected it.
    HDC Dc() const { return m_dc.get(); }
    // Pixels of a row from the left, as 0x00rrggbb. What GDI has been asked to draw is there.
    uint32_t* Row(int y) const;

    void Fill(const CRect& area, COLORREF color);
    // Copies an area to the same place here.
    void CopyFrom(HDC source, const CRect& area);
    // Copies one area to another, larger or smaller; each pixel is one of the source's.
    void Stretch(HDC source, const CRect& from, const CRect& to);
    // Shifts the content; what comes in at the edges is undefined.
    void Shift(CSize by);

private:
    void Free();

    CSize m_size;
    orlo::OwnedBitmap m_bitmap; // selected as long as the device context is there
    orlo::OwnedDC m_dc;
    uint32_t* m_pixels = nullptr;
};
