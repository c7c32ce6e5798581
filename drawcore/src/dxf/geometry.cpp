// Transformations, arcs and boxes.

#include "drawcore/src/dxf/geometry.h"

#include <algorithm>
#include <cmath>

namespace dxf {

Point Cross(Point a, Point b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double Length(Point a) {
    return std::hypot(a.x, a.y, a.z);
}

Matrix Matrix::operator*(const Matrix& inner) const {
    return {Vector(inner.x), Vector(inner.y), Vector(inner.z), Apply(inner.origin)};
}

Matrix Translation(Point by) {
    Matrix matrix;
    matrix.origin = by;
    return matrix;
}

Matrix Rotation(double angle) {
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {{c, s, 0}, {-s, c, 0}, {0, 0, 1}, {}};
}

Matrix Scaling(double x, double y, double z) {
    return {{x, 0, 0}, {0, y, 0}, {0, 0, z}, {}};
}

Matrix ObjectSystem(Point normal) {
    const double length = Length(normal);
    if (!(length > 0) || !std::isfinite(length)) return {};
    const Point z = normal * (1 / length);
    constexpr double kNearZ = 1.0 / 64; // the file format's own border
    const bool nearZ = std::abs(z.x) < kNearZ && std::abs(z.y) < kNearZ;
    const Point across = Cross(nearZ ? Point{0, 1, 0} : Point{0, 0, 1}, z);
    const Point x = across * (1 / Length(across));
    return {x, Cross(z, x), z, {}};
}

Matrix InsertMatrix(const Entity& entity, const Insert& insert, const Block& block, uint32_t column,
                    uint32_t row) {
    const Point cell{column * insert.columnSpacing, row * insert.rowSpacing, 0};
    return ObjectSystem(entity.normal) * Translation(insert.at) * Rotation(Radians(insert.rotation)) *
           Translation(cell) * Scaling(insert.scaleX, insert.scaleY, insert.scaleZ) *
           Translation(block.base * -1);
}

Matrix DimensionMatrix(const Dimension& dimension, const Block& block) {
    return Translation(dimension.offset - block.base);
}

Point EllipseArc::At(double t) const {
    return center + u * std::cos(t) + v * std::sin(t);
}

EllipseArc EllipseArc::Transformed(const Matrix& matrix) const {
    return {matrix.Apply(center), matrix.Vector(u), matrix.Vector(v), start, sweep};
}

double Sweep(double start, double end) {
    double sweep = std::fmod(end - start, 2 * kPi);
    if (sweep < 0) sweep += 2 * kPi;
    return sweep < 1e-12 ? 2 * kPi : sweep;
}

std::optional<EllipseArc> BulgeArc(Point start, Point end, double bulge) {
    const Point chord = end - start;
    // Flatter than this the arc is nowhere further from its chord than a double can tell.
    if (std::abs(bulge) < 1e-12 || (chord.x == 0 && chord.y == 0)) return std::nullopt;
    const Point middle = (start + end) * 0.5;
    const double aside = (1 - bulge * bulge) / (4 * bulge);
    EllipseArc arc;
    arc.center = middle + Point{-chord.y, chord.x, 0} * aside;
    const Point toStart = start - arc.center;
    const double radius = std::hypot(toStart.x, toStart.y);
    arc.u = {radius, 0, 0};
    arc.v = {0, radius, 0};
    arc.start = std::atan2(toStart.y, toStart.x);
    arc.sweep = 4 * std::atan(bulge);
    return arc;
}

void Box::Add(Point p) {
    if (!std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(p.z)) return;
    if (IsEmpty()) low_ = high_ = p;
    low_ = {std::min(low_.x, p.x), std::min(low_.y, p.y), std::min(low_.z, p.z)};
    high_ = {std::max(high_.x, p.x), std::max(high_.y, p.y), std::max(high_.z, p.z)};
}

void Box::Add(const EllipseArc& arc) {
    Add(arc.At(arc.start));
    Add(arc.At(arc.start + arc.sweep));
    const double first = std::min(arc.start, arc.start + arc.sweep);
    const auto addIfOn = [&](double t) {
        const double past = std::fmod(t - first, 2 * kPi);
        if ((past < 0 ? past + 2 * kPi : past) <= std::abs(arc.sweep)) Add(arc.At(t));
    };
    for (const double extreme :
         {std::atan2(arc.v.x, arc.u.x), std::atan2(arc.v.y, arc.u.y), std::atan2(arc.v.z, arc.u.z)}) {
        addIfOn(extreme);
        addIfOn(extreme + kPi);
    }
}

bool Box::Covers(const Box& other) const {
    return other.IsEmpty() || (low_.x <= other.low_.x && low_.y <= other.low_.y && other.high_.x <= high_.x &&
                               other.high_.y <= high_.y);
}

Box Box::Transformed(const Matrix& matrix) const {
    Box box;
    if (IsEmpty()) return box;
    for (const double x : {low_.x, high_.x})
        for (const double y : {low_.y, high_.y})
            for (const double z : {low_.z, high_.z})
                box.Add(matrix.Apply({x, y, z}));
    return box;
}

} // namespace dxf
