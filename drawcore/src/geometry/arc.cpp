// Points, transformations and extremes of arcs; arcs from centers and bulges.
#include "drawcore/src/geometry/arc.h"

#include <cmath>

namespace drawcore {

bool EllipseArc::IsFullTurn() const {
    return std::fabs(sweep) >= 2 * kPi - 1e-9;
}

Vec3 EllipseArc::At(double t) const {
    return center + major * std::cos(t) + minor * std::sin(t);
}

EllipseArc EllipseArc::Transformed(const Matrix& matrix) const {
    return {matrix.Apply(center), matrix.ApplyToVector(major), matrix.ApplyToVector(minor), start, sweep};
}

EllipseArc CircleArc(const Vec3& center, double radius, double start, double sweep) {
    return {center, {radius, 0, 0}, {0, radius, 0}, start, sweep};
}

double SweepBetween(double start, double end) {
    double sweep = std::fmod(end - start, 2 * kPi);
    if (sweep < 0) sweep += 2 * kPi;
    return sweep < 1e-12 ? 2 * kPi : sweep;
}

std::optional<EllipseArc> ArcOfBulge(const Vec3& a, const Vec3& b, double bulge) {
    const Vec3 chord = b - a;
    // For a smaller bulge the center is so far away that the arc cannot be distinguished from its chord.
    if (!std::isfinite(bulge) || std::fabs(bulge) < 1e-9 || (chord.x == 0 && chord.y == 0)) return std::nullopt;
    // The center is on the perpendicular bisector of the chord, (1 - b^2) / 4b chord lengths away, to the left for a
    // small counterclockwise arc.
    const double distance = (1 - bulge * bulge) / (4 * bulge);
    const Vec3 center{(a.x + b.x) / 2 - chord.y * distance, (a.y + b.y) / 2 + chord.x * distance, a.z};
    return CircleArc(center, std::hypot(a.x - center.x, a.y - center.y), std::atan2(a.y - center.y, a.x - center.x),
                     4 * std::atan(bulge));
}

std::vector<double> Extremes(const EllipseArc& arc, bool inSpace) {
    std::vector<double> found;
    const double low = std::min(arc.start, arc.End()), high = std::max(arc.start, arc.End());
    const auto add = [&](double first) {
        for (double t = first + kPi * std::ceil((low - first) / kPi); t < high; t += kPi)
            if (t > low) found.push_back(t);
    };
    add(std::atan2(arc.minor.x, arc.major.x));
    add(std::atan2(arc.minor.y, arc.major.y));
    if (inSpace) add(std::atan2(arc.minor.z, arc.major.z));
    return found;
}

} // namespace drawcore
