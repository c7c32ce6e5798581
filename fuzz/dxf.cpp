// DXF reader: any input is read or rejected, and a drawing that was read can be iterated.

#include <cstddef>
#include <cstdint>

#include "drawcore/src/dxf/extents.h"
#include "drawcore/src/dxf/inline_codes.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/dxf/text_decoding.h"

namespace {

void ShowTexts(const std::vector<dxf::Entity>& entities) {
    for (const dxf::Entity& entity : entities) {
        if (const auto* text = std::get_if<dxf::Boxed<dxf::Text>>(&entity.shape))
            dxf::ReadControlCodes(dxf::ToDisplayText((*text)->text));
        if (const auto* text = std::get_if<dxf::Boxed<dxf::MText>>(&entity.shape))
            dxf::ReadInlineCodes((*text)->text, (*text)->height).DominantFormat();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    try {
        const dxf::Document drawing = dxf::Read({reinterpret_cast<const char*>(data), size}, {});
        dxf::ExtentsOf(drawing);
        ShowTexts(drawing.entities);
    } catch (const dxf::ReadError&) {
    }
    return 0;
}
