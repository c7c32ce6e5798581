// A picture in memory, 32 bits a pixel, that GDI draws into and programs read and write by pixel.
#pragma once

#include <afxgdi.h>

#include <cstdint>

class MemoryPicture {
public:
    MemoryPicture() = default;
    ~MemoryPicture();
    MemoryPicture(const MemoryPicture&) = delete;
    MemoryPicture& operator=(const MemoryPicture&) = delete;

    // Undefined content after a change of size. False, with the picture empty, if there is no memory for it.
    bool Resize(CSize size);
    CSize Size() const { return m_size; }
    CRect Bounds() const { return CRect(CPoint(), m_size); }

    // Null while the picture is empty. Nothing that is selected into it outlives the call that selected it.
    HDC Dc() const { return m_dc; }
    // Pixels of a row from the left, as 0x00rrggbb. What GDI has been asked to draw is there.
    uint32_t* Row(int y);

    void Fill(const CRect& area, COLORREF color);
    // Copies an area of the other picture, which has the same size.
    void CopyFrom(const MemoryPicture& other, const CRect& area);
    // Shifts the content; what comes in at the edges is undefined.
    void Shift(CSize by);

private:
    void Free();

    CSize m_size;
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_before = nullptr;
    uint32_t* m_pixels = nullptr;
};
