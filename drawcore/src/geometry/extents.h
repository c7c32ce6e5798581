// The bounding box of a graphic, empty until a point is added.
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
    void Add(const Vec3& point); // Ignores points that are not finite.
    void Add(const Extents& other);
    void Add(const EllipseArc& arc);
    // Returns whether the other box, seen from above, is completely inside this one.
    bool Covers(const Extents& other) const;
    // Returns the bounding box of the transformed box: exact for scaling and translation, larger otherwise.
    Extents Transformed(const Matrix& matrix) const;

private:
    static constexpr double kFar = std::numeric_limits<double>::infinity();
};

} // namespace drawcore
