// The shapes that the owner-drawn controls share.

#include "orlo/controls/paint.h"

#include <cstring>

void FillSolid(HDC dc, const RECT& rect, COLORREF color) {
    const COLORREF before = ::SetBkColor(dc, color);
    ::ExtTextOutA(dc, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
    ::SetBkColor(dc, before);
}

void FrameRectangle(HDC dc, const RECT& rect, COLORREF color, int width) {
    const orlo::OwnedPen pen(::CreatePen(PS_SOLID, width, color));
    const orlo::SelectedObject selectedPen(dc, pen.get());
    const orlo::SelectedObject hollow(dc, ::GetStockObject(NULL_BRUSH));
    ::Rectangle(dc, rect.left, rect.top, rect.right, rect.bottom);
}

void DrawClippedText(HDC dc, int x, int y, const RECT& clip, const char* text, COLORREF color) {
    const orlo::TextColor colors(dc, color);
    ::ExtTextOutA(dc, x, y, ETO_CLIPPED, &clip, text, static_cast<UINT>(std::strlen(text)), nullptr);
}

COLORREF InkOnWindow() {
    const COLORREF window = ::GetSysColor(COLOR_WINDOW);
    const int mean = (GetRValue(window) + GetGValue(window) + GetBValue(window)) / 3;
    return mean < 0x80 ? ::GetSysColor(COLOR_WINDOWTEXT) : RGB(0, 0, 0);
}

RECT Inflated(const RECT& rect, int by) {
    return {rect.left - by, rect.top - by, rect.right + by, rect.bottom + by};
}
