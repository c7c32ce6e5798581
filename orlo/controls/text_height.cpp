// Height of a line of text in an owner-drawn control.

#include "orlo/controls/text_height.h"

#include "orlo/controls/paint.h"

namespace {

constexpr int kHeightWithoutDC = 16;

// In that font; null: in the font that the device context has by default.
int HeightOfM(HWND window, HFONT font) {
    const WindowDC dc(window);
    if (!dc.get()) return kHeightWithoutDC;
    const SelectedObject selected(dc.get(), font);
    SIZE size = {};
    ::GetTextExtentPoint32A(dc.get(), "M", 1, &size);
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
