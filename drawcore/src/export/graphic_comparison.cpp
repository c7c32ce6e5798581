// Compares properties by the schema, and shapes by kind.
#include "drawcore/src/export/graphic_comparison.h"

#include <algorithm>
#include <cmath>

#include "drawcore/src/dxf/appearance.h"
#include "drawcore/src/graphics/ellipse_graphic.h"
#include "drawcore/src/graphics/spline_graphic.h"
#include "drawcore/src/graphics/text_graphic.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "drawcore/src/import/brush_import.h"

namespace drawcore {

namespace {

// Maps identifiers of one table to those of another by name.
template <class Entry>
std::vector<Id> SameNames(const TableOf<Entry>* from, const TableOf<Entry>* to) {
    std::vector<Id> same(1, kNoId);
    if (!from || !to) return same;
    for (Id id = from->First(); id; id = from->Next(id)) {
        same.resize(size_t{id} + 1, kNoId);
        same[id] = to->IdOf(from->At(id)->name);
    }
    return same;
}

bool SamePlace(const Vec3& a, const Vec3& b, bool calculated) {
    if (!calculated) return a == b;
    const double magnitude = std::max({std::fabs(a.x), std::fabs(a.y), std::fabs(a.z)});
    return dxf::SameToRounding(a.x, b.x, magnitude) && dxf::SameToRounding(a.y, b.y, magnitude) &&
           dxf::SameToRounding(a.z, b.z, magnitude);
}

// Ignores whether the first vertex is drawn, which has no effect.
bool SameVertices(const VertexGraphic& a, const VertexGraphic& b, bool calculated) {
    const auto same = [&](const Vertex& one, const Vertex& other) {
        const Segment next = one.Next(), others = other.Next();
        const bool sameBulge =
            calculated ? dxf::SameToRounding(next.bulge, others.bulge, 1) : next.bulge == others.bulge;
        return SamePlace(one.Position(), other.Position(), calculated) && sameBulge &&
               next.startWidth == others.startWidth && next.endWidth == others.endWidth;
    };
    const auto isSameFlags = [](const Vertex& one, const Vertex& other) { return one.wFlags == other.wFlags; };
    return a.closed == b.closed && a.vertices.size() == b.vertices.size() &&
           std::equal(a.vertices.begin(), a.vertices.end(), b.vertices.begin(), same) &&
           (a.vertices.empty() ||
            std::equal(a.vertices.begin() + 1, a.vertices.end(), b.vertices.begin() + 1, isSameFlags));
}

bool SameSpline(const SplineCurve& a, const SplineCurve& b) {
    return a.degree == b.degree && a.knots == b.knots && a.weights == b.weights &&
           std::equal(a.points.begin(), a.points.end(), b.points.begin(), b.points.end());
}

// Curves that were read never change. Added ones are written as angles and may be reversed.
bool SameCurve(const Graphic& a, const Graphic& b) {
    const auto* spline = dynamic_cast<const SplineGraphic*>(&a);
    const auto* other = dynamic_cast<const SplineGraphic*>(&b);
    if (spline || other) return spline && other && SameSpline(spline->curve, other->curve);
    const EllipseArc& arc = static_cast<const EllipseGraphic&>(a).arc;
    const EllipseArc& read = static_cast<const EllipseGraphic&>(b).arc;
    const auto point = [](const EllipseArc& of, double share) { return of.At(of.start + of.sweep * share); };
    const bool backwards = !SamePlace(point(arc, 0.25), point(read, 0.25), true);
    for (const double share : {0.0, 0.25, 0.5, 0.75, 1.0})
        if (!SamePlace(point(arc, share), point(read, backwards ? 1 - share : share), true)) return false;
    return true;
}

// Compares the displayed text; texts of insertions have moved with them.
const char* DifferentText(const Graphic& a, const Graphic& b, bool calculated) {
    TextState one = static_cast<const TextGraphic&>(a).state;
    const TextState& other = static_cast<const TextGraphic&>(b).state;
    if (one.text != other.text) return "its text";
    Matrix motion;
    if (a.Parent() && a.Parent()->FindMotion(motion)) {
        calculated = true;
        one.position = motion.Apply(one.position);
        one.along = Normalized(motion.ApplyToVector(one.along));
        one.up = Normalized(motion.ApplyToVector(one.up));
        one.widthFactor = other.widthFactor; // derived from the width
    }
    const bool samePlace = SamePlace(one.position, other.position, calculated) && dxf::Near(one.along, other.along) &&
                           dxf::Near(one.up, other.up);
    const bool sameForm = one.widthFactor == other.widthFactor && dxf::Near(one.fitWidth, other.fitWidth) &&
                          one.wrapWidth == other.wrapWidth && one.lineSpacing == other.lineSpacing;
    return !samePlace ? "its position" : !sameForm ? "its width" : nullptr;
}

} // namespace

GraphicComparison::GraphicComparison(const Drawing& saved, const Drawing& read)
    : saved_(saved), read_(read), layers_(SameNames(read.Layers(), saved.Layers())),
      lines_(SameNames(read.LineStyles(), saved.LineStyles())), blocks_(SameNames(read.Blocks(), saved.Blocks())) {}

std::vector<size_t> GraphicComparison::DifferentProperties(const Graphic& saved, const Graphic& read) {
    std::vector<size_t> different;
    const bool isFollowing = saved.GetKind() == Kind::Text && saved.Parent();
    for (size_t i = 0; i < std::size(kPropertyList); ++i) {
        const PropertyInfo& info = kPropertyList[i];
        StoredProperty value = GetStored(saved, i);
        const StoredProperty other = GetStored(read, i);
        if (isFollowing && info.name == std::string_view(kPropTextSize)) {
            value = DisplayedHeight(saved);
            const double height = std::get<double>(other);
            if (std::get<double>(value) != std::get<double>(GetStored(saved, i)) &&
                dxf::Near(std::get<double>(value), height))
                continue;
        }
        if (!IsSame(info, value, other)) different.push_back(i);
    }
    return different;
}

const char* GraphicComparison::DifferentShape(const Graphic& saved, const Graphic& read, bool calculated) const {
    if (saved.GetKind() != read.GetKind() || saved.bType != read.bType) return "the kind";
    switch (saved.GetKind()) {
    case Kind::Text:
        return DifferentText(saved, read, calculated);
    case Kind::Insert:
        return DifferentInsert(static_cast<const InsertGraphic&>(saved), static_cast<const InsertGraphic&>(read));
    case Kind::Curve:
        return SameCurve(saved, read) ? nullptr : "its curve";
    default:
        return SameVertices(static_cast<const VertexGraphic&>(saved), static_cast<const VertexGraphic&>(read),
                            calculated)
                   ? nullptr
                   : "its vertices";
    }
}

const char* GraphicComparison::FirstDifference(const Graphic& saved, const Graphic& read, bool calculated) {
    if (const char* shape = DifferentShape(saved, read, calculated)) return shape;
    const std::vector<size_t> properties = DifferentProperties(saved, read);
    return properties.empty() ? nullptr : kPropertyList[properties[0]].name;
}

bool GraphicComparison::IsSame(const PropertyInfo& info, const StoredProperty& saved, const StoredProperty& read) {
    const auto* value = std::get_if<int64_t>(&saved);
    const auto* other = std::get_if<int64_t>(&read);
    if (!value || !other) return saved == read;
    switch (info.meaning) {
    case PropertyMeaning::Layer:
        return *value == InSaved(layers_, *other);
    case PropertyMeaning::LineStyle:
        return *value == InSaved(lines_, *other);
    case PropertyMeaning::BrushStyle:
        return IsSameStyle(*value, *other);
    case PropertyMeaning::Block: { // a block that no longer exists counts as none
        const bool has = saved_.Blocks() && saved_.Blocks()->At(static_cast<Id>(*value));
        return (has ? *value : kNoId) == InSaved(blocks_, *other);
    }
    default:
        return *value == *other;
    }
}

// Patterns computed by other programs are equal if the difference is not visible.
bool GraphicComparison::IsSameStyle(int64_t a, int64_t b) {
    if (a == kBrushStyleNone || b == kBrushStyleNone) return a == b;
    const auto [found, isNew] = styles_.emplace(std::make_pair(a, b), false);
    if (!isNew) return found->second;
    const BrushStyle* one = saved_.BrushStyles() ? saved_.BrushStyles()->At(static_cast<Id>(a)) : nullptr;
    const BrushStyle* other = read_.BrushStyles()->At(static_cast<Id>(b));
    if (!one || !other) return false;
    const bool byName = one->bitmap || other->bitmap;
    return found->second = byName ? one->name == other->name : dxf::SameLines(FileLines(*one), FileLines(*other));
}

// Markers are the same in both.
int64_t GraphicComparison::InSaved(const std::vector<Id>& same, int64_t id) const {
    return id >= 0 && static_cast<size_t>(id) < same.size() ? same[static_cast<size_t>(id)] : id;
}

const char* GraphicComparison::DifferentInsert(const InsertGraphic& a, const InsertGraphic& b) const {
    if (a.block != InSaved(blocks_, b.block)) return "its block";
    if (a.Ends() != b.Ends()) return "its placement";
    const InsertArray one = a.MovedArray(), other = b.MovedArray();
    const bool same = one.columns == other.columns && one.rows == other.rows &&
                      dxf::Near(one.columnStep, other.columnStep) && dxf::Near(one.rowStep, other.rowStep);
    return same ? nullptr : "its array";
}

double DisplayedHeight(const Graphic& text) {
    const TextState& state = static_cast<const TextGraphic&>(text).state;
    Matrix motion;
    if (!text.Parent() || !text.Parent()->FindMotion(motion)) return state.height;
    const Vec3 up = motion.ApplyToVector(state.up);
    return up == state.up ? state.height : state.height * Length(up);
}

} // namespace drawcore
