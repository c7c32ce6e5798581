// Compares a drawing with a document, graphic by graphic.
#include "drawcore/src/export/drawing_comparison.h"

#include <algorithm>

#include "drawcore/src/database/dxf_source.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/export/look_export.h"
#include "drawcore/src/export/structure_export.h"
#include "drawcore/src/graphics/ellipse_graphic.h"
#include "drawcore/src/graphics/insert_graphic.h"
#include "drawcore/src/graphics/text_graphic.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "drawcore/src/import/brush_import.h"
#include "drawcore/src/import/entity_import.h"

namespace drawcore {

namespace {

using dxf::Near;

bool Near(const Vec3& a, const Vec3& b) {
    return Near(a.x, b.x) && Near(a.y, b.y) && Near(a.z, b.z);
}

// The entries of one table for identifiers of another: names that are the same stand for the same.
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

class Comparison {
public:
    Comparison(const Drawing& saved, const Drawing& read)
        : saved_(saved), read_(read), layers_(SameNames(read.Layers(), saved.Layers())),
          lines_(SameNames(read.LineStyles(), saved.LineStyles())),
          blocks_(SameNames(read.Blocks(), saved.Blocks())) {}

    bool Same(const Graphic& a, const Graphic& b) {
        if (a.GetKind() != b.GetKind() || a.bType != b.bType) return Differ("the kind");
        if (a.layer != Of(layers_, b.layer)) return Differ(kPropLayer);
        if ((a.info ? *a.info : "") != (b.info ? *b.info : "")) return Differ(kPropInfo);
        if (a.styleTree != Of(blocks_, b.styleTree) && IsBlock(a.styleTree)) return Differ(kPropStyleTree);
        return SamePen(a.GetPen(), b.GetPen()) && SameBrush(a.GetBrush(), b.GetBrush()) && SameShape(a, b);
    }

    std::string difference;

private:
    bool Differ(const char* what) {
        difference = what;
        return false;
    }

    // Markers stand for themselves.
    static Id Of(const std::vector<Id>& same, Id id) { return id < same.size() ? same[id] : id; }

    bool IsBlock(Id block) const { return saved_.Blocks() && saved_.Blocks()->At(block); }

    bool SamePen(const Pen& a, const Pen& b) {
        if (a.color != b.color) return Differ(kPropPenColor);
        if (a.style != Of(lines_, b.style)) return Differ(kPropPenStyle);
        if (!Near(a.scale, b.scale)) return Differ(kPropPenScale);
        if (!Near(a.width, b.width) || a.scaleSystem != b.scaleSystem) return Differ(kPropPenWidth);
        return a.alignment == b.alignment || Differ(kPropPenAlignment);
    }

    bool SameBrush(const Brush& a, const Brush& b) {
        if (!SameStyle(a.style, b.style)) return Differ(kPropBrushStyle);
        if (a.color != b.color) return Differ(kPropBrushColor);
        if (!Near(a.scale, b.scale)) return Differ(kPropBrushScale);
        if (!Near(a.angle, b.angle)) return Differ(kPropBrushAngle);
        if (a.cross != b.cross) return Differ(kPropHatchCross);
        return a.drawMode == b.drawMode || Differ(kPropBrushDrawMode);
    }

    bool SameStyle(Id a, Id b) {
        if (a == kBrushStyleNone || b == kBrushStyleNone) return a == b;
        const auto [found, isNew] = styles_.emplace(std::make_pair(a, b), false);
        if (!isNew) return found->second;
        const BrushStyle* one = saved_.BrushStyles() ? saved_.BrushStyles()->At(a) : nullptr;
        const BrushStyle* other = read_.BrushStyles()->At(b);
        if (!one || !other) return false;
        const bool byName = one->bitmap || other->bitmap;
        return found->second =
                   byName ? one->name == other->name : dxf::SameLines(FileLines(*one), FileLines(*other));
    }

    bool SameShape(const Graphic& a, const Graphic& b) {
        if (a.GetKind() == Kind::Text) return SameText(a, b);
        if (a.GetKind() == Kind::Insert)
            return SameInsert(static_cast<const InsertGraphic&>(a), static_cast<const InsertGraphic&>(b));
        if (a.GetKind() == Kind::Curve) return SameCurve(a, b);
        return SameVertices(static_cast<const VertexGraphic&>(a), static_cast<const VertexGraphic&>(b)) ||
               Differ("its vertices");
    }

