// Points of a spline, and interpolation of points by a spline.
#include "drawcore/src/geometry/spline.h"

#include <algorithm>
#include <cmath>

namespace drawcore {

namespace {

constexpr int kHighestDegree = 25;

// A point multiplied by its weight.
struct Weighted {
    Vec3 p;
    double w;
};

Weighted Blend(const Weighted& a, const Weighted& b, double share) {
    return {a.p * (1 - share) + b.p * share, a.w * (1 - share) + b.w * share};
}

} // namespace

bool SplineCurve::IsValid() const {
    const size_t count = points.size();
    return degree >= 1 && degree <= kHighestDegree && count > static_cast<size_t>(degree) &&
           knots.size() == count + static_cast<size_t>(degree) + 1 && (weights.empty() || weights.size() == count) &&
           std::all_of(points.begin(), points.end(), IsFinite) &&
           std::all_of(knots.begin(), knots.end(), [](double k) { return std::isfinite(k); }) &&
           std::is_sorted(knots.begin(), knots.end()) && knots[static_cast<size_t>(degree)] < knots[count] &&
           std::all_of(weights.begin(), weights.end(), [](double w) { return std::isfinite(w) && w > 0; });
}

// De Boor's algorithm with weighted points.
Vec3 SplineCurve::At(double t) const {
    const size_t p = static_cast<size_t>(degree);
    const auto first = knots.begin() + degree, last = knots.begin() + static_cast<std::ptrdiff_t>(points.size());
    size_t span = static_cast<size_t>(std::upper_bound(first, last, t) - knots.begin()) - 1;
    span = std::clamp(span, p, points.size() - 1);
    Weighted d[kHighestDegree + 1];
    for (size_t j = 0; j <= p; ++j) {
        const size_t i = span - p + j;
        const double w = weights.empty() ? 1.0 : weights[i];
        d[j] = {points[i] * w, w};
    }
    for (size_t r = 1; r <= p; ++r)
        for (size_t j = p; j >= r; --j) {
            const double low = knots[span - p + j], high = knots[span + 1 + j - r];
            d[j] = Blend(d[j - 1], d[j], high > low ? (t - low) / (high - low) : 0.0);
        }
    return d[p].p * (1 / d[p].w);
}

namespace {

// Returns the slopes of the cubic spline through the points with continuous curvature and unit parameter steps. An open
// spline has no curvature at its ends; a closed one is continued with its first points, far enough for the ends to have
// no influence.
std::vector<Vec3> Slopes(const std::vector<Vec3>& p) {
    const size_t n = p.size();
    std::vector<double> diagonal(n, 4);
    std::vector<Vec3> right(n);
    diagonal.front() = diagonal.back() = 2;
    for (size_t i = 0; i < n; ++i)
        right[i] = (p[std::min(i + 1, n - 1)] - p[i ? i - 1 : 0]) * 3;
    for (size_t i = 1; i < n; ++i) {
        diagonal[i] -= 1 / diagonal[i - 1];
        right[i] = right[i] - right[i - 1] * (1 / diagonal[i - 1]);
    }
    right[n - 1] = right[n - 1] * (1 / diagonal[n - 1]);
    for (size_t i = n - 1; i-- > 0;)
        right[i] = (right[i] - right[i + 1]) * (1 / diagonal[i]);
    return right;
}

} // namespace

SplineCurve SplineThrough(const std::vector<Vec3>& fitPoints, bool closed) {
    SplineCurve curve;
    if (fitPoints.size() < 2) {
        curve.points = fitPoints;
        return curve;
    }
    // The influence of a slope falls to a quarter with each point, so that sixteen points beyond the seam are exact in
    // double precision.
    constexpr size_t kLeadIn = 16;
    const size_t count = fitPoints.size() + (closed ? 1 : 0), lead = closed ? kLeadIn : 0;
    std::vector<Vec3> run;
    for (size_t i = 0; i < count + 2 * lead; ++i)
        run.push_back(fitPoints[(i + fitPoints.size() * kLeadIn - lead) % fitPoints.size()]);
    const std::vector<Vec3> slopes = Slopes(run);
    // Each cubic segment as a Bezier curve, with a triple knot at each end.
    curve.points.push_back(run[lead]);
    curve.knots.assign(4, 0.0);
    for (size_t i = lead; i + 1 < lead + count; ++i) {
        const double knot = static_cast<double>(i + 1 - lead);
        curve.points.insert(curve.points.end(),
                            {run[i] + slopes[i] * (1 / 3.0), run[i + 1] - slopes[i + 1] * (1 / 3.0), run[i + 1]});
        curve.knots.insert(curve.knots.end(), 3, knot);
    }
    curve.knots.push_back(curve.knots.back());
    return curve;
}

} // namespace drawcore
