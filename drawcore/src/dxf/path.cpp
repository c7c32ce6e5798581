// Outlines of the entities.

#include "drawcore/src/dxf/path.h"

#include <algorithm>
#include <cmath>

namespace dxf {

namespace {

EllipseArc CircleArc(Point center, double radius, double start, double sweep) {
    return {center, {radius, 0, 0}, {0, radius, 0}, start, sweep};
}

// The parameter of an ellipse at which it is seen under that angle from its centre.
double ParameterOf(double angle, double ratio) {
    const double turns = std::floor(angle / (2 * kPi) + 0.5) * 2 * kPi;
    return turns + std::atan2(std::sin(angle) / std::max(std::abs(ratio), 1e-12), std::cos(angle));
}

EllipseArc EdgeArc(const Hatch::Edge& edge) {
    double start = Radians(edge.startAngle);
    double end = Radians(edge.endAngle);
    const bool isCircle = edge.kind == Hatch::Edge::Kind::arc;
    const bool whole = std::abs(edge.endAngle - edge.startAngle) >= 360 - 1e-9;
    if (!isCircle && !whole) start = ParameterOf(start, edge.radius), end = ParameterOf(end, edge.radius);
    EllipseArc arc;
    arc.center = edge.start;
    arc.u = isCircle ? Point{edge.radius, 0, 0} : edge.end;
    arc.v = isCircle ? Point{0, edge.radius, 0} : Cross({0, 0, 1}, edge.end) * edge.radius;
    const double sweep = Sweep(start, end);
    arc.start =
        edge.counterClockwise ? start : -start; // clockwise ones count their angles the other way around
    arc.sweep = edge.counterClockwise ? sweep : -sweep;
    return arc;
}

Point CurvePoint(const Spline& spline, size_t span, double at, std::vector<Point>& points,
                 std::vector<double>& weights) {
    const auto degree = static_cast<size_t>(spline.degree);
    for (size_t i = 0; i <= degree; ++i) {
        const size_t from = span - degree + i;
        weights[i] = spline.weights.empty() ? 1 : spline.weights[from];
        points[i] = spline.controlPoints[from] * weights[i];
    }
    for (size_t level = 1; level <= degree; ++level)
        for (size_t i = degree; i >= level; --i) {
            const double low = spline.knots[span - degree + i];
            const double high = spline.knots[span + 1 + i - level];
            const double share = high > low ? (at - low) / (high - low) : 0;
            points[i] = points[i - 1] * (1 - share) + points[i] * share;
            weights[i] = weights[i - 1] * (1 - share) + weights[i] * share;
        }
    return points[degree] * (1 / weights[degree]);
}

// A smooth curve through all points (Catmull-Rom); its tangents are those of the neighbours' chord.
std::vector<Point> ThroughPoints(const std::vector<Point>& fit, bool closed) {
    constexpr int kSteps = 12;
    const size_t count = fit.size();
    std::vector<Point> chain{fit[0]};
    const auto point = [&](size_t i) { return closed ? fit[i % count] : fit[std::min(i, count - 1)]; };
    for (size_t i = 0; i + (closed ? 0 : 1) < count; ++i) {
        const Point before = i > 0 ? fit[i - 1] : closed ? fit[count - 1] : fit[0];
        const Point tangent1 = (point(i + 1) - before) * 0.5;
        const Point tangent2 = (point(i + 2) - point(i)) * 0.5;
        for (int step = 1; step <= kSteps; ++step) {
            const double t = static_cast<double>(step) / kSteps;
            const double s = t * t * (3 - 2 * t);
            chain.push_back(point(i) * (1 - s) + point(i + 1) * s + tangent1 * (t * (1 - t) * (1 - t)) -
                            tangent2 * (t * t * (1 - t)));
        }
    }
    return chain;
}

class Tracer {
public:
    Tracer(const Entity& entity, const Matrix& toWorld, PathSink& sink)
        : entity_(entity), toWorld_(toWorld), sink_(sink) {}

