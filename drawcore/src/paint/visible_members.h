// The members of a set that may be visible in a part of the device: all, or those found by the set's index.
#pragma once

#include <optional>
#include <vector>

#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/paint/path_clip.h"

namespace drawcore {

class VisibleMembers {
public:
    VisibleMembers() = default;
    // toDevice: from the set's coordinates; paperInch: device pixels per inch on paper.
    VisibleMembers(const Graphic& set, const Box& device, const Matrix& toDevice, double paperInch);

    // In drawing order. The set must be the same one. Returns null if members have been removed since.
    size_t CountIn(const Graphic& set) const { return indices_ ? indices_->size() : set.MemberCount(); }
    Graphic* At(const Graphic& set, size_t number) const;

private:
    std::optional<std::vector<uint32_t>> indices_; // nothing for all
};

} // namespace drawcore
