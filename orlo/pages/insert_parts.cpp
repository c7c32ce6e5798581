// Converts insertions to and from position, scale and rotation.

#include "orlo/pages/insert_parts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

#include "orlo/binding/fuzzy.h"
#include "orlo/host/matrix.h"
#include "orlo/host/owners.h"
#include "orlo/host/walk.h"

namespace {

constexpr double kCollapsed = 1e-7; // an axis of at most this length has no direction
constexpr double kNoTurn = 1e-7;

struct Vector {
    double x, y, z;
};

Vector operator-(const Vector& a, const Vector& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
Vector operator/(const Vector& a, double f) {
    return {a.x / f, a.y / f, a.z / f};
}
double Dot(const Vector& a, const Vector& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
double Length(const Vector& a) {
    return std::sqrt(Dot(a, a));
}
Vector Cross(const Vector& a, const Vector& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

using Axes = std::array<Vector, 3>;
using Corners = std::array<VertexStruct*, 4>; // the origin and the end points of the axes

bool FindCorners(GraphicStruct* graphic, Corners& corners) {
    size_t found = 0;
    for (VertexStruct* vertex : orlo::host::Vertices(graphic)) {
        corners[found++] = vertex;
        if (found == corners.size()) return true;
    }
    return false;
}

Vector PointOf(const VertexStruct& vertex) {
    return {vertex.x, vertex.y, vertex.z};
}

Axes AxesOf(const Corners& corners) {
    const Vector origin = PointOf(*corners[0]);
    return {PointOf(*corners[1]) - origin, PointOf(*corners[2]) - origin, PointOf(*corners[3]) - origin};
}

// Computes the rotations of a frame without shear from the directions of its x and z axes. Adding 0.0 turns -0.0 into
// 0.0.
void FindRotations(Vector a, const Vector& c, bool withZ, double rotation[3]) {
    if (c.x == 0.0 && c.y == 0.0 && c.z > 0.0) { // shortcut for insertions in the plane, the most common case
        rotation[0] = rotation[1] = 0.0;
        if (withZ) rotation[2] = a.y == 0.0 && a.x > 0.0 ? 0.0 : std::atan2(a.y, a.x);
        return;
    }
    double across = std::sqrt(c.y * c.y + c.z * c.z);
    if (!(across > kCollapsed)) across = 0.0;
    rotation[0] = across > 0.0 ? 0.0 - std::atan2(c.y, c.z) : 0.0;
    rotation[1] = std::atan2(c.x, across) + 0.0;
    if (!withZ) return;
    const double co = std::cos(rotation[0]), si = std::sin(rotation[0]);
    a = {a.x, a.y * co + a.z * si, a.z * co - a.y * si};
    rotation[2] = std::atan2(a.y, a.x * std::cos(rotation[1]) - a.z * std::sin(rotation[1])) + 0.0;
}

bool GetParts(const Corners& corners, bool withRotationZ, InsertParts& parts) {
    const VertexStruct& origin = *corners[0];
    parts.position[0] = origin.x;
    parts.position[1] = origin.y;
    parts.position[2] = origin.z;
    const auto [a, b, c] = AxesOf(corners);
    parts.scale[0] = Length(a);
    parts.scale[1] = Length(b);
    parts.scale[2] = Length(c);
    for (const double scale : parts.scale)
        if (!(scale > kCollapsed)) return false;
    if (Dot(Cross(a, b), c) < 0.0) parts.scale[2] = -parts.scale[2];
    FindRotations(a / parts.scale[0], c / parts.scale[2], withRotationZ, parts.rotation);
    return true;
}

// Normalizes a vector. Returns false if it has no direction.
bool Normalize(Vector& axis) {
    const double length = Length(axis);
    if (!(length > kCollapsed)) return false;
    axis = axis / length;
    return true;
}

// Returns a unit vector perpendicular to the direction, derived from the first of the axes z, x, y that is far enough
// from it.
Vector PerpendicularTo(const Vector& direction) {
    const Vector kCandidates[] = {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}};
    for (const Vector& candidate : kCandidates) {
        const double along = Dot(candidate, direction);
        Vector rest = candidate - Vector{direction.x * along, direction.y * along, direction.z * along};
        if (std::fabs(along) < 0.8 && Normalize(rest)) return rest;
    }
    return kCandidates[0];
}

// Replaces collapsed axes by perpendicular directions.
Axes CompleteFrame(Axes axes) {
    bool hasDirection[3];
    for (size_t i = 0; i < 3; ++i)
        hasDirection[i] = Normalize(axes[i]);
    if (!hasDirection[0] && !hasDirection[1] && !hasDirection[2]) return {Vector{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    for (size_t i = 0; i < 3; ++i) {
        const size_t next = (i + 1) % 3, last = (i + 2) % 3;
        if (hasDirection[i]) continue;
        if (hasDirection[next] && hasDirection[last]) {
            axes[i] = Cross(axes[next], axes[last]);
            hasDirection[i] = Normalize(axes[i]);
        }
        if (hasDirection[i]) continue;
        axes[i] = PerpendicularTo(axes[hasDirection[next] ? next : last]);
        hasDirection[i] = true;
    }
    return axes;
}

class HostMatrix {
public:
    ~HostMatrix() { Take(nullptr); }
    HostMatrix() = default;
    HostMatrix(const HostMatrix&) = delete;
    HostMatrix& operator=(const HostMatrix&) = delete;

    void Take(MatrixStruct* next) {
        if (m_matrix != nullptr) ::MatrixDispose(&m_matrix);
        m_matrix = next;
    }
    const MatrixStruct* get() const { return m_matrix; }

private:
    MatrixStruct* m_matrix = nullptr;
};

bool HasScale(const InsertParts& parts) {
    const double one = 1.0;
    return std::any_of(std::begin(parts.scale), std::end(parts.scale),
                       [&](const double& scale) { return CompareDoubles(&scale, &one) != 0; });
}

void BuildMatrix(const InsertParts& parts, const orlo::host::OwnedVertex& scratch, HostMatrix& matrix) {
    if (HasScale(parts)) {
        ::VertexSet(scratch.get(), parts.scale[0], parts.scale[1], parts.scale[2]);
        matrix.Take(::MatrixScale(matrix.get(), scratch.get(), 0));
    }
    constexpr MatrixStruct* (*kTurns[])(const MatrixStruct*, double, int) = {::MatrixRotateX, ::MatrixRotateY,
                                                                             ::MatrixRotateZ};
    for (const int about : {2, 1, 0}) {
        const double angle = parts.rotation[about];
        if (std::fabs(angle) > kNoTurn) matrix.Take(kTurns[about](matrix.get(), angle, 0));
    }
    ::VertexSet(scratch.get(), parts.position[0], parts.position[1], parts.position[2]);
    matrix.Take(::MatrixOffset(matrix.get(), scratch.get()));
}

// Sets the origin and the end points of the axes.
void SetCorners(const Corners& corners, const Vector& origin, const Axes& axes) {
    ::VertexSet(corners[0], origin.x, origin.y, origin.z);
    for (size_t i = 0; i < axes.size(); ++i)
        ::VertexSet(corners[i + 1], origin.x + axes[i].x, origin.y + axes[i].y, origin.z + axes[i].z);
}

bool Equal(const double (&a)[3], const double (&b)[3]) {
    return std::equal(a, a + 3, b);
}

bool IsFinite(const double (&values)[3]) {
    return std::isfinite(std::fabs(values[0]) + std::fabs(values[1]) + std::fabs(values[2]));
}

} // namespace

void InsertGetParts(GraphicStruct* graphic, InsertParts* parts) {
    Corners corners{};
    if (FindCorners(graphic, corners)) GetParts(corners, true, *parts);
}

void InsertSetParts(GraphicStruct* graphic, const InsertParts* parts) {
    Corners corners{};
    const orlo::host::OwnedVertex scratch(::VertexNewEx(0, 0, 0));
    if (scratch.get() == nullptr || !FindCorners(graphic, corners)) return;
    HostMatrix matrix;
    BuildMatrix(*parts, scratch, matrix);
    const MatrixStruct identity = {{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
    const auto& rows = (matrix.get() != nullptr ? matrix.get() : &identity)->at;
    const auto row = [&](int r) { return Vector{rows[r][0], rows[r][1], rows[r][2]}; };
    SetCorners(corners, row(3), {row(0), row(1), row(2)});
}

bool ReadInsertParts(GraphicStruct* graphic, InsertParts& parts, bool withRotationZ) {
    Corners corners{};
    if (!FindCorners(graphic, corners)) return false;
    const bool solid = GetParts(corners, withRotationZ, parts);
    if (!IsFinite(parts.position) || !IsFinite(parts.scale)) return false;
    if (!solid) {
        const Axes frame = CompleteFrame(AxesOf(corners));
        FindRotations(frame[0], frame[2], withRotationZ, parts.rotation);
    }
    for (double& rotation : parts.rotation)
        if (std::fabs(rotation) <= kNoTurn) rotation = 0.0;
    return true;
}

void ChangeInsertParts(GraphicStruct* graphic, const InsertParts& from, const InsertParts& to) {
    if (!IsFinite(to.position) || !IsFinite(to.scale) || !IsFinite(to.rotation)) return;
    if (!Equal(from.scale, to.scale) || !Equal(from.rotation, to.rotation)) {
        InsertSetParts(graphic, &to);
        return;
    }
    Corners corners{};
    if (Equal(from.position, to.position) || !FindCorners(graphic, corners)) return;
    SetCorners(corners, {to.position[0], to.position[1], to.position[2]}, AxesOf(corners));
}
