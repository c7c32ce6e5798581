// Sizes at the resolution of the screen and in the font of a dialog.

#include "orlo/win/screen_scale.h"

#include "orlo/win/gdi.h"

int ScreenPixels(int at96) {
    const orlo::OwnedDC screen(::CreateCompatibleDC(nullptr));
    return screen ? ScreenPixels(screen.get(), at96) : at96;
}

int ScreenPixels(HDC dc, int at96) {
    return ::MulDiv(at96, ::GetDeviceCaps(dc, LOGPIXELSY), 96);
}

int FontHeight(HDC dc, int points) {
    constexpr int kPointsPerInch = 72;
    return -::MulDiv(points, ::GetDeviceCaps(dc, LOGPIXELSY), kPointsPerInch);
}

int AverageLetterWidth(HDC dc) {
    static constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    SIZE letters = {};
    ::GetTextExtentPoint32A(dc, kLetters, sizeof kLetters - 1, &letters);
    return (letters.cx / 26 + 1) / 2;
}
