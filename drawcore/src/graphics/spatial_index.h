// A spatial index of the members of a drawing's root, to find those in a part of the drawing.
//
// Built on first use. Members that change are removed and added again at the next query, so that results are never out
// of date.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "drawcore/src/geometry/extents.h"

namespace drawcore {

class Graphic;
struct Pen;

class SpatialIndex {
public:
    SpatialIndex();
    ~SpatialIndex();

    // Returns the indices, in drawing order, of the members that are visible in the box as seen from above, and
    // possibly of others nearby; nullopt means all members. paperInch: drawing units per inch on paper.
    std::optional<std::vector<uint32_t>> Find(const Graphic& group, const Extents& box, double paperInch);

    // Called before the extents of a member change, while they are still valid.
    void Remove(Graphic& member);
    // Called when indices of members have changed.
    void Drop();

    // Called when a member of the group gets a pen.
    void ExtendReach(const Pen& pen);

private:
    class Tree;

    void Build(const Graphic& group);
    void AddNewMembers(const Graphic& group);
    void ExtendReachOver(const Graphic& member);

    std::unique_ptr<Tree> tree_;    // null until it is built
    std::vector<uint32_t> changed_; // members not in the tree
    size_t memberCount_ = 0;        // number of members at the last query
    // Half the width of the widest line that the group contains or has contained: how far members may extend beyond
    // their extents.
    double worldReach_ = 0; // in drawing units
    double paperReach_ = 0; // in inches
};

} // namespace drawcore
