// Searches all records of blocks and entities for a layer.
#include "drawcore/src/save/layer_use.h"

#include "drawcore/src/dxf/names.h"
#include "drawcore/src/dxf/record_name.h"
#include "drawcore/src/dxf/tag_reader.h"

namespace dxf {

std::string FirstOnLayer(std::string_view text, const Document& document, const std::string& layer) {
    const TextDecoder decoder(document.header.version, document.header.codePage);
    std::vector<Layer> layers;
    Names<Layer> names(layers, decoder);
    const size_t wanted = names.FindUtf8(layer);
    TagReader tags(text);
    const Tag& tag = tags.Next();
    bool hasEntities = false;
    size_t record = 0;
    for (; !tag.Is(0, "EOF"); tags.Next()) {
        if (tag.code == 0) record = tag.offset;
        if (tag.Is(0, "SECTION")) hasEntities = tags.Next().Is(2, "BLOCKS") || tag.Is(2, "ENTITIES");
        if (hasEntities && tag.code == kLayerName && names.Find(tag.value) == wanted)
            return NameOfRecord(text, record).Text();
    }
    return {};
}

} // namespace dxf
