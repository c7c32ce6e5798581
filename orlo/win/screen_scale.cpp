// Sizes that are meant for 96 dots per inch.

#include "orlo/win/screen_scale.h"

#include "orlo/win/gdi.h"

int ScreenPixels(int at96) {
    const orlo::WindowDC screen(nullptr);
    return screen.get() ? ::MulDiv(at96, ::GetDeviceCaps(screen.get(), LOGPIXELSY), 96) : at96;
}
