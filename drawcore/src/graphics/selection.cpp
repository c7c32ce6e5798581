// Adds and removes members of a selection.
#include "drawcore/src/graphics/selection.h"

#include "drawcore/src/graphics/properties.h"
#include "drawcore/src/graphics/vertex_graphic.h"

namespace drawcore {

Selection::Selection() : Graphic(kGraphicVertices, &kShapeProperties) {}

std::unique_ptr<Graphic> Selection::CloneState() const {
    auto copy = std::make_unique<Selection>();
    for (Graphic* member : members_)
        copy->Include(member);
    return copy;
}

std::unique_ptr<Graphic> Selection::Copy() const {
    auto group = std::make_unique<VertexGraphic>();
    for (const Graphic* member : members_)
        group->Add(member->Clone());
    return group;
}

bool Selection::Include(Graphic* graphic) {
    if (!graphic || !indices_.emplace(graphic, members_.size()).second) return false;
    members_.push_back(graphic);
    return true;
}

bool Selection::Exclude(Graphic* graphic) {
    const auto found = indices_.find(graphic);
    if (found == indices_.end()) return false;
    const size_t index = found->second;
    indices_.erase(found);
    members_.erase(members_.begin() + static_cast<std::ptrdiff_t>(index));
    for (size_t i = index; i < members_.size(); ++i)
        indices_[members_[i]] = i;
    return true;
}

void Selection::Clear() {
    members_.clear();
    indices_.clear();
}

} // namespace drawcore
