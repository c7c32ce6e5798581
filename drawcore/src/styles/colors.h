// Colors: markers for inherited colors, the 255 numbered colors of DXF, and the table "_Colors_".
#pragma once

#include "drawcore/src/tables/table.h"
#include "orlo/host/words.h"

namespace drawcore {

using Color = uint32_t; // 0x00bbggrr, or a marker with a nonzero high byte

constexpr Color kWhite = 0x00FFFFFF; // DXF's color 7: displayed as black on a white background

constexpr bool IsPlainColor(Color color) {
    return (color >> 24) == 0;
}

class ColorEntry : public TableEntry {
public:
    ColorEntry(std::string_view entryName, Color color) : TableEntry(entryName), color_(color) {}
    void* Data() override { return &color_; }

private:
    Color color_;
};

class ColorTable : public TableOf<ColorEntry> {
public:
    // Contains the 255 numbered colors, with identifiers equal to the numbers: "Red" to "White", then "Color 8" on.
    explicit ColorTable(DrawingStruct* owner);
    std::unique_ptr<TableEntry> MakeEntry(std::string_view name, void* data) override;
};

} // namespace drawcore
