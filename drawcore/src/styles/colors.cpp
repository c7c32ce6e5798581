// The numbered colours, and the entries of the table.
#include "drawcore/src/styles/colors.h"

#include <algorithm>
#include <cmath>

namespace drawcore {

namespace {

constexpr Color Rgb(int r, int g, int b) {
    return static_cast<Color>(r | g << 8 | b << 16);
}

constexpr Color kFirst[] = {Rgb(255, 0, 0),   Rgb(255, 255, 0),   Rgb(0, 255, 0),
                            Rgb(0, 255, 255), Rgb(0, 0, 255),     Rgb(255, 0, 255),
                            kWhite,           Rgb(128, 128, 128), Rgb(192, 192, 192)};
constexpr const char* kFirstNames[] = {"Red", "Yellow", "Green", "Cyan", "Blue", "Magenta", "White"};
constexpr int kGreys[] = {51, 80, 105, 130, 190, 255};

// The numbers 10 to 249 are 24 hues, 15 degrees apart, each in five brightnesses, full and half saturated.
Color HueColor(int index) {
    constexpr int kBrightness[] = {255, 165, 127, 76, 38};
    const double hue = (index / 10 - 1) / 4.0; // in sixths of the circle
    const double value = kBrightness[index % 10 / 2], saturation = index % 2 ? 0.5 : 1.0;
    const auto part = [&](double shift) {
        const double away = std::fabs(std::fmod(hue + shift, 6.0) - 3.0); // 3 at the part's own hue
        const double share = std::clamp(away - 1.0, 0.0, 1.0);
        return static_cast<int>(value * (1 - saturation * (1 - share)));
    };
    return Rgb(part(0), part(4), part(2));
}

} // namespace

Color ColorOfIndex(int index) {
    if (index >= 1 && index <= 9) return kFirst[index - 1];
    if (index >= 10 && index <= 249) return HueColor(index);
    if (index >= 250 && index <= 255)
        return Rgb(kGreys[index - 250], kGreys[index - 250], kGreys[index - 250]);
    return kWhite;
}

ColorTable::ColorTable(Drawing* owner) : TableOf(owner) {
    for (int index = 1; index <= 255; ++index) {
        const std::string name = index <= 7 ? kFirstNames[index - 1] : "Color " + std::to_string(index);
        Add(std::make_unique<ColorEntry>(name, ColorOfIndex(index)));
    }
}

std::unique_ptr<TableEntry> ColorTable::MakeEntry(std::string_view name, void* data) {
    if (!data) return nullptr;
    return std::make_unique<ColorEntry>(name, *static_cast<const Color*>(data));
}

} // namespace drawcore
