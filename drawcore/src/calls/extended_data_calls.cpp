// Extended data of the record that a graphic was read from.

#include "drawcore/include/drawcore/dxf.h"
#include "drawcore/src/database/drawing.h"
#include "drawcore/src/database/dxf_source.h"
#include "drawcore/src/database/encoding.h"
#include "drawcore/src/dxf/tag_reader.h"
#include "drawcore/src/dxf/text_decoding.h"
#include "drawcore/src/graphics/graphic.h"
#include "orlo/host/graphic.h"

using namespace drawcore;

namespace {

// Returns the extended data of the record at the offset, in UTF-8.
std::string ExtendedData(const DxfSource& source, uint32_t offset) {
    const dxf::Header& header = source.known.header;
    const dxf::TextDecoder decoder(header.version, header.codePage);
    dxf::TagReader tags(source.bytes);
    tags.Seek(offset);
    std::string text;
    while (!tags.Next().StartsRecord()) {
        const dxf::Tag& tag = tags.Current();
        if (tag.code < dxf::kExtended) continue;
        if (!text.empty()) text += "\r\n";
        text += std::to_string(tag.code) + " " + dxf::ToDisplayText(decoder.Decode(tag.Trimmed()));
    }
    return text;
}

} // namespace

int GraphicGetExtendedData(GraphicStruct* graphic, char* buffer, int size) {
    CopyText("", buffer, size);
    const Drawing* drawing = graphic ? Drawing::Find(GraphicGetDrawing(graphic)) : nullptr;
    if (!drawing || !drawing->source || Graphic::From(graphic)->source == Graphic::kNoSource) return 0;
    const std::string text = CodePageFromUtf8(ExtendedData(*drawing->source, Graphic::From(graphic)->source));
    if (text.empty()) return 0;
    CopyText(text, buffer, size);
    return static_cast<int>(text.size() + 1);
}
