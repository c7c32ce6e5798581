// Converts each kind of entity.
#include "drawcore/src/import/entity_import.h"

#include <algorithm>
#include <cmath>

#include "drawcore/src/database/encoding.h"
#include "drawcore/src/dxf/path.h"
#include "drawcore/src/graphics/ellipse_graphic.h"
#include "drawcore/src/graphics/insert_graphic.h"
#include "drawcore/src/graphics/properties.h"
#include "drawcore/src/graphics/spline_graphic.h"
#include "drawcore/src/import/brush_import.h"
#include "drawcore/src/import/text_import.h"
#include "drawcore/src/import/vertex_builder.h"

namespace drawcore {

namespace {

// Returns whether the object coordinate system is parallel to the world's, possibly mirrored: circles remain circles.
bool IsUpright(const Vec3& normal) {
    return normal.x == 0 && normal.y == 0 && normal.z != 0;
}

std::unique_ptr<VertexGraphic> Traced(const dxf::Entity& entity) {
    auto graphic = std::make_unique<VertexGraphic>();
    VertexBuilder builder(*graphic);
    dxf::Trace(entity, {}, builder);
    graphic->vertices.shrink_to_fit();
    return graphic;
}

// A constant width becomes the pen's; otherwise each segment has its own width.
void SetWidths(const dxf::Polyline& polyline, VertexGraphic& graphic) {
    if (dxf::HasOneWidth(polyline)) return;
    for (size_t i = 0; i < polyline.vertices.size(); ++i) {
        const dxf::Polyline::Vertex& from = polyline.vertices[i];
        graphic.vertices[i].SetNext(
            {graphic.vertices[i].Next().bulge, std::max(from.startWidth, 0.0), std::max(from.endWidth, 0.0)});
    }
}

// Returns the polyline with line segments in place of its arcs; a width that changes along an arc changes with each
// segment.
dxf::Polyline Straightened(const dxf::Polyline& polyline) {
    dxf::Polyline straight = polyline;
    straight.vertices.clear();
    const size_t count = polyline.vertices.size();
    for (size_t i = 0; i < count; ++i) {
        const dxf::Polyline::Vertex& from = polyline.vertices[i];
        const bool last = i + 1 == count;
        const auto arc = last && !polyline.closed
                             ? std::nullopt
                             : ArcOfBulge(from.at, polyline.vertices[last ? 0 : i + 1].at, from.bulge);
        const int pieces = arc ? StraightPieces(arc->sweep) : 1;
        for (int piece = 0; piece < pieces; ++piece) {
            const auto width = [&](int end) {
                return from.startWidth + (from.endWidth - from.startWidth) * end / pieces;
            };
            dxf::Polyline::Vertex& vertex = straight.vertices.emplace_back(from);
            vertex.bulge = 0;
            vertex.startWidth = width(piece);
            vertex.endWidth = width(piece + 1);
            if (piece > 0) vertex.at = arc->At(arc->start + arc->sweep * piece / pieces);
        }
    }
    return straight;
}

std::unique_ptr<Graphic> MakeFlat(const dxf::Entity& entity, const dxf::Polyline& polyline) {
    if (!IsUpright(entity.normal) &&
        std::any_of(polyline.vertices.begin(), polyline.vertices.end(), [](const auto& v) { return v.bulge != 0; }))
        return MakeFlat(entity,
                        Straightened(polyline)); // in a tilted plane, a circle is an ellipse when seen from above
    auto graphic = std::make_unique<VertexGraphic>();
    graphic->vertices.reserve(polyline.vertices.size());
    const Matrix system = dxf::ObjectSystem(entity.normal);
    for (const dxf::Polyline::Vertex& from : polyline.vertices) {
        Vertex& vertex = graphic->vertices.emplace_back(system.Apply(from.at));
        vertex.SetNext({from.bulge * (entity.normal.z < 0 ? -1 : 1), 0, 0});
    }
    graphic->closed = polyline.closed;
    SetWidths(polyline, *graphic);
    return graphic;
}

// Returns whether the loop is filled according to the handling of islands.
bool IsFilled(const dxf::Hatch& hatch, const dxf::Hatch::Loop& loop) {
    enum { kExternal = 1, kOutermost = 16 };
    enum { kOuter = 1, kIgnore = 2 };
    const int flags = hatch.style == kIgnore ? kExternal : kExternal | kOutermost;
    const auto hasFlag = [&](const dxf::Hatch::Loop& some) { return (some.flags & flags) != 0; };
    const bool flagged = std::any_of(hatch.loops.begin(), hatch.loops.end(), hasFlag);
    return !flagged || hasFlag(loop) || (hatch.style != kOuter && hatch.style != kIgnore);
}

} // namespace

// Creates the graphic of an entity; null if it is not visible.
class ShapeImport {
public:
    ShapeImport(EntityImport& importer, const dxf::Entity& entity) : importer_(importer), entity_(entity) {}

