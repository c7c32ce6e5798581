// Color conversions between RGB and HSV, and the sort order of colors.

#include "orlo/controls/color_order.h"

#include <algorithm>
#include <cmath>

namespace {

double Unit(double x) {
    return std::clamp(x, 0.0, 1.0);
}

template <class T>
int Order(T a, T b) {
    return a < b ? -1 : a > b ? 1 : 0;
}

bool IsMarker(DWORD color) {
    return (color & 0xFF000000u) != 0;
}

} // namespace

void RGB_to_HSV(double r, double g, double b, double* h, double* s, double* v) {
    *h = *s = 0.0;
    const double max = Unit(std::max({r, g, b}));
    const double min = Unit(std::min({r, g, b}));
    *v = max;
    const double diff = max - min;
    if (!(diff > 0.0)) return;

    const double toRed = Unit((max - r) / diff);
    const double toGreen = Unit((max - g) / diff);
    const double toBlue = Unit((max - b) / diff);
    double sixths;
    if (r == max)
        sixths = g == min ? 5.0 + toBlue : 1.0 - toGreen;
    else if (g == max)
        sixths = b == min ? 1.0 + toRed : 3.0 - toBlue;
    else
        sixths = r == min ? 3.0 + toGreen : 5.0 - toRed;
    *h = sixths / 6.0;
    *s = std::min(diff / max, 1.0);
}

void HSV_to_RGB(double h, double s, double v, double* r, double* g, double* b) {
    *r = *g = *b = 0.0;
    if (!(v > 0.0)) return;
    v = std::min(v, 1.0);
    const double min = Unit((1.0 - s) * v);
    const double sixths = 6.0 * h;
    const double sector = std::floor(sixths);
    const double d = (sixths - sector) * v * s;
    const double up = Unit(min + d);
    const double down = Unit(v - d);

    const auto set = [=](double red, double green, double blue) {
        *r = red;
        *g = green;
        *b = blue;
    };
    if (sector == 1.0)
        set(down, v, min);
    else if (sector == 2.0)
        set(min, v, up);
    else if (sector == 3.0)
        set(min, down, v);
    else if (sector == 4.0)
        set(up, min, v);
    else if (sector == 5.0)
        set(v, min, down);
    else
        set(v, up, min);
}

ColorKey::ColorKey(DWORD color) : raw(color), reduced(IsMarker(color) ? 0 : color) {
    constexpr double kByte = 0.00392156862745098; // 1/255
    RGB_to_HSV(GetRValue(reduced) * kByte, GetGValue(reduced) * kByte, GetBValue(reduced) * kByte, &hue, &saturation,
               &value);
}

int CompareColorKeys(const ColorKey& a, const ColorKey& b) {
    if (a.reduced == b.reduced) return Order(a.raw, b.raw);
    if (const int hue = Order(a.hue, b.hue)) return hue;
    if (const int value = Order(a.value, b.value)) return value;
    return Order(a.saturation, b.saturation);
}

int CompareHSVforRGBs(DWORD dwColor1, DWORD dwColor2) {
    return CompareColorKeys(ColorKey(dwColor1), ColorKey(dwColor2));
}
