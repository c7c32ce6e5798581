// Saving: without changes the text stays identical, and with every entity changed it can be read again.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/dxf/reader.h"
#include "drawcore/src/save/drawing_patch.h"
#include "drawcore/src/save/structure_patch.h"

namespace {

// Covers properties with a group, without one, and with an optional one.
void ChangeAll(dxf::DrawingPatch& patch, const std::vector<dxf::Entity>& entities) {
    for (const dxf::Entity& entity : entities) {
        dxf::Appearance appearance = dxf::AppearanceOf(patch.Known(), entity);
        appearance.color = 0x00123456;
        dxf::SetExtended(appearance, {kPropInfo, "a^b\n\u4E57", {}});
        appearance.width = 0.0123;
        appearance.worldWidth = !appearance.worldWidth;
        appearance.dashesFitted = !appearance.dashesFitted;
        appearance.lineType = patch.FindLineType("Dotted");
        appearance.layer = patch.FindLayer("new");
        appearance.brush.scale = 3;
        appearance.brush.angle = 1;
        appearance.text.height *= 2;
        appearance.text.style ^= 0x0143;
        appearance.text.format = 2;
        appearance.text.font = "Verdana";
        const dxf::AxisEnds placement =
            dxf::AxisEndsOf(drawcore::Matrix::Scaling({2, -3, 4}) * drawcore::Matrix::Translation({1, 2, 3}));
        patch.Change(entity.offset, appearance, {&placement, nullptr});
    }
}

// Removes every second entity and adds some; checks the resulting positions.
void CheckStructure(std::string_view text, const dxf::Document& drawing) {
    dxf::StructurePatch patch(text, drawing.Tables());
    dxf::Block block;
    block.name = "made";
    block.entities.emplace_back().shape = dxf::Circle{{1, 2, 0}, 3};
    patch.AddBlock(block);
    for (size_t i = 0; i < drawing.entities.size(); i += 2)
        patch.Remove(drawing.entities[i].offset);
    dxf::Entity line;
    line.shape = dxf::Line{{1, 2, 3}, {4, 5, 6}};
    const size_t added = patch.Add(line, nullptr);
    const std::string changed = patch.Finish();
    const std::vector<dxf::Entity> after = dxf::Read(changed, {}).entities;
    if (after.size() != drawing.entities.size() / 2 + 1 || after.back().offset != patch.OffsetOf(added)) std::abort();
    for (size_t i = 1; i < drawing.entities.size(); i += 2)
        if (after[i / 2].offset != patch.Moved(drawing.entities[i].offset)) std::abort();
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
        CheckStructure(text, drawing);
    } catch (const dxf::SaveError&) {
        return 0; // the error is reported and nothing is written
    } catch (const dxf::ReadError&) {
        return 0;
    }
    if (dxf::Read(changed, {}).entities.size() != drawing.entities.size()) std::abort();
    return 0;
}
