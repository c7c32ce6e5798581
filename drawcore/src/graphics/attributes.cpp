#include "drawcore/src/graphics/attributes.h"

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

} // namespace drawcore
