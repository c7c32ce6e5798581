// Places and transformations: object systems, inserts, arcs, boxes. Angles in radians unless a name says
// degrees.
#pragma once

#include <optional>

#include "drawcore/src/dxf/document.h"

namespace dxf {

constexpr double kPi = 3.14159265358979323846;
constexpr double Radians(double degrees) {
    return degrees * (kPi / 180);
}

inline Point operator+(Point a, Point b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Point operator-(Point a, Point b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Point operator*(Point a, double factor) {
    return {a.x * factor, a.y * factor, a.z * factor};
}
Point Cross(Point a, Point b);
double Length(Point a);

// Affine: the columns are where the unit vectors and the origin go.
struct Matrix {
    Point x{1, 0, 0};
    Point y{0, 1, 0};
    Point z{0, 0, 1};
    Point origin;

    Point Vector(Point v) const { return x * v.x + y * v.y + z * v.z; }
    Point Apply(Point p) const { return Vector(p) + origin; }
    // First inner, then this.
    Matrix operator*(const Matrix& inner) const;
};

Matrix Translation(Point by);
Matrix Rotation(double angle); // around z
Matrix Scaling(double x, double y, double z);

// From an entity's object system to the world: the arbitrary axis algorithm of the file format.
Matrix ObjectSystem(Point normal);

// From a block to the space that the insert lies in, for one cell of its array.
Matrix InsertMatrix(const Entity& entity, const Insert& insert, const Block& block, uint32_t column,
                    uint32_t row);
Matrix DimensionMatrix(const Dimension& dimension, const Block& block);

// A piece of an ellipse: center + u cos t + v sin t, for t from start to start + sweep. Any affine image of
// an arc is one.
struct EllipseArc {
    Point center;
    Point u;
    Point v;
    double start = 0;
    double sweep = 2 * kPi; // negative: clockwise

    Point At(double t) const;
    EllipseArc Transformed(const Matrix& matrix) const;
};

// The way from start to end around a circle, from 0 (excluded) to a whole turn.
double Sweep(double start, double end);

// The arc of a polyline's segment; none if it is straight.
std::optional<EllipseArc> BulgeArc(Point start, Point end, double bulge);

// Along the axes. Places that are not finite do not count.
class Box {
public:
    void Add(Point p);
    void Add(const EllipseArc& arc);
    bool IsEmpty() const { return low_.x > high_.x; }
    Point Low() const { return low_; } // not in use while empty
    Point High() const { return high_; }

    // Whether the other one, seen from above, reaches nowhere out of this one.
    bool Covers(const Box& other) const;
    // The box around this one in its new place.
    Box Transformed(const Matrix& matrix) const;

private:
    Point low_{1, 1, 1};
    Point high_{0, 0, 0};
};

} // namespace dxf