    // Whether the first vertex is drawn says nothing.
    static bool SameVertices(const VertexGraphic& a, const VertexGraphic& b) {
        const auto same = [](const Vertex& one, const Vertex& other) {
            const Segment next = one.Next(), others = other.Next();
            return Near(one.Position(), other.Position()) && Near(next.bulge, others.bulge) &&
                   Near(next.startWidth, others.startWidth) && Near(next.endWidth, others.endWidth);
        };
        const auto alike = [](const Vertex& one, const Vertex& other) { return one.wFlags == other.wFlags; };
        return a.closed == b.closed && a.vertices.size() == b.vertices.size() &&
               std::equal(a.vertices.begin(), a.vertices.end(), b.vertices.begin(), same) &&
               (a.vertices.empty() ||
                std::equal(a.vertices.begin() + 1, a.vertices.end(), b.vertices.begin() + 1, alike));
    }

    // A curve that was read is never changed; one that was added may run in the other direction.
    bool SameCurve(const Graphic& a, const Graphic& b) {
        const auto* arc = dynamic_cast<const EllipseGraphic*>(&a);
        const auto* other = dynamic_cast<const EllipseGraphic*>(&b);
        if (!arc || !other) return (!arc && !other) || Differ("its curve");
        const auto point = [](const EllipseArc& of, double share) {
            return of.At(of.start + of.sweep * share);
        };
        const bool backwards = !Near(point(arc->arc, 0.25), point(other->arc, 0.25));
        for (const double share : {0.0, 0.25, 0.5, 0.75, 1.0})
            if (!Near(point(arc->arc, share), point(other->arc, backwards ? 1 - share : share)))
                return Differ("its curve");
        return true;
    }

    bool SameText(const Graphic& a, const Graphic& b) {
        const TextState& one = static_cast<const TextGraphic&>(a).state;
        const TextState& other = static_cast<const TextGraphic&>(b).state;
        if (one.text != other.text) return Differ("its text");
        if (one.font != other.font) return Differ(kPropTextFont);
        if (!Near(SeenHeight(a), SeenHeight(b))) return Differ(kPropTextSize);
        if (one.style != other.style) return Differ(kPropTextStyle);
        if (one.format != other.format) return Differ(kPropTextFormat);
        Matrix motion;
        if (a.Parent() && a.Parent()->FindMotion(motion))
            return (Near(motion.Apply(one.position), other.position) &&
                    Near(Normalized(motion.Turn(one.along)), other.along) &&
                    Near(Normalized(motion.Turn(one.up)), other.up)) ||
                   Differ("the place of an attribute");
        return (Near(one.position, other.position) && Near(one.along, other.along) &&
                Near(one.up, other.up) && Near(one.fitWidth, other.fitWidth)) ||
               Differ("its place");
    }

    bool SameInsert(const InsertGraphic& a, const InsertGraphic& b) {
        if (a.block != Of(blocks_, b.block)) return Differ("its block");
        for (int i = 0; i < 4; ++i)
            if (!Near(a.vertices[i].Position(), b.vertices[i].Position())) return Differ("its placement");
        const InsertArray one = a.MovedArray(), other = b.MovedArray();
        const bool same = one.columns == other.columns && one.rows == other.rows &&
                          Near(one.columnStep, other.columnStep) && Near(one.rowStep, other.rowStep);
        return same || Differ("its array");
    }

    const Drawing &saved_, &read_;
    const std::vector<Id> layers_, lines_, blocks_; // of the saved drawing, by those of the one that was read
    std::map<std::pair<Id, Id>, bool> styles_;
};

// Makes the graphics of the document one after the other, and drops each once it has been compared. One that nobody has
// touched, and whose record is the same to the byte, is what it was: that is not made again.
class ReadBack {
public:
    ReadBack(const Drawing& saved, std::string_view text, const dxf::Document& document, Sources& sources,
             const dxf::Progress& progress)
        : saved_(saved), before_(dxf::TextOf(saved.source->bytes)), text_(text), document_(document),
          sources_(sources), progress_(progress), tables_(ImportTables(document, read_)),
          import_(document, tables_, read_), comparison_(saved, read_) {}