    std::unique_ptr<Graphic> operator()(const dxf::Line&) { return Traced(entity_); }
    std::unique_ptr<Graphic> operator()(const dxf::Leader&) { return Traced(entity_); }
    std::unique_ptr<Graphic> operator()(const dxf::Circle&) { return Curve(); }
    std::unique_ptr<Graphic> operator()(const dxf::Arc&) { return Curve(); }
    std::unique_ptr<Graphic> operator()(const dxf::Ellipse&) { return Curve(); }
    std::unique_ptr<Graphic> operator()(const dxf::Boxed<dxf::Viewport>&) { return nullptr; }

    std::unique_ptr<Graphic> operator()(const dxf::PointMark& mark) {
        auto graphic = std::make_unique<VertexGraphic>();
        graphic->AddVertex(mark.at);
        graphic->AddVertex(mark.at); // a segment of length 0 is a dot
        return graphic;
    }

    std::unique_ptr<Graphic> operator()(const dxf::Polyline& polyline) {
        if (polyline.vertices.empty()) return nullptr;
        return polyline.kind == dxf::Polyline::Kind::flat ? MakeFlat(entity_, polyline) : Traced(entity_);
    }

    std::unique_ptr<Graphic> operator()(const dxf::Boxed<dxf::Spline>& spline) {
        return std::make_unique<SplineGraphic>(dxf::CurveOf(*spline));
    }

    std::unique_ptr<Graphic> operator()(const dxf::Boxed<dxf::Face>& face) {
        auto graphic = std::make_unique<VertexGraphic>();
        const Matrix system = face->filled ? dxf::ObjectSystem(entity_.normal) : Matrix();
        graphic->AddVertex(system.Apply(face->corners[0]));
        for (size_t edge = 0; edge < 4; ++edge) {
            const bool drawn = !(face->hiddenEdges >> edge & 1);
            graphic->AddVertex(system.Apply(face->corners[(edge + 1) % 4]), drawn);
        }
        return graphic;
    }

    std::unique_ptr<Graphic> operator()(const dxf::Boxed<dxf::Hatch>& hatch) {
        auto graphic = std::make_unique<VertexGraphic>();
        VertexBuilder builder(*graphic);
        const Matrix system = Matrix::Translation({0, 0, hatch->elevation}) * dxf::ObjectSystem(entity_.normal);
        for (const dxf::Hatch::Loop& loop : hatch->loops)
            if (IsFilled(*hatch, loop)) dxf::Trace(loop, system, builder);
        return graphic->vertices.empty() ? nullptr : std::move(graphic);
    }

    std::unique_ptr<Graphic> operator()(const dxf::Boxed<dxf::Text>& text) { return ImportText(entity_, *text); }

    std::unique_ptr<Graphic> operator()(const dxf::Boxed<dxf::MText>& text) {
        return ImportText(entity_, *text, importer_.document_);
    }

    std::unique_ptr<Graphic> operator()(const dxf::Boxed<dxf::Insert>& insert) {
        return importer_.MakeInsert(entity_, *insert);
    }

    std::unique_ptr<Graphic> operator()(const dxf::Boxed<dxf::Dimension>& dimension) {
        if (dimension->block == dxf::BlockIndex::none) return nullptr;
        const Id block = importer_.tables_.blocks[static_cast<size_t>(dimension->block)];
        if (!block) return nullptr;
        return std::make_unique<InsertGraphic>(block, dxf::AxisEndsOf(entity_));
    }

private:
    std::unique_ptr<Graphic> Curve() { return std::make_unique<EllipseGraphic>(*dxf::ArcOf(entity_)); }

