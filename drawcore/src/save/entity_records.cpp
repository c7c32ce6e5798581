// Writes each kind of entity.
#include "drawcore/src/save/entity_records.h"

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/dxf/appearance.h"

namespace dxf {

namespace {

using Values = TablePatch::Values;

constexpr int kClosed = 1, kSpatial = 8; // flags in group 70 of a polyline
constexpr int kSpatialVertex = 32;       // flag of a vertex
constexpr int kClosedSpline = 1;

void Put(Values& to, int code, double number) {
    to.push_back({code, RealText(number)});
}

void Put(Values& to, int code, int number) {
    to.push_back({code, std::to_string(number)});
}

void PutFlat(Values& to, int code, const Vec3& point) {
    Put(to, code, point.x);
    Put(to, code + 10, point.y);
}

void Put(Values& to, int code, const Vec3& point) {
    PutFlat(to, code, point);
    Put(to, code + 20, point.z);
}

// Writes the text in pieces: code 3, and code 1 for the last one.
void PutParagraphs(Values& to, const std::vector<std::string>& pieces) {
    for (const std::string& piece : pieces)
        to.push_back({&piece == &pieces.back() ? 1 : 3, piece, true});
    if (pieces.empty()) to.push_back({1, ""});
}

// Writes widths and bulge of the segment after a vertex.
void PutSegment(Values& to, const Polyline::Vertex& vertex) {
    if (vertex.startWidth != 0 || vertex.endWidth != 0) {
        Put(to, 40, vertex.startWidth);
        Put(to, 41, vertex.endWidth);
    }
    if (vertex.bulge != 0) Put(to, 42, vertex.bulge);
}

} // namespace

// Writes the groups of a kind, after those of all entities.
struct EntityRecords::Shapes {
    EntityRecords& records;
    const Entity& entity;
    const std::string& owner;
    Values values;

    void Begin(const char* name, const char* marker) { records.Begin(values, {name, marker}, owner); }
    void PutNormal() {
        if (!(entity.normal == Vec3{0, 0, 1})) Put(values, 210, entity.normal);
    }

    void operator()(const Line& line) {
        Begin("LINE", "AcDbLine");
        Put(values, 10, line.start);
        Put(values, 11, line.end);
    }

    void operator()(const PointMark& mark) {
        Begin("POINT", "AcDbPoint");
        Put(values, 10, mark.at);
    }

    void operator()(const Circle& circle) {
        Begin("CIRCLE", "AcDbCircle");
        Put(values, 10, circle.center);
        Put(values, 40, circle.radius);
        PutNormal();
    }

    void operator()(const Arc& arc) {
        Begin("ARC", "AcDbCircle");
        Put(values, 10, arc.center);
        Put(values, 40, arc.radius);
        PutNormal();
        records.Mark(values, "AcDbArc");
        Put(values, 50, arc.startAngle);
        Put(values, 51, arc.endAngle);
    }

    void operator()(const Ellipse& ellipse) {
        records.RequireVersion("AC1012", "ellipses");
        Begin("ELLIPSE", "AcDbEllipse");
        Put(values, 10, ellipse.center);
        Put(values, 11, ellipse.majorAxis);
        PutNormal();
        Put(values, 40, ellipse.ratio);
        Put(values, 41, ellipse.startParam);
        Put(values, 42, ellipse.endParam);
    }

    void operator()(const Polyline& polyline) {
        const bool flat = polyline.kind == Polyline::Kind::flat;
        if (flat && records.known_.header.version >= "AC1014") return LightPolyline(polyline);
        const std::string handle =
            records.Begin(values, {"POLYLINE", flat ? "AcDb2dPolyline" : "AcDb3dPolyline"}, owner);
        Put(values, 66, 1);
        Put(values, 10, flat ? Vec3{0, 0, polyline.vertices[0].at.z} : Vec3{});
        Put(values, 70, (polyline.closed ? kClosed : 0) | (flat ? 0 : kSpatial));
        records.AppendVertices(values, polyline, handle);
    }

    void LightPolyline(const Polyline& polyline) {
        Begin("LWPOLYLINE", "AcDbPolyline");
        Put(values, 90, static_cast<int>(polyline.vertices.size()));
        Put(values, 70, polyline.closed ? kClosed : 0);
        if (polyline.vertices[0].at.z != 0) Put(values, 38, polyline.vertices[0].at.z);
        for (const Polyline::Vertex& vertex : polyline.vertices) {
            PutFlat(values, 10, vertex.at);
            PutSegment(values, vertex);
        }
    }

    void operator()(const Boxed<Spline>& spline) {
        records.RequireVersion("AC1012", "splines");
        Begin("SPLINE", "AcDbSpline");
        Put(values, 70, spline->closed ? kClosedSpline : 0);
        Put(values, 71, spline->degree);
        Put(values, 72, static_cast<int>(spline->knots.size()));
        Put(values, 73, static_cast<int>(spline->controlPoints.size()));
        Put(values, 74, 0);
        for (const double knot : spline->knots)
            Put(values, 40, knot);
        for (const double weight : spline->weights)
            Put(values, 41, weight);
        for (const Vec3& point : spline->controlPoints)
            Put(values, 10, point);
    }

