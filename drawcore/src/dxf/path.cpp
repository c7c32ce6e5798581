// Traces the outlines of entities.

#include "drawcore/src/dxf/path.h"

#include <algorithm>
#include <cmath>

#include "drawcore/src/geometry/flatten.h"

namespace dxf {

using drawcore::CircleArc;
using drawcore::kPi;
using drawcore::SplineChain;
using drawcore::SweepBetween;

namespace {

// Returns the parameter of an ellipse for an angle at its center.
double ParameterOf(double angle, double ratio) {
    const double turns = std::floor(angle / (2 * kPi) + 0.5) * 2 * kPi;
    return turns + std::atan2(std::sin(angle) / std::max(std::abs(ratio), 1e-12), std::cos(angle));
}

EllipseArc EdgeArc(const Hatch::Edge& edge) {
    double start = Radians(edge.startAngle);
    double end = Radians(edge.endAngle);
    const bool isCircle = edge.kind == Hatch::Edge::Kind::arc;
    const bool isFullCircle = std::abs(edge.endAngle - edge.startAngle) >= 360 - 1e-9;
    if (!isCircle && !isFullCircle) start = ParameterOf(start, edge.radius), end = ParameterOf(end, edge.radius);
    EllipseArc arc;
    arc.center = edge.start;
    arc.major = isCircle ? Vec3{edge.radius, 0, 0} : edge.end;
    arc.minor = isCircle ? Vec3{0, edge.radius, 0} : Cross({0, 0, 1}, edge.end) * edge.radius;
    const double sweep = SweepBetween(start, end);
    arc.start = edge.counterClockwise ? start : -start; // clockwise edges have their angles negated
    arc.sweep = edge.counterClockwise ? sweep : -sweep;
    return arc;
}

class Tracer {
public:
    Tracer(const Entity& entity, const Matrix& toWorld, PathSink& sink)
        : entity_(entity), toWorld_(toWorld), sink_(sink) {}

    void operator()(const Line& line) { Chain(std::array{line.start, line.end}, toWorld_); }
    void operator()(const PointMark& mark) { sink_.MoveTo(toWorld_.Apply(mark.at)); }
    void operator()(const Circle&) { TraceArc(*ArcOf(entity_)); }
    void operator()(const Arc&) { TraceArc(*ArcOf(entity_)); }
    void operator()(const Ellipse&) { TraceArc(*ArcOf(entity_)); }
    void operator()(const Leader& leader) { Chain(leader.vertices, toWorld_); }
    void operator()(const Boxed<Spline>& spline) { Chain(SplineChain(CurveOf(*spline)), toWorld_); }
    void operator()(const Boxed<Text>&) {}
    void operator()(const Boxed<MText>&) {}
    void operator()(const Boxed<Insert>&) {}
    void operator()(const Boxed<Dimension>&) {}
    void operator()(const Boxed<Viewport>&) {}

    void operator()(const Boxed<Hatch>& hatch) {
        const Matrix system = Matrix::Translation({0, 0, hatch->elevation}) * ObjectSystem(entity_.normal) * toWorld_;
        for (const Hatch::Loop& loop : hatch->loops)
            Trace(loop, system, sink_);
    }

    void operator()(const Boxed<Face>& face) {
        const Matrix system = face->filled ? ObjectSystem(entity_.normal) * toWorld_ : toWorld_;
        const auto& corners = face->corners;
        Chain(std::array{corners[0], corners[1], corners[2], corners[3], corners[0]}, system);
    }

    void operator()(const Polyline& polyline) {
        switch (polyline.kind) {
        case Polyline::Kind::flat:
            Outline(polyline, ObjectSystem(entity_.normal) * toWorld_);
            break;
        case Polyline::Kind::spatial:
            Outline(polyline, toWorld_);
            break;
        case Polyline::Kind::mesh:
            Mesh(polyline);
            break;
        case Polyline::Kind::faces:
            Faces(polyline);
            break;
        }
    }

    void Outline(const Polyline& polyline, const Matrix& system) {
        const auto& vertices = polyline.vertices;
        if (vertices.empty()) return;
        sink_.MoveTo(system.Apply(vertices[0].at));
        for (size_t i = 0; i + 1 < vertices.size(); ++i)
            Segment(vertices[i], vertices[i + 1], system);
        if (polyline.closed && vertices.size() > 1) Segment(vertices.back(), vertices[0], system);
    }

private:
    template <class Points>
    void Chain(const Points& points, const Matrix& system) {
        bool first = true;
        for (const Vec3& point : points) {
            if (first)
                sink_.MoveTo(system.Apply(point));
            else
                sink_.LineTo(system.Apply(point));
            first = false;
        }
    }