    EntityImport& importer_;
    const dxf::Entity& entity_;
};

std::unique_ptr<Graphic> EntityImport::MakeInsert(const dxf::Entity& entity, const dxf::Insert& insert) {
    const Id block = insert.block == dxf::BlockIndex::none ? kNoId : tables_.blocks[static_cast<size_t>(insert.block)];
    if (!block) return nullptr;
    const Matrix rotated = Matrix::RotationZ(Radians(insert.rotation)) * dxf::ObjectSystem(entity.normal);
    auto graphic = std::make_unique<InsertGraphic>(block, dxf::AxisEndsOf(entity));
    graphic->SetArray({static_cast<int>(insert.columns), static_cast<int>(insert.rows),
                       rotated.ApplyToVector({insert.columnSpacing, 0, 0}),
                       rotated.ApplyToVector({0, insert.rowSpacing, 0})});
    return graphic;
}

void EntityImport::SetAppearance(Graphic& graphic, const dxf::Appearance& appearance) const {
    Pen& pen = graphic.GetPen();
    pen.color = appearance.color;
    pen.style = LineStyleOf(appearance.lineType);
    pen.scale = appearance.lineScale;
    pen.width = appearance.width;
    pen.scaleSystem = appearance.worldWidth ? kScaleWorld : kScalePaper;
    pen.alignment = appearance.dashesFitted;
    graphic.layer = tables_.layers[static_cast<size_t>(appearance.layer)];
    graphic.SetBrush(ImportBrush(appearance.brush, *drawing_.BrushStyles()));
    for (const dxf::ExtendedValue& value : appearance.extended)
        SetExtended(graphic, value);
    if (graphic.GetKind() != Kind::Text) return;
    TextState& text = static_cast<TextGraphic&>(graphic).state;
    text.font = CodePageFromUtf8(appearance.text.font);
    text.height = appearance.text.height;
    text.style = appearance.text.style;
    text.format = appearance.text.format;
}

void EntityImport::SetExtended(Graphic& graphic, const dxf::ExtendedValue& value) const {
    const auto* info = FindPropertyInfo(value.name);
    StoredProperty stored;
    if (info->IsText())
        stored = CodePageFromUtf8(value.text);
    else if (info->meaning == PropertyMeaning::Block)
        stored = int64_t{drawing_.Blocks()->IdOf(CodePageFromUtf8(value.text))};
    else if (info->IsReal())
        stored = value.numbers[0];
    else if (std::fabs(value.numbers[0]) <= UINT32_MAX)
        stored = static_cast<int64_t>(value.numbers[0]);
    SetStored(graphic, static_cast<size_t>(info - kPropertyList), stored);
}

uint16_t EntityImport::LineStyleOf(dxf::LineTypeIndex type) const {
    switch (type) {
    case dxf::LineTypeIndex::none:
        return kLineStyleNone;
    case dxf::LineTypeIndex::byLayer:
        return kLineStyleByLayer;
    case dxf::LineTypeIndex::byBlock:
        return kLineStyleByBlock;
    default:
        return tables_.lineStyles[static_cast<size_t>(type)];
    }
}

void EntityImport::AddAttributes(Graphic& group, const dxf::Insert& insert) {
    for (const dxf::Entity& attribute : insert.attributes)
        AddTo(group, attribute, false);
}

void EntityImport::AddTo(Graphic& group, const dxf::Entity& entity, bool inBlock) {
    const auto* text = std::get_if<dxf::Boxed<dxf::Text>>(&entity.shape);
    if (entity.invisible || (inBlock && text && (*text)->role == dxf::Text::Role::definition)) return;
    std::unique_ptr<Graphic> graphic = std::visit(ShapeImport(*this, entity), entity.shape);
    Graphic* added = nullptr;
    if (graphic) {
        SetAppearance(*graphic, dxf::AppearanceOf(document_, entity));
        graphic->source = entity.offset;
        added = group.Add(std::move(graphic));
    }
    // Attributes of an invisible insertion become separate graphics.
    if (const auto* insert = std::get_if<dxf::Boxed<dxf::Insert>>(&entity.shape))
        AddAttributes(added ? *added : group, **insert);
}

} // namespace drawcore
