// Converts each kind of graphic.
#include "drawcore/src/export/entity_export.h"

#include <algorithm>
#include <cmath>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/database/encoding.h"
#include "drawcore/src/dxf/appearance.h"
#include "drawcore/src/graphics/ellipse_graphic.h"
#include "drawcore/src/graphics/insert_graphic.h"
#include "drawcore/src/graphics/spline_graphic.h"
#include "drawcore/src/graphics/text_graphic.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "drawcore/src/save/record_patch.h"

namespace drawcore {

namespace {

using dxf::Near;

bool IsLevel(const std::vector<Vertex>& vertices) {
    return std::all_of(vertices.begin(), vertices.end(),
                       [&](const Vertex& vertex) { return vertex.z == vertices[0].z; });
}

dxf::Polyline PolylineOf(const std::vector<Vertex>& vertices, bool closed) {
    dxf::Polyline polyline;
    polyline.closed = closed;
    for (const Vertex& vertex : vertices) {
        const Segment next = vertex.Next();
        polyline.vertices.push_back({vertex.Position(), next.bulge, next.startWidth, next.endWidth});
    }
    return polyline;
}

// Filled outlines without lines: each begins with an undrawn segment and ends at the same point.
dxf::Shape HatchOf(const VertexGraphic& graphic) {
    auto hatch = std::make_unique<dxf::Hatch>();
    hatch->solid = true;
    hatch->elevation = graphic.vertices[0].z;
    std::vector<Vertex> outline;
    const auto close = [&] {
        if (outline.size() < 2) throw dxf::SaveError("an added outline has no area");
        if (outline.front().Position() == outline.back().Position()) outline.pop_back();
        constexpr int kPolyline = 2, kExternal = 1;
        hatch->loops.push_back({kPolyline | kExternal, PolylineOf(outline, true), {}});
        outline.clear();
    };
    for (const Vertex& vertex : graphic.vertices) {
        if (!(vertex.wFlags & kVertexDrawn) && !outline.empty()) close();
        outline.push_back(vertex);
    }
    close();
    return hatch;
}

dxf::Shape ShapeOf(const VertexGraphic& graphic) {
    const std::vector<Vertex>& vertices = graphic.vertices;
    if (vertices.empty() || graphic.MemberCount() > 0)
        throw dxf::SaveError("the file format cannot store a group of graphics");
    const bool isOneStroke = std::all_of(vertices.begin() + 1, vertices.end(),
                                         [](const Vertex& vertex) { return vertex.wFlags & kVertexDrawn; });
    const bool isLevel = IsLevel(vertices);
    if (!isOneStroke && graphic.GetPen().style == kLineStyleNone && isLevel) return HatchOf(graphic);
    if (!isOneStroke || vertices.size() < 2)
        throw dxf::SaveError("the file format cannot store a graphic of several strokes");
    const bool isStraight =
        std::all_of(vertices.begin(), vertices.end(), [](const Vertex& vertex) { return vertex.Next().IsPlain(); });
    if (!graphic.closed && isStraight && vertices.size() == 2) {
        if (vertices[0].Position() == vertices[1].Position()) return dxf::PointMark{vertices[0].Position()};
        return dxf::Line{vertices[0].Position(), vertices[1].Position()};
    }
    if (!isLevel && !isStraight)
        throw dxf::SaveError("the file format cannot store arcs and widths of a polyline in space");
    dxf::Polyline polyline = PolylineOf(vertices, graphic.closed);
    if (!isLevel) polyline.kind = dxf::Polyline::Kind::spatial;
    return polyline;
}

dxf::Shape ShapeOf(EllipseArc arc, Vec3& normal) {
    if (arc.sweep < 0) { // the same arc from its other end
        arc.start += arc.sweep;
        arc.sweep = -arc.sweep;
    }
    const double length = Length(arc.major), across = Length(arc.minor);
    const bool isLevel = arc.major.z == 0 && arc.minor.z == 0;
    const double orientation = arc.major.x * arc.minor.y - arc.major.y * arc.minor.x;
    const bool isCircle = Near(length, across) && Near(Dot(arc.major, arc.minor) + length * across, length * across);
    if (isCircle && isLevel && orientation > 0) {
        if (arc.IsFullTurn()) return dxf::Circle{arc.center, length};
        const double start = std::atan2(arc.major.y, arc.major.x) + arc.start;
        return dxf::Arc{arc.center, length, Degrees(start), Degrees(start + arc.sweep)};
    }
    if (across > length) { // the longer axis is the major axis
        const Vec3 major = arc.major;
        arc.major = arc.minor;
        arc.minor = major * -1;
        arc.start -= kPi / 2;
    }
    normal = Normalized(Cross(arc.major, arc.minor));
    return dxf::Ellipse{arc.center, arc.major, std::min(length, across) / std::max(length, across), arc.start,
                        arc.start + arc.sweep};
}

dxf::Shape ShapeOf(const SplineGraphic& graphic) {
    auto spline = std::make_unique<dxf::Spline>();
    spline->degree = graphic.curve.degree;
    spline->closed = graphic.closed;
    spline->knots = graphic.curve.knots;
    spline->weights = graphic.curve.weights;
    spline->controlPoints = graphic.curve.points;
    return spline;
}

void ReplaceAll(std::string& text, std::string_view what, std::string_view with) {
    for (size_t at = text.find(what); at != text.npos; at = text.find(what, at + with.size()))
        text.replace(at, what.size(), with);
}

dxf::Shape LineOf(const TextState& state) {
    auto text = std::make_unique<dxf::Text>();
    const bool mirrored = Cross(state.along, state.up).z < 0;
    const double angle = std::atan2(state.along.y, state.along.x);
    const Vec3 up = mirrored ? state.up * -1 : state.up;
    text->text = Utf8FromUtf16(state.text);
    ReplaceAll(text->text, "%%", "%%037%%037"); // otherwise it would be a control code
    text->insertion = text->alignment = state.position;
    text->height = state.height;
    text->rotation = Degrees(angle);
    text->widthFactor = state.widthFactor;
    text->upsideDown = mirrored;
    const double slant = angle + kPi / 2 - std::atan2(up.y, up.x);
    text->oblique = Degrees(std::remainder(slant, 2 * kPi));
    if (state.fitWidth > 0) {
        text->horizontal = dxf::Text::Horizontal::fit;
        text->alignment = state.position + state.along * state.fitWidth;
    } else if (state.anchor == TextAnchor::Bottom) {
        text->vertical = dxf::Text::Vertical::bottom;
    } else if (state.anchor == TextAnchor::Middle) {
        text->vertical = dxf::Text::Vertical::middle;
    } else if (state.anchor == TextAnchor::Top) {
        text->vertical = dxf::Text::Vertical::top;
    }
    return text;
}

dxf::Shape ParagraphsOf(const TextState& state) {
    auto text = std::make_unique<dxf::MText>();
    text->text = Utf8FromUtf16(state.text);
    for (const char* sign : {"\\", "{", "}"})
        ReplaceAll(text->text, sign, std::string("\\") + sign);
    ReplaceAll(text->text, "\n", "\\P");
    if (state.widthFactor != 1) text->text = "\\W" + dxf::RealText(state.widthFactor) + ";" + text->text;
    text->insertion = state.position;
    text->height = state.height;
    text->width = state.wrapWidth;
    text->direction = state.along;
    text->lineSpacing = state.lineSpacing;
    const int row = state.anchor == TextAnchor::Middle ? 1 : state.anchor == TextAnchor::Top ? 0 : 2;
    text->attachment = row * 3 + 1;
    return text;
}

dxf::Shape ShapeOf(const TextState& state) {
    if (state.along.z != 0 || state.up.z != 0)
        throw dxf::SaveError("the file format cannot store a text that is tilted into space");
    const bool isLine = state.wrapWidth == 0 && state.text.find(L'\n') == state.text.npos;
    return isLine ? LineOf(state) : ParagraphsOf(state);
}

dxf::Shape ShapeOf(const InsertGraphic& insert) {
    if (insert.MemberCount() > 0 || !insert.Array().IsOne())
        throw dxf::SaveError("an added insertion cannot be saved if it has attributes or is arrayed");
    return std::make_unique<dxf::Insert>();
}

} // namespace

dxf::Entity EntityOf(const Graphic& graphic) {
    dxf::Entity entity;
    if (const auto* vertices = dynamic_cast<const VertexGraphic*>(&graphic))
        entity.shape = ShapeOf(*vertices);
    else if (const auto* ellipse = dynamic_cast<const EllipseGraphic*>(&graphic))
        entity.shape = ShapeOf(ellipse->arc, entity.normal);
    else if (const auto* spline = dynamic_cast<const SplineGraphic*>(&graphic))
        entity.shape = ShapeOf(*spline);
    else if (const auto* text = dynamic_cast<const TextGraphic*>(&graphic))
        entity.shape = ShapeOf(text->state);
    else if (const auto* insert = dynamic_cast<const InsertGraphic*>(&graphic))
        entity.shape = ShapeOf(*insert);
    return entity;
}

} // namespace drawcore
