// When two looks are the same.
#include "drawcore/src/graphics/attributes.h"

#include <functional>
#include <tuple>

namespace drawcore {

bool operator==(const Pen& a, const Pen& b) {
    return std::tie(a.width, a.scale, a.color, a.style, a.scaleSystem, a.alignment) ==
           std::tie(b.width, b.scale, b.color, b.style, b.scaleSystem, b.alignment);
}

bool operator==(const Brush& a, const Brush& b) {
    return std::tie(a.scale, a.angle, a.color, a.drawMode, a.style, a.cross) ==
           std::tie(b.scale, b.angle, b.color, b.drawMode, b.style, b.cross);
}

bool Look::HasSameProperties(const Look& other) const {
    return pen == other.pen && brush == other.brush &&
           std::tie(layer, styleTree, info, font, textHeight, textStyle, textFormat) ==
               std::tie(other.layer, other.styleTree, other.info, other.font, other.textHeight,
                        other.textStyle, other.textFormat);
}

size_t LookHash::operator()(const Look& look) const {
    size_t hash = 0;
    const auto mix = [&hash](const auto&... values) {
        ((hash = hash * 31 + std::hash<std::decay_t<decltype(values)>>()(values)), ...);
    };
    mix(look.pen.width, look.pen.scale, look.pen.color, look.pen.style, look.pen.scaleSystem,
        look.pen.alignment);
    mix(look.brush.scale, look.brush.angle, look.brush.color, look.brush.drawMode, look.brush.style,
        look.brush.cross);
    mix(look.layer, look.styleTree, look.info, look.font, look.textHeight, look.textStyle, look.textFormat);
    mix(look.lastPage);
    return hash;
}

} // namespace drawcore