    void TraceArc(const EllipseArc& arc) {
        const EllipseArc placed = arc.Transformed(toWorld_);
        sink_.MoveTo(placed.At(placed.start));
        sink_.ArcTo(placed);
    }

    void Segment(const Polyline::Vertex& from, const Polyline::Vertex& to, const Matrix& system) {
        if (const auto arc = drawcore::ArcOfBulge(from.at, to.at, from.bulge))
            sink_.ArcTo(arc->Transformed(system));
        else
            sink_.LineTo(system.Apply(to.at));
    }

    void Mesh(const Polyline& mesh) {
        const auto at = [&](size_t row, size_t column) {
            return toWorld_.Apply(mesh.vertices[row % mesh.rows * mesh.columns + column % mesh.columns].at);
        };
        for (size_t row = 0; row < mesh.rows && mesh.columns > 0; ++row) {
            sink_.MoveTo(at(row, 0));
            for (size_t column = 1; column < mesh.columns + (mesh.closedN ? 1u : 0u); ++column)
                sink_.LineTo(at(row, column));
        }
        for (size_t column = 0; column < mesh.columns && mesh.rows > 0; ++column) {
            sink_.MoveTo(at(0, column));
            for (size_t row = 1; row < mesh.rows + (mesh.closed ? 1u : 0u); ++row)
                sink_.LineTo(at(row, column));
        }
    }

    void Faces(const Polyline& polyline) {
        const auto at = [&](int position) {
            return toWorld_.Apply(polyline.vertices[static_cast<size_t>(std::abs(position)) - 1].at);
        };
        for (const auto& face : polyline.faces) {
            const auto end = std::find(face.begin(), face.end(), 0);
            const auto corners = static_cast<size_t>(end - face.begin());
            for (size_t i = 0; i < corners; ++i) {
                if (face[i] < 0) continue;
                sink_.MoveTo(at(face[i]));
                sink_.LineTo(at(face[(i + 1) % corners]));
            }
        }
    }

    const Entity& entity_;
    const Matrix& toWorld_;
    PathSink& sink_;
};

} // namespace

void Trace(const Entity& entity, const Matrix& toWorld, PathSink& sink) {
    std::visit(Tracer(entity, toWorld, sink), entity.shape);
}

void Trace(const Hatch::Loop& loop, const Matrix& toWorld, PathSink& sink) {
    using Kind = Hatch::Edge::Kind;
    if (loop.edges.empty()) {
        Tracer(Entity(), toWorld, sink).Outline(loop.outline, toWorld);
        return;
    }
    bool first = true;
    const auto reach = [&](Vec3 point) { // the edges of a loop may have small gaps
        if (first)
            sink.MoveTo(toWorld.Apply(point));
        else
            sink.LineTo(toWorld.Apply(point));
        first = false;
    };
    for (const Hatch::Edge& edge : loop.edges) {
        if (edge.kind == Kind::line) {
            reach(edge.start);
            reach(edge.end);
        } else if (edge.kind == Kind::spline) {
            for (const Vec3& point : SplineChain(CurveOf(edge.spline)))
                reach(point);
        } else {
            const EllipseArc arc = EdgeArc(edge);
            reach(arc.At(arc.start));
            sink.ArcTo(arc.Transformed(toWorld));
        }
    }
}

std::optional<EllipseArc> ArcOf(const Entity& entity) {
    if (const auto* circle = std::get_if<Circle>(&entity.shape))
        return CircleArc(circle->center, circle->radius, 0, 2 * kPi).Transformed(ObjectSystem(entity.normal));
    if (const auto* arc = std::get_if<Arc>(&entity.shape)) {
        const double start = Radians(arc->startAngle);
        return CircleArc(arc->center, arc->radius, start, SweepBetween(start, Radians(arc->endAngle)))
            .Transformed(ObjectSystem(entity.normal));
    }
    if (const auto* ellipse = std::get_if<Ellipse>(&entity.shape)) {
        const double length = Length(entity.normal);
        const Vec3 normal = length > 0 ? entity.normal * (1 / length) : Vec3{0, 0, 1};
        const Vec3 minor = Cross(normal, ellipse->majorAxis) * ellipse->ratio;
        return EllipseArc{ellipse->center, ellipse->majorAxis, minor, ellipse->startParam,
                          SweepBetween(ellipse->startParam, ellipse->endParam)};
    }
    return std::nullopt;
}

drawcore::SplineCurve CurveOf(const Spline& spline) {
    if (spline.controlPoints.empty()) return drawcore::SplineThrough(spline.fitPoints, spline.closed);
    return {spline.degree, spline.knots, spline.controlPoints, spline.weights};
}

} // namespace dxf
