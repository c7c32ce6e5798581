// A set of graphics with other owners, iterated like a group by GraphicFirst and GraphicNext.
#pragma once

#include <unordered_map>

#include "drawcore/src/graphics/graphic.h"

namespace drawcore {

class Selection : public Graphic {
public:
    Selection();
    Kind GetKind() const override { return Kind::Group; }
    std::unique_ptr<Graphic> CloneState() const override;
    std::unique_ptr<Graphic> Copy() const override;
    void Restore(const Graphic&) override {}
    bool EqualState(const Graphic&) const override { return true; }
    size_t StateSize() const override { return sizeof *this; }
    void TraceShape(const Trace&, const PenUse&) const override {}

    size_t MemberCount() const override { return members_.size(); }
    Graphic* MemberAt(size_t index) const override { return members_[index]; }

    bool Contains(Graphic* graphic) const { return indices_.count(graphic) != 0; }
    bool Include(Graphic* graphic); // at the end; returns false if it is already a member
    bool Exclude(Graphic* graphic); // keeps the order of the others
    void Clear();

protected:
    bool KeepsExtents() const override { return false; }

private:
    std::vector<Graphic*> members_;
    std::unordered_map<Graphic*, size_t> indices_;
};

} // namespace drawcore
