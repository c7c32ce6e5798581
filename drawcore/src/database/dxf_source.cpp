// Compares a drawing with its file.
#include "drawcore/src/database/dxf_source.h"

#include <algorithm>
#include <functional>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/graphics/undo_log.h"
#include "drawcore/src/graphics/vertex_graphic.h"

namespace drawcore {

namespace {

void AddSources(const Graphic& group, std::vector<uint32_t>& sources) {
    for (size_t i = 0; i < group.MemberCount(); ++i) {
        const Graphic& member = *group.MemberAt(i);
        if (member.source != Graphic::kNoSource) sources.push_back(member.source);
        AddSources(member, sources);
    }
}

// A hash of contents that the undo log does not record.
class ContentsMark {
public:
    explicit ContentsMark(const Drawing& drawing) {
        for (size_t i = 0; i < drawing.Root().MemberCount(); ++i)
            Mix(static_cast<const void*>(drawing.Root().MemberAt(i)));
        const LayerTable* layers = drawing.Layers();
        for (Id id = layers ? layers->First() : kNoId; id; id = layers->Next(id))
            Mix(*layers->At(id));
        const BlockTable* table = drawing.Blocks();
        for (Id id = table ? table->First() : kNoId; id; id = table->Next(id))
            if (table->At(id)->name != kPreviewBlock) Mix(*table->At(id));
    }
    size_t Number() const { return number_; }

private:
    template <class Value>
    void Mix(const Value& value) {
        number_ = number_ * 31 + std::hash<Value>()(value);
    }
    void Mix(const Layer& layer) {
        Mix(layer.off);
        Mix(layer.frozen);
        Mix(layer.locked);
        Mix(layer.color);
        Mix(layer.lineStyle);
    }
    void Mix(const Block& block) {
        const char* tree = block.Content().pszStyleName;
        Mix(block.name);
        Mix(std::string(tree ? tree : ""));
        MixMembers(block.Content());
    }
    void MixMembers(const Graphic& group) {
        Mix(group.MemberCount());
        for (size_t i = 0; i < group.MemberCount(); ++i) {
            Graphic& member = *group.MemberAt(i);
            Appearance appearance = member.GetAppearance();
            appearance.lastPage = 0; // not stored in files
            number_ = number_ * 31 + AppearanceHash()(appearance);
            for (size_t index = 0; const Vertex* vertex = member.VertexAt(index); ++index) {
                Mix(vertex->x);
                Mix(vertex->y);
                Mix(vertex->z);
            }
            MixMembers(member);
        }
    }

    size_t number_ = 0;
};

} // namespace

bool DxfSource::IsOutdated(const Drawing& drawing) const {
    return omitted_ > 0 || drawing.Undo().Mark() != undoMark_ || ContentsMark(drawing).Number() != contentsMark_;
}

void DxfSource::RecordContents(const Drawing& drawing, size_t omitted) {
    omitted_ = omitted;
    undoMark_ = drawing.Undo().Mark();
    contentsMark_ = ContentsMark(drawing).Number();
    graphics.clear();
    blocks.clear();
    layers.clear();
    const LayerTable* layerTable = drawing.Layers();
    for (Id id = layerTable ? layerTable->First() : kNoId; id; id = layerTable->Next(id))
        layers.push_back(layerTable->At(id)->name);
    AddSources(drawing.Root(), graphics);
    const BlockTable& table = *drawing.Blocks();
    for (Id id = table.First(); id; id = table.Next(id)) {
        const Block& block = *table.At(id);
        if (block.name == kPreviewBlock) continue;
        blocks.push_back(block.name);
        AddSources(block.Content(), graphics);
    }
    std::sort(graphics.begin(), graphics.end());
}

} // namespace drawcore