    void operator()(const Boxed<Text>& text) {
        Begin("TEXT", "AcDbText");
        Put(values, 10, text->insertion);
        Put(values, 40, text->height);
        values.push_back({1, text->text});
        Put(values, 50, text->rotation);
        Put(values, 41, text->widthFactor);
        Put(values, 51, text->oblique);
        if (text->backward || text->upsideDown) Put(values, 71, (text->backward ? 2 : 0) | (text->upsideDown ? 4 : 0));
        Put(values, 72, static_cast<int>(text->horizontal));
        if (text->horizontal != Text::Horizontal::left || text->vertical != Text::Vertical::baseline)
            Put(values, 11, text->alignment);
        records.Mark(values, "AcDbText");
        Put(values, 73, static_cast<int>(text->vertical));
    }

    void operator()(const Boxed<MText>& text) {
        records.RequireVersion("AC1012", "multiline texts");
        Begin("MTEXT", "AcDbMText");
        Put(values, 10, text->insertion);
        Put(values, 40, text->height);
        Put(values, 41, text->width);
        Put(values, 71, text->attachment);
        Put(values, 72, 1); // from left to right
        PutParagraphs(values, records.tables_.Decoder().EncodePieces(text->text));
        Put(values, 11, text->direction);
        Put(values, 73, 1); // exact line spacing
        Put(values, 44, text->lineSpacing);
    }

    void operator()(const Boxed<Insert>& insert) {
        Begin("INSERT", "AcDbBlockReference");
        const Block& block = records.known_.At(insert->block);
        const bool isStored = !block.stored.empty();
        values.push_back({2, isStored ? block.stored : block.name, isStored});
        Put(values, 10, insert->at);
    }

    void operator()(const Boxed<Hatch>& hatch) {
        records.RequireVersion("AC1012", "hatches");
        Begin("HATCH", "AcDbHatch");
        Put(values, 10, Vec3{0, 0, hatch->elevation});
        Put(values, 210, entity.normal);
        values.push_back({2, "SOLID"});
        Put(values, 70, 1);
        Put(values, 71, 0);
        Put(values, 91, static_cast<int>(hatch->loops.size()));
        for (const Hatch::Loop& loop : hatch->loops) {
            Put(values, 92, loop.flags);
            Put(values, 72, 1); // has bulges
            Put(values, 73, 1); // closed
            Put(values, 93, static_cast<int>(loop.outline.vertices.size()));
            for (const Polyline::Vertex& vertex : loop.outline.vertices) {
                PutFlat(values, 10, vertex.at);
                Put(values, 42, vertex.bulge);
            }
            Put(values, 97, 0);
        }
        Put(values, 75, 0);
        Put(values, 76, 1);
        Put(values, 98, 0);
    }

    template <class Other>
    void operator()(const Other&) {
        throw SaveError("graphics of this kind can be read, but not added");
    }
};

std::string EntityRecords::LinesOf(const Entity& entity, const std::string& owner) {
    Shapes shapes{*this, entity, owner, {}};
    std::visit(shapes, entity.shape);
    return tables_.LinesOf(shapes.values);
}

std::string EntityRecords::BlockLines(const Block& block, const std::string& owner) {
    Values values;
    Begin(values, {"BLOCK", "AcDbBlockBegin"}, owner);
    values.push_back({2, block.name});
    Put(values, 70, block.flags);
    Put(values, 10, block.base);
    values.push_back({3, block.name});
    values.push_back({1, ""});
    if (!block.extended.empty()) {
        tables_.AddApplication(kApplication);
        values.push_back({kApplicationName, kApplication});
    }
    const Values extended = ExtendedValues(block.extended, tables_.Decoder());
    values.insert(values.end(), extended.begin(), extended.end());
    return tables_.LinesOf(values);
}

std::string EntityRecords::BlockEndLines(const std::string& owner) {
    Values values;
    Begin(values, {"ENDBLK", "AcDbBlockEnd"}, owner);
    return tables_.LinesOf(values);
}

std::string EntityRecords::Begin(Values& to, const Head& head, const std::string& owner) {
    const std::string handle = tables_.HasHandles() ? tables_.AllocateHandle() : std::string();
    to.push_back({0, head.name});
    if (!handle.empty()) to.push_back({kHandle, handle});
    if (tables_.HasOwners() && !owner.empty()) to.push_back({kOwner, owner});
    Mark(to, "AcDbEntity");
    to.push_back({kLayerName, "0"});
    if (head.marker) Mark(to, head.marker);
    return handle;
}

void EntityRecords::Mark(Values& to, const char* marker) const {
    if (tables_.HasMarkers()) to.push_back({kSubclass, marker});
}

void EntityRecords::RequireVersion(const char* version, const char* kind) const {
    if (known_.header.version < version) throw SaveError(std::string("a file of this version has no ") + kind);
}

void EntityRecords::AppendVertices(Values& to, const Polyline& polyline, const std::string& owner) {
    const bool flat = polyline.kind == Polyline::Kind::flat;
    for (const Polyline::Vertex& vertex : polyline.vertices) {
        Begin(to, {"VERTEX", "AcDbVertex"}, owner);
        Mark(to, flat ? "AcDb2dVertex" : "AcDb3dPolylineVertex");
        Put(to, 10, vertex.at);
        PutSegment(to, vertex);
        Put(to, 70, flat ? 0 : kSpatialVertex);
    }
    Begin(to, {"SEQEND", nullptr}, owner);
}

} // namespace dxf
