// The rubber band for selecting by window.

#include "demo/viewer/rubber_band.h"

#include "demo/viewer/memory_picture.h"

CRect RubberBand::Frame() const {
    CRect frame(m_from.x, m_from.y, m_to.x, m_to.y);
    frame.NormalizeRect();
    frame.right += 1;
    frame.bottom += 1;
    return frame;
}

void RubberBand::Draw(HDC dc) const {
    const COLORREF color = IsCrossing() ? RGB(60, 200, 90) : RGB(70, 140, 255);
    const CRect frame = Frame();

    MemoryPicture tint;
    if (tint.Resize(CSize(1, 1))) {
        tint.Fill(tint.Bounds(), color);
        const BLENDFUNCTION blend = {AC_SRC_OVER, 0, 48, 0};
        ::AlphaBlend(dc, frame.left, frame.top, frame.Width(), frame.Height(), tint.Dc(), 0, 0, 1, 1, blend);
    }
    const orlo::OwnedPen pen(::CreatePen(IsCrossing() ? PS_DASH : PS_SOLID, 1, color));
    const orlo::SavedDC saved(dc);
    ::SelectObject(dc, pen.get());
    ::SelectObject(dc, ::GetStockObject(NULL_BRUSH));
    ::SetBkMode(dc, TRANSPARENT);
    ::Rectangle(dc, frame.left, frame.top, frame.right, frame.bottom);
}
