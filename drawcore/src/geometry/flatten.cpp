// Divides curves into line segments.
#include "drawcore/src/geometry/flatten.h"

#include <algorithm>
#include <cmath>

namespace drawcore {

namespace {

constexpr int kMaxSteps = 2048;     // for a full turn, or a span of a spline
constexpr int kStepsByDefault = 64; // likewise, without a tolerance

// Returns the number of equal steps for which all chords stay within tolerance of a circle.
int StepsForTurn(double radius, double tolerance) {
    if (!(tolerance > 0)) return kStepsByDefault;
    if (radius <= tolerance) return 4;
    const double angle = 2 * std::acos(1 - tolerance / radius);
    return static_cast<int>(std::clamp(std::ceil(2 * kPi / angle), 8.0, static_cast<double>(kMaxSteps)));
}

double ParameterAt(double low, double high, int step, int steps) {
    return step == steps ? high : low + (high - low) * step / steps;
}

} // namespace

void FlattenArc(const EllipseArc& original, const Matrix& matrix, double tolerance, Path& path) {
    EllipseArc arc = original;
    arc.start = std::fmod(original.start, 2 * kPi); // equivalent modulo a full turn, but keeps all digits
    const Vec3 u = matrix.ApplyToVector(arc.major), v = matrix.ApplyToVector(arc.minor);
    const double radius = std::max(std::hypot(u.x, u.y), std::hypot(v.x, v.y));
    const double sweep = arc.sweep;
    if (!std::isfinite(radius) || !std::isfinite(sweep) || std::fabs(sweep) > 4 * kPi) return;
    const int steps =
        std::max(1, static_cast<int>(std::ceil(StepsForTurn(radius, tolerance) * std::fabs(sweep) / (2 * kPi))));
    std::vector<double> at = Extremes({{}, u, v, arc.start, sweep}, false);
    for (int i = 1; i < steps; ++i)
        at.push_back(arc.start + sweep * i / steps);
    std::sort(at.begin(), at.end());
    if (sweep < 0) std::reverse(at.begin(), at.end());
    for (const double t : at)
        path.LineTo(matrix.Plan(arc.At(t)), false);
    // The end of a full turn equals its start exactly, so that the outline is closed.
    path.LineTo(matrix.Plan(arc.At(arc.IsFullTurn() ? arc.start : arc.End())));
}

std::vector<Vec3> SplineChain(const SplineCurve& curve) {
    if (!curve.IsValid()) return curve.points;
    const size_t first = static_cast<size_t>(curve.degree);
    std::vector<Vec3> chain{curve.At(curve.knots[first])};
    for (size_t span = first; span < curve.points.size(); ++span) {
        const double low = curve.knots[span], high = curve.knots[span + 1];
        for (int i = 1; high > low && i <= kStepsByDefault; ++i)
            chain.push_back(curve.At(ParameterAt(low, high, i, kStepsByDefault)));
    }
    return chain;
}

void FlattenSpline(const SplineCurve& curve, const Matrix& matrix, double tolerance, Path& path) {
    const size_t p = static_cast<size_t>(curve.degree);
    for (size_t span = p; span < curve.points.size(); ++span) {
        const double low = curve.knots[span], high = curve.knots[span + 1];
        if (!(high > low)) continue;
        // The control polygon bounds the curvature: the error of n chords is at most bend / (8 n^2) x p^2.
        double bend = 0;
        for (size_t i = span - p + 1; i < span; ++i) {
            const Point a = matrix.Plan(curve.points[i - 1]), b = matrix.Plan(curve.points[i]),
                        c = matrix.Plan(curve.points[i + 1]);
            bend = std::max(bend, std::hypot(a.x - 2 * b.x + c.x, a.y - 2 * b.y + c.y));
        }
        const double wanted = tolerance > 0 ? std::sqrt(bend / tolerance / 8) * curve.degree : kStepsByDefault;
        const int steps = static_cast<int>(std::clamp(std::ceil(wanted), 2.0, static_cast<double>(kMaxSteps)));
        for (int i = 1; i <= steps; ++i)
            path.LineTo(matrix.Plan(curve.At(ParameterAt(low, high, i, steps))), false);
    }
    if (!path.corners.empty()) path.corners.back() = true;
}

} // namespace drawcore