    std::string FirstDifference() {
        if (IsSame()) return {};
        if (comparison_.difference.empty()) return "the file would hold other graphics";
        return "the file can't hold a change of " + comparison_.difference;
    }

private:
    bool IsSame() {
        if (!SameMembers(saved_.Root(), document_.entities, false)) return false;
        const BlockTable* blocks = saved_.Blocks();
        for (size_t i = 0; blocks && i < document_.blocks.size(); ++i) {
            if (!tables_.blocks[i]) continue;
            const Block* block = blocks->At(read_.Blocks()->At(tables_.blocks[i])->name);
            if (!block || !SameMembers(block->Content(), document_.blocks[i].entities, true)) return false;
        }
        for (Id id = blocks ? blocks->First() : kNoId; id; id = blocks->Next(id))
            if (StructureExport::Has(*blocks->At(id)) && !read_.Blocks()->At(blocks->At(id)->name))
                return false;
        return true;
    }

    bool SameMembers(const Graphic& saved, const std::vector<dxf::Entity>& entities, bool inBlock) {
        size_t place = 0;
        for (size_t i = 0; i < entities.size(); ++i) {
            const dxf::Entity& entity = entities[i];
            Advance(entity.offset);
            if (!inBlock && entity.inPaperSpace) continue;
            const size_t end = i + 1 < entities.size() ? entities[i + 1].offset : 0;
            if (place < saved.MemberCount() && IsAsBefore(*saved.MemberAt(place), entity.offset, end)) {
                NoteSources(*saved.MemberAt(place++), entity.offset);
                continue;
            }
            VertexGraphic made;
            import_.AddTo(made, entity, inBlock);
            for (size_t k = 0; k < made.MemberCount(); ++k, ++place)
                if (place >= saved.MemberCount() ||
                    !SameWithMembers(*saved.MemberAt(place), *made.MemberAt(k)))
                    return false;
        }
        return place == saved.MemberCount();
    }

    void Advance(size_t offset) {
        const int permille = dxf::Permille(offset, text_.size());
        if (permille > done_) progress_(done_ = permille);
    }

    static bool IsTouched(const Graphic& graphic) {
        bool touched = graphic.touched || graphic.source == Graphic::kNoSource;
        for (size_t i = 0; i < graphic.MemberCount(); ++i)
            touched = touched || IsTouched(*graphic.MemberAt(i));
        return touched;
    }

    // The records from begin to end, which are one entity's, against those of the graphic in the text before.
    bool IsAsBefore(const Graphic& graphic, size_t begin, size_t end) const {
        return end > begin && !IsTouched(graphic) &&
               before_.compare(graphic.source, end - begin, text_, begin, end - begin) == 0;
    }

    void NoteSources(Graphic& graphic, uint32_t place) {
        const uint32_t shift = place - graphic.source;
        sources_.emplace_back(&graphic, place);
        for (size_t i = 0; i < graphic.MemberCount(); ++i)
            NoteSources(*graphic.MemberAt(i), graphic.MemberAt(i)->source + shift);
    }

    bool SameWithMembers(Graphic& saved, const Graphic& made) {
        if (!comparison_.Same(saved, made) || saved.MemberCount() != made.MemberCount()) return false;
        sources_.emplace_back(&saved, made.source);
        for (size_t i = 0; i < saved.MemberCount(); ++i)
            if (!SameWithMembers(*saved.MemberAt(i), *made.MemberAt(i))) return false;
        return true;
    }

    const Drawing& saved_;
    const std::string_view before_, text_;
    const dxf::Document& document_;
    Sources& sources_;
    const dxf::Progress& progress_;
    Drawing read_; // its tables alone
    const ImportedTables tables_;
    EntityImport import_;
    Comparison comparison_;
    int done_ = 0;
};

} // namespace

std::string FirstDifference(const Drawing& saved, std::string_view text, const dxf::Document& read,
                            Sources& sources, const dxf::Progress& progress) {
    return ReadBack(saved, text, read, sources, progress).FirstDifference();
}

} // namespace drawcore
