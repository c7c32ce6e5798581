// Shapes shared by the owner-drawn controls.

#include "orlo/controls/paint.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "orlo/controls/control_font.h"

namespace {

// Converts an sRGB channel to linear light.
double LinearLight(BYTE channel) {
    const double value = channel / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(COLORREF color) {
    return 0.2126 * LinearLight(GetRValue(color)) + 0.7152 * LinearLight(GetGValue(color)) +
           0.0722 * LinearLight(GetBValue(color));
}

} // namespace

double Contrast(COLORREF a, COLORREF b) {
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

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

int CenteredTextTop(HDC dc, const RECT& row, int least) {
    const int space = static_cast<int>(row.bottom - row.top) - TextHeight(dc);
    return static_cast<int>(row.top) + std::max(space / 2, least);
}

COLORREF TextColorOnWindow() {
    constexpr COLORREF kBlack = RGB(0, 0, 0);
    const bool readable = Contrast(kBlack, ::GetSysColor(COLOR_WINDOW)) >= kReadableContrast;
    return readable ? kBlack : ::GetSysColor(COLOR_WINDOWTEXT);
}

RECT Inflated(const RECT& rect, int by) {
    return {rect.left - by, rect.top - by, rect.right + by, rect.bottom + by};
}
