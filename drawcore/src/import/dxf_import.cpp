// Converts a document to a drawing.
#include "drawcore/src/import/dxf_import.h"

#include "drawcore/src/database/encoding.h"
#include "drawcore/src/dxf/appearance.h"
#include "drawcore/src/graphics/vertex_graphic.h"
#include "drawcore/src/import/entity_import.h"

namespace drawcore {

namespace {

class DxfImport {
public:
    DxfImport(dxf::Document& document, const dxf::Progress& progress)
        : document_(document), progress_(progress), drawing_(std::make_unique<Drawing>()),
          tables_(ImportTables(document, *drawing_)), entities_(document, tables_, *drawing_) {
        for (const dxf::Block& block : document.blocks)
            total_ += block.entities.size();
        total_ += document.entities.size();
    }

    std::unique_ptr<Drawing> Run() {
        for (size_t i = 0; i < document_.blocks.size(); ++i)
            if (tables_.blocks[i]) FillBlock(document_.blocks[i], *drawing_->Blocks()->At(tables_.blocks[i]));
        size_t onPaper = 0;
        for (const dxf::Entity& entity : document_.entities) {
            Advance();
            if (entity.inPaperSpace)
                ++onPaper;
            else
                entities_.AddTo(drawing_->Root(), entity, false);
        }
        if (onPaper > 0)
            document_.warnings.push_back({0, onPaper == 1
                                                 ? "1 entity of paper space is not shown"
                                                 : std::to_string(onPaper) + " entities of paper space are not shown"});
        return std::move(drawing_);
    }

private:
    void FillBlock(const dxf::Block& from, Block& block) {
        for (const dxf::ExtendedValue& extended : from.extended)
            if (extended.name == dxf::kExtendedStyleTree)
                block.Content().SetStyleName(CodePageFromUtf8(extended.text).c_str());
        for (const dxf::Entity& entity : from.entities) {
            Advance();
            entities_.AddTo(block.Content(), entity, true);
        }
    }

    void Advance() {
        constexpr size_t kInterval = 4096;
        if (++done_ % kInterval == 0 && progress_) progress_(dxf::Permille(done_, total_));
    }

    dxf::Document& document_;
    const dxf::Progress& progress_;
    std::unique_ptr<Drawing> drawing_;
    const ImportedTables tables_;
    EntityImport entities_;
    size_t total_ = 0, done_ = 0;
};

} // namespace

std::unique_ptr<Drawing> ImportDxf(dxf::Document& document, const dxf::Progress& progress) {
    return DxfImport(document, progress).Run();
}

} // namespace drawcore
