// Fuzzes saving: whatever was read, its text without changes is the same, and with every entity changed it is read again.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/save/drawing_patch.h"
#include "drawcore/src/save/save_error.h"

namespace {

// What has a group, what has none, and what is both.
void ChangeAll(dxf::DrawingPatch& patch, const std::vector<dxf::Entity>& entities) {
    for (const dxf::Entity& entity : entities) {
        dxf::Look look = dxf::LookOf(patch.Known(), entity);
        look.color = 0x00123456;
        look.info = "a^b\n\u4E57";
        look.width = 0.0123;
        look.worldWidth = !look.worldWidth;
        look.dashesFitted = !look.dashesFitted;
        look.lineType = patch.FindLineType("Dotted");
        look.layer = patch.FindLayer("new");
        look.brush.scale = 3;
        look.brush.angle = 1;
        look.text.height *= 2;
        look.text.style ^= 0x0143;
        look.text.format = 2;
        look.text.font = "Verdana";
        const drawcore::Matrix placement =
            drawcore::Matrix::Scaling({2, -3, 4}) * drawcore::Matrix::Translation({1, 2, 3});
        patch.Change(entity.offset, look, &placement);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view text = dxf::TextOf({reinterpret_cast<const char*>(data), size});
    dxf::Document drawing;
    try {
        drawing = dxf::Read(text, {});
    } catch (const dxf::ReadError&) {
        return 0;
    }
    if (dxf::DrawingPatch(text, drawing.Tables()).Finish() != text) std::abort();
    std::string changed;
    try {
        dxf::DrawingPatch patch(text, drawing.Tables());
        ChangeAll(patch, drawing.entities);
        changed = patch.Finish();
    } catch (const dxf::SaveError&) {
        return 0; // said, and nothing is written
    } catch (const dxf::ReadError&) {
        return 0;
    }
    if (dxf::Read(changed, {}).entities.size() != drawing.entities.size()) std::abort();
    return 0;
}
