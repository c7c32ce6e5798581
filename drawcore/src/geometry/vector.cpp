// Length, cross product and normalization of vectors.
#include "drawcore/src/geometry/vector.h"

#include <cmath>

namespace drawcore {

double Length(const Vec3& v) {
    return std::sqrt(Dot(v, v));
}

Vec3 Cross(const Vec3& a, const Vec3& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

Vec3 Normalized(const Vec3& v) {
    const double length = Length(v);
    return length > 0 ? v * (1 / length) : v;
}

bool IsFinite(const Vec3& p) {
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

} // namespace drawcore
