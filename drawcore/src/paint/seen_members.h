// The members of a set that may show in a part of the device: all, or those that the set's index finds there.
#pragma once

#include <optional>
#include <vector>

#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/paint/path_clip.h"

namespace drawcore {

class SeenMembers {
public:
    SeenMembers() = default;
    // toDevice: from the set's coordinates; paperInch: device pixels of an inch of paper.
    SeenMembers(const Graphic& set, const Box& device, const Matrix& toDevice, double paperInch);

    // In the order of drawing. The set is the one that was asked; null if it has lost members since.
    size_t CountIn(const Graphic& set) const { return places_ ? places_->size() : set.MemberCount(); }
    Graphic* At(const Graphic& set, size_t number) const;

private:
    std::optional<std::vector<uint32_t>> places_; // none: all
};

} // namespace drawcore
