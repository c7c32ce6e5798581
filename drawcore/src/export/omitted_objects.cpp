// Names the objects that are omitted.
#include "drawcore/src/export/omitted_objects.h"

#include "drawcore/src/database/dxf_source.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/dxf/record_name.h"
#include "drawcore/src/graphics/vertex_graphic.h"

namespace drawcore {

void OmittedObjects::Add(const Graphic& graphic, const std::string& reason) {
    if (!graphics_.insert(&graphic).second) return;
    const std::string block = BlockOf(graphic);
    if (graphic.source == Graphic::kNoSource) {
        warnings_.push_back({0, (block.empty() ? "" : NameOfBlock(block) + ": ") + reason});
        return;
    }
    AddRecord(graphic.source, block, reason);
}

void OmittedObjects::AddRemoved(uint32_t offset, const std::string& reason) {
    if (removed_.insert(offset).second) AddRecord(offset, {}, reason);
}

void OmittedObjects::AddRecord(uint32_t offset, const std::string& block, const std::string& reason) {
    dxf::RecordName name = dxf::NameOfRecord(dxf::TextOf(drawing_.source->bytes), offset);
    name.block = block;
    warnings_.push_back({name.line, name.Text() + ": " + reason});
}

void OmittedObjects::Add(const std::string& what, const std::string& reason) {
    if (others_.insert(what).second) warnings_.push_back({0, what + ": " + reason});
}

std::string OmittedObjects::BlockOf(const Graphic& graphic) const {
    const BlockTable* blocks = drawing_.Blocks();
    for (Id id = blocks ? blocks->First() : kNoId; id; id = blocks->Next(id))
        if (&blocks->At(id)->Content() == &graphic.Top()) return blocks->At(id)->name;
    return {};
}

} // namespace drawcore
