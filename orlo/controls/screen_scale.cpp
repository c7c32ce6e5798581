// Sizes that are meant for 96 dots per inch.

#include "orlo/controls/screen_scale.h"

#include <windows.h>

int ScreenPixels(int at96) {
    const HDC screen = ::GetDC(nullptr);
    if (!screen) return at96;
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    return ::MulDiv(at96, dpi, 96);
}
