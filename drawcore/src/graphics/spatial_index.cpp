// An R-tree of boxes in single precision, rounded outward.
#include "drawcore/src/graphics/spatial_index.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <boost/geometry/algorithms/covered_by.hpp>
#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <boost/iterator/function_output_iterator.hpp>

#include "drawcore/src/graphics/graphic.h"

namespace drawcore {

namespace {

namespace bg = boost::geometry;
namespace bgi = boost::geometry::index;

using TreePoint = bg::model::point<float, 2, bg::cs::cartesian>;
using TreeBox = bg::model::box<TreePoint>;

struct Entry {
    TreeBox box;
    uint32_t index;
};

struct BoxOfEntry {
    using result_type = const TreeBox&;
    result_type operator()(const Entry& entry) const { return entry.box; }
};

struct SameIndex {
    bool operator()(const Entry& a, const Entry& b) const { return a.index == b.index; }
};

constexpr float kFarthest = std::numeric_limits<float>::max();

float RoundedDown(double value) {
    const float nearest = static_cast<float>(std::clamp<double>(value, -kFarthest, kFarthest));
    return nearest > value ? std::nextafter(nearest, -kFarthest) : nearest;
}

float RoundedUp(double value) {
    return -RoundedDown(-value);
}

TreeBox BoxOf(const Extents& extents) {
    return {{RoundedDown(extents.low.x), RoundedDown(extents.low.y)},
            {RoundedUp(extents.high.x), RoundedUp(extents.high.y)}};
}

double Share(double low, double high, double allLow, double allHigh) {
    const double all = allHigh - allLow;
    return all > 0 ? std::clamp((std::min(high, allHigh) - std::max(low, allLow)) / all, 0.0, 1.0) : 1;
}

// Returns whether the box is so large that checking every member is faster than sorting the results.
bool IsLargePart(const Extents& box, const Extents& all) {
    constexpr double kMuch = 0.125;
    return Share(box.low.x, box.high.x, all.low.x, all.high.x) * Share(box.low.y, box.high.y, all.low.y, all.high.y) >
           kMuch;
}

} // namespace

class SpatialIndex::Tree : public bgi::rtree<Entry, bgi::quadratic<16>, BoxOfEntry, SameIndex> {
public:
    using rtree::rtree;
};

SpatialIndex::SpatialIndex() = default;
SpatialIndex::~SpatialIndex() = default;

void SpatialIndex::ExtendReach(const Pen& pen) {
    double& reach = pen.scaleSystem == kScaleWorld ? worldReach_ : paperReach_;
    constexpr double kWidestInherited = 2.11 / kMillimetersPerInch; // the greatest line weight of a layer
    reach = std::max(reach, (pen.width >= 0 ? pen.width : kWidestInherited) / 2);
}

void SpatialIndex::ExtendReachOver(const Graphic& member) {
    ExtendReach(member.GetPen());
    worldReach_ = std::max(worldReach_, member.Reach());
    for (size_t i = 0; i < member.MemberCount(); ++i)
        ExtendReachOver(*member.MemberAt(i));
}

void SpatialIndex::Build(const Graphic& group) {
    std::vector<Entry> entries;
    entries.reserve(group.MemberCount());
    for (uint32_t index = 0; index < group.MemberCount(); ++index) {
        Graphic& member = *group.MemberAt(index);
        const Extents& extents = member.GetExtents();
        if (!extents.IsEmpty()) entries.push_back({BoxOf(extents), index});
        member.indexed_ = true;
        ExtendReachOver(member);
    }
    tree_ = std::make_unique<Tree>(entries.begin(), entries.end());
    changed_.clear();
    memberCount_ = group.MemberCount();
}

// Adds new members, which follow the previous ones.
void SpatialIndex::AddNewMembers(const Graphic& group) {
    for (; memberCount_ < group.MemberCount(); ++memberCount_)
        changed_.push_back(static_cast<uint32_t>(memberCount_));
    constexpr size_t kMinRebuild = 64;
    if (!tree_ || changed_.size() > kMinRebuild + group.MemberCount() / 16)
        return Build(group); // faster than updating one by one
    for (const uint32_t index : changed_) {
        Graphic& member = *group.MemberAt(index);
        const Extents& extents = member.GetExtents();
        if (!extents.IsEmpty()) tree_->insert({BoxOf(extents), index});
        member.indexed_ = true;
        ExtendReachOver(member);
    }
    changed_.clear();
}

void SpatialIndex::Remove(Graphic& member) {
    member.indexed_ = false;
    if (!tree_) return;
    changed_.push_back(member.GetHostData().index);
    const Extents& extents = member.Box();
    if (!extents.IsEmpty()) tree_->remove({BoxOf(extents), member.GetHostData().index});
}

void SpatialIndex::Drop() {
    tree_.reset();
}

std::optional<std::vector<uint32_t>> SpatialIndex::Find(const Graphic& group, const Extents& box, double paperInch) {
    if (IsLargePart(box, group.GetExtents())) return std::nullopt;
    AddNewMembers(group);
    const double reach = std::max(worldReach_, paperReach_ * paperInch);
    Extents around = box;
    around.Add(box.low - Vec3{reach, reach, 0});
    around.Add(box.high + Vec3{reach, reach, 0});
    std::vector<uint32_t> indices;
    tree_->query(bgi::intersects(BoxOf(around)),
                 boost::make_function_output_iterator([&](const Entry& entry) { indices.push_back(entry.index); }));
    std::sort(indices.begin(), indices.end());
    return indices;
}

} // namespace drawcore
