#include "drawcore/src/graphics/flatten.h"

#include <algorithm>
#include <cmath>

namespace drawcore {

namespace {

constexpr double kPi = 3.141592653589793;
constexpr int kMostSteps = 2048; // for a whole turn, or a span of a spline

// Steps of equal angle for which the middle of each chord stays within tolerance of a circle.
int StepsForTurn(double radius, double tolerance) {
    if (!(tolerance > 0)) return 64;
    if (radius <= tolerance) return 4;
    const double angle = 2 * std::acos(1 - tolerance / radius);
    return static_cast<int>(std::clamp(std::ceil(2 * kPi / angle), 8.0, static_cast<double>(kMostSteps)));
}

// Parameters within the arc at which it goes farthest in x or y of the sink.
std::vector<double> Extremes(const EllipseArc& arc, const Vec3& u, const Vec3& v) {
    std::vector<double> found;
    const double low = std::min(arc.start, arc.end), high = std::max(arc.start, arc.end);
    for (const double first : {std::atan2(v.x, u.x), std::atan2(v.y, u.y)})
        for (double t = first + kPi * std::ceil((low - first) / kPi); t < high; t += kPi)
            if (t > low) found.push_back(t);
    return found;
}

} // namespace

void FlattenArc(const EllipseArc& given, const Matrix& matrix, double tolerance, Path& path) {
    EllipseArc arc = given;
    arc.start = std::fmod(given.start, 2 * kPi); // a turn more or less is the same, and keeps all digits
    arc.end = arc.start + (given.end - given.start);
    const Vec3 u = matrix.Turn(arc.major), v = matrix.Turn(arc.minor);
    const double radius = std::max(std::hypot(u.x, u.y), std::hypot(v.x, v.y));
    const double sweep = arc.end - arc.start;
    if (!std::isfinite(radius) || !std::isfinite(sweep) || std::fabs(sweep) > 4 * kPi) return;
    const int steps = std::max(
        1, static_cast<int>(std::ceil(StepsForTurn(radius, tolerance) * std::fabs(sweep) / (2 * kPi))));
    std::vector<double> at = Extremes(arc, u, v);
    for (int i = 1; i < steps; ++i)
        at.push_back(arc.start + sweep * i / steps);
    std::sort(at.begin(), at.end());
    if (sweep < 0) std::reverse(at.begin(), at.end());
    for (const double t : at)
        path.LineTo(matrix.Plan(arc.At(t)), false);
    // The end of a whole turn is its start to the last bit, so that the outline is closed.
    path.LineTo(matrix.Plan(arc.At(arc.IsWhole() ? arc.start : arc.end)));
}

void FlattenSpline(const SplineCurve& curve, const Matrix& matrix, double tolerance, Path& path) {
    const size_t p = static_cast<size_t>(curve.degree);
    for (size_t span = p; span < curve.points.size(); ++span) {
        const double low = curve.knots[span], high = curve.knots[span + 1];
        if (!(high > low)) continue;
        // The control polygon of the span bounds its bend: the error of n chords is at most bend / (8 n^2) x p^2.
        double bend = 0;
        for (size_t i = span - p + 1; i < span; ++i) {
            const Point a = matrix.Plan(curve.points[i - 1]), b = matrix.Plan(curve.points[i]),
                        c = matrix.Plan(curve.points[i + 1]);
            bend = std::max(bend, std::hypot(a.x - 2 * b.x + c.x, a.y - 2 * b.y + c.y));
        }
        const double wanted = tolerance > 0 ? std::sqrt(bend / tolerance / 8) * curve.degree : 64;
        const int steps =
            static_cast<int>(std::clamp(std::ceil(wanted), 2.0, static_cast<double>(kMostSteps)));
        for (int i = 1; i <= steps; ++i)
            path.LineTo(matrix.Plan(curve.At(i == steps ? high : low + (high - low) * i / steps)), false);
    }
    if (!path.corners.empty()) path.corners.back() = true;
}

bool ArcOfBulge(const Vec3& a, const Vec3& b, double bulge, EllipseArc& arc) {
    const Vec3 chord = b - a;
    const double length = std::hypot(chord.x, chord.y);
    if (!std::isfinite(bulge) || std::fabs(bulge) < 1e-9 || length <= 0) return false;
    // The center lies on the chord's middle line; (1 - b^2) / 4b of the chord away, to the left for a small left arc.
    const double away = (1 - bulge * bulge) / (4 * bulge);
    arc.center = {(a.x + b.x) / 2 - chord.y * away, (a.y + b.y) / 2 + chord.x * away, a.z};
    const double radius = std::hypot(a.x - arc.center.x, a.y - arc.center.y);
    arc.major = {radius, 0, 0};
    arc.minor = {0, radius, 0};
    arc.start = std::atan2(a.y - arc.center.y, a.x - arc.center.x);
    arc.end = arc.start + 4 * std::atan(bulge);
    return true;
}

} // namespace drawcore
