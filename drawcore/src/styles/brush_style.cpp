// The brush styles that every drawing has.
#include "drawcore/src/styles/brush_style.h"

#include <cmath>

#include "drawcore/src/dxf/standard_brushes.h"

namespace drawcore {

namespace {

// Bitmaps of predefined styles.
struct NamedBitmap {
    const char* name;
    BrushBitmap bitmap;
};
constexpr BrushBitmap::Colors kBrickColors = {0x00305CB0, 0x00D8E0E4};
constexpr NamedBitmap kBitmaps[] = {
    {"Dots 25%", {{0x88, 0x22, 0x88, 0x22, 0x88, 0x22, 0x88, 0x22}, {}}},
    {"Dots 50%", {{0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55}, {}}},
    {"Dots 75%", {{0x77, 0xDD, 0x77, 0xDD, 0x77, 0xDD, 0x77, 0xDD}, {}}},
    {"Brick bitmap", {{0x00, 0xFE, 0xFE, 0xFE, 0x00, 0xEF, 0xEF, 0xEF}, kBrickColors}},
};

const BrushBitmap* FindBitmap(const std::string& name) {
    for (const NamedBitmap& named : kBitmaps)
        if (name == named.name) return &named.bitmap;
    return nullptr;
}

} // namespace

double PatternLine::Spacing() const {
    return std::fabs(offset.y * std::cos(angle) - offset.x * std::sin(angle));
}

std::vector<PatternLine> LinesFromFile(const std::vector<dxf::Hatch::PatternLine>& lines) {
    std::vector<PatternLine> patternLines;
    for (const dxf::Hatch::PatternLine& from : lines) {
        PatternLine& line = patternLines.emplace_back();
        line.angle = Radians(from.angle);
        line.base = {from.base.x, from.base.y};
        line.offset = {from.offset.x, from.offset.y};
        line.dashes = from.dashes;
    }
    return patternLines;
}

BrushStyleTable::BrushStyleTable(DrawingStruct* owner) : TableOf(owner) {
    for (const dxf::StandardBrush& brush : dxf::StandardBrushes()) {
        const BrushBitmap* bitmap = FindBitmap(brush.name);
        Add(bitmap ? std::make_unique<BrushStyle>(brush.name, *bitmap)
                   : std::make_unique<BrushStyle>(brush.name, LinesFromFile(brush.lines)));
    }
}

std::unique_ptr<TableEntry> BrushStyleTable::MakeEntry(std::string_view name, void*) {
    return std::make_unique<BrushStyle>(name, std::vector<PatternLine>{});
}

} // namespace drawcore
