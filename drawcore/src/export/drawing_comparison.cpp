// Compares a drawing with a document, graphic by graphic.
#include "drawcore/src/export/drawing_comparison.h"

#include <algorithm>

#include "drawcore/src/database/dxf_source.h"
#include "drawcore/src/database/encoding.h"
#include "drawcore/src/dxf/appearance.h"
#include "drawcore/src/export/graphic_comparison.h"
#include "drawcore/src/export/structure_export.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "drawcore/src/import/entity_import.h"

namespace drawcore {

namespace {

// Creates the graphics of the document one after the other and frees each after comparing it. Graphics that were not
// changed, and whose records are identical, need not be created.
class ReadBack {
public:
    ReadBack(const Drawing& saved, std::string_view text, const dxf::Document& document, OmittedObjects& omitted,
             const std::vector<uint32_t>& notRemoved, const dxf::Progress& progress)
        : saved_(saved), before_(dxf::TextOf(saved.source->bytes)), text_(text), document_(document), omitted_(omitted),
          notRemoved_(notRemoved), progress_(progress), tables_(ImportTables(document, read_)),
          import_(document, tables_, read_), comparison_(saved, read_) {}

    Sources Run() {
        if (!HasSameGraphics()) throw dxf::SaveError("the saved file would contain other graphics");
        return std::move(sources_);
    }

private:
    bool HasSameGraphics() {
        if (!SameMembers(saved_.Root(), document_.entities, false)) return false;
        const BlockTable* blocks = saved_.Blocks();
        for (size_t i = 0; blocks && i < document_.blocks.size(); ++i) {
            if (!tables_.blocks[i]) continue;
            const Block* block = blocks->At(read_.Blocks()->At(tables_.blocks[i])->name);
            if (!block) {
                if (omitted_.Has(OmittedObjects::NameOfBlock(read_.Blocks()->At(tables_.blocks[i])->name))) continue;
                return false;
            }
            if (!SameMembers(block->Content(), document_.blocks[i].entities, true)) return false;
            CompareTree(*block, document_.blocks[i]);
        }
        for (Id id = blocks ? blocks->First() : kNoId; id; id = blocks->Next(id))
            if (StructureExport::Has(*blocks->At(id)) && !read_.Blocks()->At(blocks->At(id)->name)) return false;
        return true;
    }

    void CompareTree(const Block& block, const dxf::Block& read) {
        if (StyleTreeOf(block) != StyleTreeOf(read))
            omitted_.Add(OmittedObjects::NameOfBlock(block.name), "the file format cannot store its style tree");
    }

    bool IsOmitted(const Graphic& graphic) const {
        return graphic.source == Graphic::kNoSource && omitted_.Has(graphic);
    }

    // Returns the next member that the file contains.
    size_t SkipOmitted(const Graphic& group, size_t index) const {
        while (index < group.MemberCount() && IsOmitted(*group.MemberAt(index)))
            ++index;
        return index;
    }

    bool IsNotRemoved(const dxf::Entity& entity) const {
        return std::find(notRemoved_.begin(), notRemoved_.end(), entity.offset) != notRemoved_.end();
    }

    bool SameMembers(const Graphic& saved, const std::vector<dxf::Entity>& entities, bool inBlock) {
        size_t index = SkipOmitted(saved, 0);
        for (size_t i = 0; i < entities.size(); ++i) {
            const dxf::Entity& entity = entities[i];
            Advance(entity.offset);
            if ((!inBlock && entity.inPaperSpace) || IsNotRemoved(entity)) continue;
            const size_t end = i + 1 < entities.size() ? entities[i + 1].offset : 0;
            if (index < saved.MemberCount() && IsUnchanged(*saved.MemberAt(index), entity.offset, end)) {
                SetSources(*saved.MemberAt(index), entity.offset);
                index = SkipOmitted(saved, index + 1);
                continue;
            }
            VertexGraphic imported;
            import_.AddTo(imported, entity, inBlock);
            const bool isTilted = entity.normal.x != 0 || entity.normal.y != 0;
            const bool calculated = isTilted || std::holds_alternative<dxf::Boxed<dxf::Hatch>>(entity.shape);
            for (size_t k = 0; k < imported.MemberCount(); ++k, index = SkipOmitted(saved, index + 1)) {
                if (index >= saved.MemberCount()) return false;
                Compare(*saved.MemberAt(index), *imported.MemberAt(k), calculated);
            }
        }
        return index == saved.MemberCount();
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

    // Compares the records of one entity, from begin to end, with those of the graphic in the previous text.
    bool IsUnchanged(const Graphic& graphic, size_t begin, size_t end) const {
        return end > begin && !IsTouched(graphic) &&
               before_.compare(graphic.source, end - begin, text_, begin, end - begin) == 0;
    }

    void SetSources(Graphic& graphic, uint32_t offset) {
        const uint32_t shift = offset - graphic.source;
        sources_.emplace_back(&graphic, offset);
        for (size_t i = 0; i < graphic.MemberCount(); ++i)
            SetSources(*graphic.MemberAt(i), graphic.MemberAt(i)->source + shift);
    }

    void Compare(Graphic& saved, const Graphic& imported, bool calculated) {
        sources_.emplace_back(&saved, imported.source);
        if (!omitted_.Has(saved)) {
            const char* difference = comparison_.FirstDifference(saved, imported, calculated);
            if (!difference && saved.MemberCount() != imported.MemberCount()) difference = "its attributes";
            if (difference)
                omitted_.Add(saved, std::string("the file format cannot store the change of ") + difference);
        }
        for (size_t i = 0; i < saved.MemberCount() && i < imported.MemberCount(); ++i)
            Compare(*saved.MemberAt(i), *imported.MemberAt(i), calculated);
    }

    const Drawing& saved_;
    const std::string_view before_, text_;
    const dxf::Document& document_;
    OmittedObjects& omitted_;
    const std::vector<uint32_t>& notRemoved_;
    const dxf::Progress& progress_;
    Sources sources_;
    Drawing read_; // only its tables
    const ImportedTables tables_;
    EntityImport import_;
    GraphicComparison comparison_;
    int done_ = 0;
};

} // namespace

Sources CompareWithFile(const Drawing& saved, std::string_view text, const dxf::Document& read, OmittedObjects& omitted,
                        const std::vector<uint32_t>& notRemoved, const dxf::Progress& progress) {
    return ReadBack(saved, text, read, omitted, notRemoved, progress).Run();
}

} // namespace drawcore
