// The 255 numbered colors.
#include "drawcore/src/dxf/color_numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "orlo/host/words.h"

namespace dxf {

namespace {

using Color = uint32_t;

constexpr Color kWhite = 0x00FFFFFF;

constexpr Color Rgb(int r, int g, int b) {
    return static_cast<Color>(r | g << 8 | b << 16);
}

constexpr Color kFirst[] = {Rgb(255, 0, 0),   Rgb(255, 255, 0), Rgb(0, 255, 0),     Rgb(0, 255, 255),  Rgb(0, 0, 255),
                            Rgb(255, 0, 255), kWhite,           Rgb(128, 128, 128), Rgb(192, 192, 192)};
constexpr int kGrays[] = {51, 80, 105, 130, 190, 255};

// The numbers 10 to 249 are 24 hues, 15 degrees apart, each in five brightnesses at full and half saturation.
Color HueColor(int index) {
    constexpr int kBrightness[] = {255, 165, 127, 76, 38};
    const double hue = (index / 10 - 1) / 4.0; // in sixths of the circle
    const double value = kBrightness[index % 10 / 2], saturation = index % 2 ? 0.5 : 1.0;
    const auto part = [&](double shift) {
        const double distance = std::fabs(std::fmod(hue + shift, 6.0) - 3.0); // 3 at the hue of the component
        const double share = std::clamp(distance - 1.0, 0.0, 1.0);
        return static_cast<int>(value * (1 - saturation * (1 - share)));
    };
    return Rgb(part(0), part(4), part(2));
}

// Returns all colors, indexed by number. Computed once, because a large drawing looks up a color per entity.
std::array<Color, kColorNumbers + 1> AllColors() {
    std::array<Color, kColorNumbers + 1> colors = {kWhite};
    for (int index = 1; index <= kColorNumbers; ++index) {
        Color& color = colors[static_cast<size_t>(index)];
        if (index <= 9)
            color = kFirst[index - 1];
        else if (index <= 249)
            color = HueColor(index);
        else
            color = Rgb(kGrays[index - 250], kGrays[index - 250], kGrays[index - 250]);
    }
    return colors;
}

constexpr const char* kFirstNames[] = {"Red", "Yellow", "Green", "Cyan", "Blue", "Magenta", "White"};

int Distance(Color a, Color b) {
    int sum = 0;
    for (const int shift : {0, 8, 16}) {
        const int difference = static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF);
        sum += difference * difference;
    }
    return sum;
}

} // namespace

Color ColorOfIndex(int index) {
    static const std::array<Color, kColorNumbers + 1> kColors = AllColors();
    return index >= 1 && index <= kColorNumbers ? kColors[static_cast<size_t>(index)] : kWhite;
}

std::string NameOfIndex(int index) {
    return index <= 7 ? kFirstNames[index - 1] : "Color " + std::to_string(index);
}

int NearestIndex(uint32_t color) {
    int nearest = 7, least = Distance(ColorOfIndex(nearest), color);
    for (int index = 1; index <= kColorNumbers && least > 0; ++index) {
        const int distance = Distance(ColorOfIndex(index), color);
        if (distance >= least) continue;
        nearest = index;
        least = distance;
    }
    return nearest;
}

uint32_t ColorOf(int index, int32_t trueColor) {
    if (trueColor >= 0) {
        const auto rgb = static_cast<uint32_t>(trueColor);
        return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | (rgb >> 16 & 0xFF);
    }
    if (index == kIndexByBlock) return kColorByBlock;
    return index >= 1 && index <= kColorNumbers ? ColorOfIndex(index) : kColorByLayer;
}

int32_t TrueColorOf(uint32_t color) {
    return static_cast<int32_t>((color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF));
}

} // namespace dxf
