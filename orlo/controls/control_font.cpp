// Fonts of the library's controls.

#include "orlo/controls/control_font.h"

#include <algorithm>
#include <cstring>

#include "orlo/win/gdi.h"
#include "orlo/win/screen_scale.h"

namespace {

constexpr int kHeightWithoutDC = 16;

orlo::OwnedFont CreateSharedFont() {
    LOGFONTA font = {};
    font.lfHeight = -ScreenPixels(12);
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    std::strcpy(font.lfFaceName, "MS Sans Serif");
    return orlo::OwnedFont(::CreateFontIndirectA(&font));
}

orlo::OwnedFont g_font;

} // namespace

int TextHeight(HDC dc) {
    SIZE size = {};
    ::GetTextExtentPoint32A(dc, "M", 1, &size);
    return size.cy;
}

int TextWidth(HDC dc, const char* text) {
    SIZE size = {};
    ::GetTextExtentPoint32A(dc, text, static_cast<int>(std::strlen(text)), &size);
    return size.cx;
}

int GetOwnerDrawFixedTextHeight(HWND hWnd) {
    const orlo::WindowDC dc(hWnd);
    return dc.get() ? TextHeight(dc.get()) : kHeightWithoutDC;
}

int ControlTextHeight(HWND window) {
    const orlo::WindowDC dc(window);
    if (!dc.get()) return kHeightWithoutDC;
    const int inDefaultFont = TextHeight(dc.get());
    const orlo::SelectedObject font(dc.get(), reinterpret_cast<HFONT>(::SendMessageA(window, WM_GETFONT, 0, 0)));
    return font ? std::max(inDefaultFont, TextHeight(dc.get())) : inDefaultFont;
}

HFONT SharedControlFont() {
    if (!g_font) g_font = CreateSharedFont();
    return g_font.get();
}

void ReleaseSharedFont() {
    g_font.reset();
}
