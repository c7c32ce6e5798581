// Height of a line of text in an owner-drawn control.

#include "orlo/controls/text_height.h"

#include "orlo/controls/paint.h"

namespace {

constexpr int kHeightWithoutDC = 16;

// In that font; null: in the font that the device context has by default.
int HeightOfM(HWND window, HFONT font) {
    const HDC dc = ::GetDC(window);
    if (!dc) return kHeightWithoutDC;
    SIZE size = {};
    {
        const SelectedObject selected(dc, font);
        ::GetTextExtentPoint32A(dc, "M", 1, &size);
    }
    ::ReleaseDC(window, dc);
    return size.cy;
}

} // namespace

int GetOwnerDrawFixedTextHeight(HWND hWnd) {
    return HeightOfM(hWnd, nullptr);
}

int ControlFontHeight(HWND window) {
    const auto font = reinterpret_cast<HFONT>(::SendMessageA(window, WM_GETFONT, 0, 0));
    return font ? HeightOfM(window, font) : 0;
}