    void operator()(const Line& line) { Chain(std::array{line.start, line.end}, toWorld_); }
    void operator()(const PointMark& mark) { sink_.MoveTo(toWorld_.Apply(mark.at)); }
    void operator()(const Circle&) { Whole(*ArcOf(entity_)); }
    void operator()(const Arc&) { Whole(*ArcOf(entity_)); }
    void operator()(const Ellipse&) { Whole(*ArcOf(entity_)); }
    void operator()(const Leader& leader) { Chain(leader.vertices, toWorld_); }
    void operator()(const Apart<Spline>& spline) { Chain(Flatten(*spline), toWorld_); }
    void operator()(const Apart<Text>&) {}
    void operator()(const Apart<MText>&) {}
    void operator()(const Apart<Insert>&) {}
    void operator()(const Apart<Dimension>&) {}
    void operator()(const Apart<Viewport>&) {}

    void operator()(const Apart<Hatch>& hatch) {
        const Matrix system = toWorld_ * ObjectSystem(entity_.normal) * Translation({0, 0, hatch->elevation});
        for (const Hatch::Loop& loop : hatch->loops)
            Trace(loop, system, sink_);
    }

    void operator()(const Apart<Face>& face) {
        const Matrix system = face->filled ? toWorld_ * ObjectSystem(entity_.normal) : toWorld_;
        const auto& corners = face->corners;
        Chain(std::array{corners[0], corners[1], corners[2], corners[3], corners[0]}, system);
    }

    void operator()(const Polyline& polyline) {
        switch (polyline.kind) {
        case Polyline::Kind::flat:
            Outline(polyline, toWorld_ * ObjectSystem(entity_.normal));
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
        for (const Point& point : points) {
            if (first)
                sink_.MoveTo(system.Apply(point));
            else
                sink_.LineTo(system.Apply(point));
            first = false;
        }
    }

    void Whole(const EllipseArc& arc) {
        const EllipseArc placed = arc.Transformed(toWorld_);
        sink_.MoveTo(placed.At(placed.start));
        sink_.ArcTo(placed);
    }

    void Segment(const Polyline::Vertex& from, const Polyline::Vertex& to, const Matrix& system) {
        if (const auto arc = BulgeArc(from.at, to.at, from.bulge))
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
    const auto reach = [&](Point point) { // the edges of a loop join, if not always to the last digit
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
            for (const Point& point : Flatten(edge.spline))
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
        return CircleArc(arc->center, arc->radius, start, Sweep(start, Radians(arc->endAngle)))
            .Transformed(ObjectSystem(entity.normal));
    }
    if (const auto* ellipse = std::get_if<Ellipse>(&entity.shape)) {
        const double length = Length(entity.normal);
        const Point normal = length > 0 ? entity.normal * (1 / length) : Point{0, 0, 1};
        const Point minor = Cross(normal, ellipse->majorAxis) * ellipse->ratio;
        return EllipseArc{ellipse->center, ellipse->majorAxis, minor, ellipse->startParam,
                          Sweep(ellipse->startParam, ellipse->endParam)};
    }
    return std::nullopt;
}

std::vector<Point> Flatten(const Spline& spline) {
    if (spline.controlPoints.empty())
        return spline.fitPoints.empty() ? std::vector<Point>()
                                        : ThroughPoints(spline.fitPoints, spline.closed);
    const auto degree = static_cast<size_t>(spline.degree);
    const int steps = degree == 1 ? 1 : 16;
    std::vector<Point> points(degree + 1);
    std::vector<double> weights(degree + 1);
    std::vector<Point> chain;
    for (size_t span = degree; span < spline.controlPoints.size(); ++span) {
        const double low = spline.knots[span];
        const double high = spline.knots[span + 1];
        if (!(low < high)) continue;
        for (int step = chain.empty() ? 0 : 1; step <= steps; ++step)
            chain.push_back(CurvePoint(spline, span, low + (high - low) * step / steps, points, weights));
    }
    return chain;
}

} // namespace dxf
