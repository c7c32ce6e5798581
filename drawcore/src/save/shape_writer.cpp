// Writes moved vertices of lines, polylines, faces, points and leaders.
#include <algorithm>
#include <cmath>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/dxf/placement.h"
#include "drawcore/src/save/appearance_writer.h"

namespace dxf {

namespace {

// Returns a point in object coordinates for a world position. A point that has not moved is returned unchanged.
Vec3 Moved(const Vec3& point, const Vec3& to, const Matrix& system, const Matrix& back) {
    return system.Apply(point) == to ? point : back.Apply(to);
}

// Returns the vertices of lines, polylines, points and leaders, as many as MoveVertices expects.
std::vector<Vec3> VerticesInWorld(const Entity& entity) {
    if (const auto* line = std::get_if<Line>(&entity.shape)) return {line->start, line->end};
    if (const auto* mark = std::get_if<PointMark>(&entity.shape)) return {mark->at, mark->at};
    if (const auto* leader = std::get_if<Leader>(&entity.shape)) return leader->vertices;
    std::vector<Vec3> vertices;
    if (const auto* polyline = std::get_if<Polyline>(&entity.shape)) {
        const Matrix system = polyline->kind == Polyline::Kind::flat ? ObjectSystem(entity.normal) : Matrix();
        for (const Polyline::Vertex& vertex : polyline->vertices)
            vertices.push_back(system.Apply(vertex.at));
    }
    return vertices;
}

} // namespace

void AppearanceWriter::MoveTo(const Vec3& position) {
    const Matrix system = ObjectSystem(entity_.normal);
    const std::optional<Vec3> from = PositionOf(entity_);
    Matrix back;
    if (!from || !system.Invert(back)) return;
    const Vec3 by = position - *from;
    const auto moved = [&](const Vec3& point) { return point == *from ? position : point + by; }; // without rounding
    const auto movedInObject = [&](const Vec3& point) { return back.Apply(moved(system.Apply(point))); };
    std::vector<Vec3> vertices = VerticesInWorld(entity_);
    if (auto* text = As<Text>(entity_)) {
        const bool usesAlignment = !IsPlacedByInsertion(*text) || record_.Find(11);
        text->insertion = movedInObject(text->insertion);
        if (usesAlignment) text->alignment = movedInObject(text->alignment);
    } else if (!vertices.empty()) {
        std::transform(vertices.begin(), vertices.end(), vertices.begin(), moved);
        MoveVertices(vertices);
    } else if (As<MText>(entity_) || std::holds_alternative<Ellipse>(entity_.shape)) {
        PutPoint(10, *from, position);
    } else {
        PutPoint(10, back.Apply(*from), back.Apply(position));
    }
}

void AppearanceWriter::MoveVertices(const std::vector<Vec3>& to) {
    if (auto* line = std::get_if<Line>(&entity_.shape); line && to.size() == 2) {
        PutPoint(10, line->start, to[0]);
        PutPoint(11, line->end, to[1]);
    } else if (auto* mark = std::get_if<PointMark>(&entity_.shape); mark && to.size() == 2) {
        PutPoint(10, mark->at, to[0]);
    } else if (auto* face = As<Face>(entity_); face && to.size() == 5) {
        MoveCorners(*face, to);
    } else if (auto* leader = std::get_if<Leader>(&entity_.shape)) {
        PutPoints(leader->vertices, to, true);
    } else if (auto* polyline = std::get_if<Polyline>(&entity_.shape)) {
        MovePolyline(*polyline, to);
    }
}

void AppearanceWriter::MoveCorners(const Face& face, const std::vector<Vec3>& to) {
    const Matrix system = face.filled ? ObjectSystem(entity_.normal) : Matrix();
    Matrix back;
    if (!system.Invert(back)) return;
    constexpr int kAround[] = {10, 11, 12, 13}, kCrosswise[] = {10, 11, 13, 12};
    for (size_t i = 0; i < 4; ++i)
        PutPoint((face.filled ? kCrosswise : kAround)[i], face.corners[i], Moved(face.corners[i], to[i], system, back));
}

void AppearanceWriter::MovePolyline(Polyline& polyline, const std::vector<Vec3>& to) {
    const bool flat = polyline.kind == Polyline::Kind::flat;
    const Matrix system = flat ? ObjectSystem(entity_.normal) : Matrix();
    Matrix back;
    if (!(flat || polyline.kind == Polyline::Kind::spatial) || polyline.vertices.empty() ||
        to.size() != polyline.vertices.size() || !system.Invert(back))
        return;
    std::vector<Vec3> was, now;
    for (size_t i = 0; i < to.size(); ++i) {
        was.push_back(polyline.vertices[i].at);
        now.push_back(Moved(was.back(), to[i], system, back));
        polyline.vertices[i].at = now.back();
    }
    const double height = now[0].z;
    const auto isOff = [&](const Vec3& point) {
        return !SameToRounding(point.z, height, std::max(std::fabs(point.x), std::fabs(point.y)));
    };
    if (flat && std::any_of(now.begin(), now.end(), isOff))
        throw SaveError("the file format cannot store a flat polyline with different elevations");
    const bool isLight = record_.Groups()[0].value.find("LW") != std::string_view::npos;
    if (isLight) {
        PutReal(38, was[0].z, height, {43, 70, 90});
        PutPoints(was, now, false);
        return;
    }
    if (flat) PutPoint(10, {0, 0, was[0].z}, {0, 0, height});
    MoveVertexRecords(was, now, flat);
}

// Writes the groups 10, 20 and possibly 30, which occur once per point.
void AppearanceWriter::PutPoints(const std::vector<Vec3>& was, const std::vector<Vec3>& now, bool inSpace) {
    if (was.size() != now.size()) return;
    size_t pointCount = 0;
    for (const Group& group : record_.Groups()) {
        if (group.attached) continue;
        if (group.code == 10) ++pointCount;
        const size_t i = pointCount - 1;
        const double Vec3::*axis = group.code == 10              ? &Vec3::x
                                   : group.code == 20            ? &Vec3::y
                                   : group.code == 30 && inSpace ? &Vec3::z
                                                                 : nullptr;
        if (axis && pointCount > 0 && pointCount <= now.size() && was[i].*axis != now[i].*axis)
            record_.SetValue(group, RealText(now[i].*axis));
    }
}

void AppearanceWriter::MoveVertexRecords(const std::vector<Vec3>& was, const std::vector<Vec3>& now, bool flat) {
    TagReader& tags = drawing_.in_.tags;
    size_t at = record_.End();
    for (size_t i = 0; i < now.size() && tags.Seek(at).Is(0, "VERTEX"); ++i) {
        RecordPatch vertex(drawing_.patch_, tags, at);
        const auto put = [&](int code, double before, double after) {
            if (before != after) vertex.Set(code, RealText(after), {code - 10, 10});
        };
        put(10, was[i].x, now[i].x);
        put(20, was[i].y, now[i].y);
        if (!flat || vertex.Find(30)) put(30, was[i].z, now[i].z);
        at = vertex.End();
    }
}

} // namespace dxf
