// Conversion of sizes from 96 dpi to the resolution of the screen.

#include "orlo/win/screen_scale.h"

#include "orlo/win/gdi.h"

int ScreenPixels(int at96) {
    const orlo::OwnedDC screen(::CreateCompatibleDC(nullptr));
    return screen ? ::MulDiv(at96, ::GetDeviceCaps(screen.get(), LOGPIXELSY), 96) : at96;
}
