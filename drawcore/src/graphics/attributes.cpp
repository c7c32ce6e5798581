// Compares and hashes appearances.
#include "drawcore/src/graphics/attributes.h"

#include <functional>
#include <tuple>

namespace drawcore {

size_t AppearanceHash::operator()(const Appearance& appearance) const {
    size_t hash = 0;
    const auto mix = [&hash](const auto&... values) {
        ((hash = hash * 31 + std::hash<std::decay_t<decltype(values)>>()(values)), ...);
    };
    std::apply(mix, appearance.pen.Values());
    std::apply(mix, appearance.brush.Values());
    std::apply(mix, appearance.Values());
    mix(appearance.lastPage);
    return hash;
}

} // namespace drawcore
