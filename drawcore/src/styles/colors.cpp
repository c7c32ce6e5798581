// Fills the color table.
#include "drawcore/src/styles/colors.h"

#include "drawcore/src/dxf/color_numbers.h"

namespace drawcore {

ColorTable::ColorTable(DrawingStruct* owner) : TableOf(owner) {
    for (int index = 1; index <= dxf::kColorNumbers; ++index)
        Add(std::make_unique<ColorEntry>(dxf::NameOfIndex(index), dxf::ColorOfIndex(index)));
}

std::unique_ptr<TableEntry> ColorTable::MakeEntry(std::string_view name, void* data) {
    if (!data) return nullptr;
    return std::make_unique<ColorEntry>(name, *static_cast<const Color*>(data));
}

} // namespace drawcore
