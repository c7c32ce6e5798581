// Reads LWPOLYLINE, and POLYLINE with its VERTEX records: two- and three-dimensional ones, meshes and faces.

#include <algorithm>
#include <cstdlib>

#include "drawcore/src/dxf/entity_reader.h"

namespace dxf {

namespace {

enum PolylineFlags {
    kClosed = 1,
    kSplineFit = 4,
    kSpatial = 8,
    kMesh = 16,
    kClosedN = 32,
    kFaces = 64,
    kThrough = 128
};
enum VertexFlags { kFrame = 16, kPosition = 64, kFace = 128 };

struct PolylineCodes {
    int flags = 0;
    uint32_t rows = 0;
    uint32_t columns = 0;
    uint32_t smoothRows = 0;
    uint32_t smoothColumns = 0;
    double startWidth = 0;
    double endWidth = 0;
    Vec3 elevation;
};

const Field<PolylineCodes> kPolyline[] = {
    {70, &PolylineCodes::flags},      {71, &PolylineCodes::rows},          {72, &PolylineCodes::columns},
    {73, &PolylineCodes::smoothRows}, {74, &PolylineCodes::smoothColumns}, {40, &PolylineCodes::startWidth},
    {41, &PolylineCodes::endWidth},   {10, &PolylineCodes::elevation},
};

struct VertexCodes {
    Vec3 at;
    double startWidth = 0;
    double endWidth = 0;
    double bulge = 0;
    int flags = 0;
    int first = 0; // corners of a face
    int second = 0;
    int third = 0;
    int fourth = 0;
};

const Field<VertexCodes> kVertex[] = {
    {10, &VertexCodes::at},     {40, &VertexCodes::startWidth}, {41, &VertexCodes::endWidth},
    {42, &VertexCodes::bulge},  {70, &VertexCodes::flags},      {71, &VertexCodes::first},
    {72, &VertexCodes::second}, {73, &VertexCodes::third},      {74, &VertexCodes::fourth},
};

Polyline::Kind KindOf(int flags) {
    if (flags & kFaces) return Polyline::Kind::faces;
    if (flags & kMesh) return Polyline::Kind::mesh;
    return flags & kSpatial ? Polyline::Kind::spatial : Polyline::Kind::flat;
}

void AddVertex(Polyline& polyline, const VertexCodes& codes, const PolylineCodes& polylineCodes) {
    const bool faces = polyline.kind == Polyline::Kind::faces;
    if (faces && (codes.flags & kFace) && !(codes.flags & kPosition)) {
        polyline.faces.push_back({codes.first, codes.second, codes.third, codes.fourth});
        return;
    }
    if ((polylineCodes.flags & kSplineFit) && (codes.flags & kFrame))
        return; // control points of a curve whose points follow
    Polyline::Vertex& vertex = polyline.vertices.emplace_back();
    vertex.at = codes.at;
    if (polyline.kind != Polyline::Kind::flat) return;
    vertex.at.z = polylineCodes.elevation.z;
    vertex.startWidth = codes.startWidth;
    vertex.endWidth = codes.endWidth;
    vertex.bulge = codes.bulge;
}

// Returns false if a mesh has too few vertices.
bool MakeValid(Polyline& polyline, const PolylineCodes& codes) {
    const size_t count = polyline.vertices.size();
    const auto outside = [&](const std::array<int, 4>& face) {
        return std::any_of(face.begin(), face.end(),
                           [&](int i) { return i == INT32_MIN || static_cast<size_t>(std::abs(i)) > count; });
    };
    polyline.faces.erase(std::remove_if(polyline.faces.begin(), polyline.faces.end(), outside), polyline.faces.end());
    if (polyline.kind != Polyline::Kind::mesh) return true;
    const bool smooth = (codes.flags & kSplineFit) != 0;
    polyline.rows = smooth ? codes.smoothRows : codes.rows;
    polyline.columns = smooth ? codes.smoothColumns : codes.columns;
    return uint64_t{polyline.rows} * polyline.columns <= count;
}

} // namespace

void EntityReader::ReadPolyline(Entity& entity) {
    PolylineCodes codes;
    ReadTags(kPolyline, codes, entity);
    TakeExtended(entity);
    Polyline& polyline = entity.shape.emplace<Polyline>();
    polyline.kind = KindOf(codes.flags);
    polyline.closed = (codes.flags & kClosed) != 0;
    polyline.closedN = (codes.flags & kClosedN) != 0;
    polyline.dashesThrough = (codes.flags & kThrough) != 0;
    const Tag& tag = in_.tags.Current();
    while (tag.Is(0, "VERTEX")) {
        Count();
        VertexCodes vertex;
        vertex.startWidth = codes.startWidth;
        vertex.endWidth = codes.endWidth;
        in_.ReadFields(kVertex, vertex);
        AddVertex(polyline, vertex, codes);
    }
    if (!MakeValid(polyline, codes)) Reject("its mesh has fewer vertices than its rows and columns require");
    SkipSequenceEnd();
}

namespace {

// Sets a value of the last vertex, if there is one. Returns false for other codes.
bool SetVertexValue(RecordReader& in, Polyline& polyline, const Tag& tag) {
    constexpr struct {
        int code;
        double Polyline::Vertex::*value;
    } kNumbers[] = {
        {40, &Polyline::Vertex::startWidth}, {41, &Polyline::Vertex::endWidth}, {42, &Polyline::Vertex::bulge}};
    if (tag.code == 10) polyline.vertices.emplace_back();
    const bool isPoint = tag.code == 10 || tag.code == 20;
    const auto* number = std::find_if(std::begin(kNumbers), std::end(kNumbers),
                                      [&](const auto& known) { return known.code == tag.code; });
    if (!isPoint && number == std::end(kNumbers)) return false;
    if (polyline.vertices.empty()) return true;
    Polyline::Vertex& vertex = polyline.vertices.back();
    if (isPoint)
        in.SetAxis(vertex.at, tag, tag.code - 10);
    else
        vertex.*number->value = in.Real(tag);
    return true;
}

} // namespace

void EntityReader::ReadLightPolyline(Entity& entity) {
    Polyline& polyline = entity.shape.emplace<Polyline>();
    double width = 0;
    double elevation = 0;
    while (in_.NextTag()) {
        const Tag& tag = in_.tags.Current();
        if (SetVertexValue(in_, polyline, tag)) continue;
        switch (tag.code) {
        case 43:
            width = in_.Real(tag);
            break;
        case 38:
            elevation = in_.Real(tag);
            break;
        case 70:
            polyline.closed = (tag.Integer() & kClosed) != 0;
            polyline.dashesThrough = (tag.Integer() & kThrough) != 0;
            break;
        default:
            SetCommon(entity);
        }
    }
    for (Polyline::Vertex& vertex : polyline.vertices) {
        vertex.at.z = elevation;
        if (vertex.startWidth == 0 && vertex.endWidth == 0) vertex.startWidth = vertex.endWidth = width;
    }
}

} // namespace dxf
