// The box that a graphic fills. Empty until a point is added.
#pragma once

#include <limits>

#include "drawcore/src/geometry/arc.h"

struct ExtentsStruct {};

namespace drawcore {

class Extents : public ExtentsStruct {
public:
    Vec3 low{kFar, kFar, kFar};
    Vec3 high{-kFar, -kFar, -kFar};

    static const Extents* From(const ExtentsStruct* extents) { return static_cast<const Extents*>(extents); }

    bool IsEmpty() const { return low.x > high.x; }
    void Add(const Vec3& point); // one that is not finite does not count
    void Add(const Extents& other);
    void Add(const EllipseArc& arc);
    // Whether the other one, seen from above, lies entirely within this one.
    bool Covers(const Extents& other) const;
    // The box around this box after the transformation: exact for scaling and moving, else wider.
    Extents Transformed(const Matrix& matrix) const;

private:
    static constexpr double kFar = std::numeric_limits<double>::infinity();
};

} // namespace drawcore
