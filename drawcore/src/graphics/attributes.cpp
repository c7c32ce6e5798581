// Compares and hashes appearances.
#include "drawcore/src/graphics/attributes.h"

#include <functional>
#include <tuple>

namespace drawcore {

size_t LookHash::operator()(const Look& look) const {
    size_t hash = 0;
    const auto mix = [&hash](const auto&... values) {
        ((hash = hash * 31 + std::hash<std::decay_t<decltype(values)>>()(values)), ...);
    };
    std::apply(mix, look.pen.Values());
    std::apply(mix, look.brush.Values());
    std::apply(mix, look.Values());
    mix(look.lastPage);
    return hash;
}

} // namespace drawcore
