// Reads HATCH, the only entity in which the meaning of a group code depends on the preceding groups.

#include "drawcore/src/dxf/entity_reader.h"

namespace dxf {

namespace {

constexpr int kOutlineLoop = 2; // flag of a loop that is a polyline rather than a list of edges

const Field<Hatch> kHead[] = {{2, &Hatch::pattern}, {70, &Hatch::solid}};
const Field<Hatch> kPattern[] = {
    {52, &Hatch::angle}, {41, &Hatch::scale}, {77, &Hatch::crossed}, {450, &Hatch::gradient}};

// Parses a HATCH record in order: head, loops, pattern, seed points.
class HatchParts {
public:
    HatchParts(RecordReader& in, Hatch& hatch) : in_(in), hatch_(hatch) {}

    // Returns false if the code has no meaning for a hatch at this position.
    bool Read(const Tag& tag) {
        if (StartsPart(tag)) return true;
        switch (part_) {
        case Part::head:
            return ReadHead(tag);
        case Part::outline:
            return ReadOutline(tag);
        case Part::edges:
            return ReadEdge(tag);
        case Part::pattern:
            return in_.SetField(kPattern, hatch_, tag) || ReadPatternLine(tag);
        case Part::seeds:
            return tag.code == 450 && ((hatch_.gradient = tag.Flag()), true);
        }
        return false;
    }

    // Completes the last edge.
    void Finish() {
        for (Hatch::Loop& loop : hatch_.loops)
            for (Hatch::Edge& edge : loop.edges)
                if (edge.kind == Hatch::Edge::Kind::spline) MakeValid(edge.spline);
    }

private:
    enum class Part { head, outline, edges, pattern, seeds };

    bool StartsPart(const Tag& tag) {
        switch (tag.code) {
        case 92:
            StartLoop(tag.Integer());
            return true;
        case 75:
            part_ = Part::pattern;
            hatch_.style = tag.Integer();
            return true;
        case 98:
            part_ = Part::seeds;
            return true;
        default:
            return false;
        }
    }

    void StartLoop(int flags) {
        hatch_.loops.emplace_back().flags = flags;
        hatch_.loops.back().outline.closed = true;
        part_ = flags & kOutlineLoop ? Part::outline : Part::edges;
    }

    bool ReadHead(const Tag& tag) {
        if (tag.code == 30) hatch_.elevation = in_.Real(tag);
        return tag.code == 10 || tag.code == 20 || tag.code == 30 || in_.SetField(kHead, hatch_, tag);
    }

    bool ReadOutline(const Tag& tag) {
        std::vector<Polyline::Vertex>& vertices = hatch_.loops.back().outline.vertices;
        if (tag.code == 10) vertices.emplace_back();
        if (vertices.empty()) return tag.code == 72 || tag.code == 73 || tag.code == 93;
        if (tag.code == 10 || tag.code == 20) in_.SetAxis(vertices.back().at, tag, tag.code - 10);
        if (tag.code == 42) vertices.back().bulge = in_.Real(tag);
        return tag.code == 10 || tag.code == 20 || tag.code == 42;
    }

    bool ReadEdge(const Tag& tag) {
        using Kind = Hatch::Edge::Kind;
        std::vector<Hatch::Edge>& edges = hatch_.loops.back().edges;
        if (tag.code == 72) {
            constexpr Kind kKinds[] = {Kind::line, Kind::arc, Kind::ellipse, Kind::spline};
            const int kind = tag.Integer();
            edges.emplace_back().kind = kind >= 1 && kind <= 4 ? kKinds[kind - 1] : Kind::line;
            return true;
        }
        if (edges.empty()) return tag.code == 93;
        return edges.back().kind == Kind::spline ? ReadSpline(edges.back().spline, tag) : ReadCurve(edges.back(), tag);
    }

    bool ReadCurve(Hatch::Edge& edge, const Tag& tag) {
        switch (tag.code) {
        case 10:
        case 20:
            in_.SetAxis(edge.start, tag, tag.code - 10);
            return true;
        case 11:
        case 21:
            in_.SetAxis(edge.end, tag, tag.code - 11);
            return true;
        case 40:
            edge.radius = in_.Real(tag);
            return true;
        case 50:
            edge.startAngle = in_.Real(tag);
            return true;
        case 51:
            edge.endAngle = in_.Real(tag);
            return true;
        case 73:
            edge.counterClockwise = tag.Flag();
            return true;
        default:
            return false;
        }
    }

    bool ReadSpline(Spline& spline, const Tag& tag) {
        constexpr int kFlat = 10; // there is no z
        switch (tag.code) {
        case 94:
            spline.degree = tag.Integer();
            return true;
        case 40:
            spline.knots.push_back(in_.Real(tag));
            return true;
        case 42:
            spline.weights.push_back(in_.Real(tag));
            return true;
        default:
            return in_.AddCoordinate(spline.controlPoints, tag, 10, kFlat) ||
                   in_.AddCoordinate(spline.fitPoints, tag, 11, kFlat);
        }
    }

    bool ReadPatternLine(const Tag& tag) {
        if (tag.code == 53) hatch_.lines.emplace_back().angle = in_.Real(tag);
        if (hatch_.lines.empty()) return false;
        Hatch::PatternLine& line = hatch_.lines.back();
        switch (tag.code) {
        case 43:
            line.base.x = in_.Real(tag);
            break;
        case 44:
            line.base.y = in_.Real(tag);
            break;
        case 45:
            line.offset.x = in_.Real(tag);
            break;
        case 46:
            line.offset.y = in_.Real(tag);
            break;
        case 49:
            line.dashes.push_back(in_.Real(tag));
            break;
        default:
            return tag.code == 53;
        }
        return true;
    }

    RecordReader& in_;
    Hatch& hatch_;
    Part part_ = Part::head;
};

} // namespace

void EntityReader::ReadHatch(Entity& entity) {
    Hatch& hatch = *entity.shape.emplace<Boxed<Hatch>>(std::make_unique<Hatch>());
    HatchParts parts(in_, hatch);
    while (in_.NextTag())
        if (!parts.Read(in_.tags.Current())) SetCommon(entity);
    parts.Finish();
}

} // namespace dxf
