// Brush styles: solid, or a pattern of parallel lines; the table "_BrushStyles_".
#pragma once

#include "drawcore/src/graphics/matrix.h"
#include "drawcore/src/tables/table.h"

namespace drawcore {

constexpr uint16_t kBrushNone = 0;
constexpr uint16_t kBrushSolid = 1;

// One family of parallel lines, as DXF defines it; drawing units and radians at brush scale 1, brush angle 0.
struct PatternLine {
    double angle = 0;           // direction of the lines
    Point base;                 // one of the lines starts its dashes here
    Point offset;               // from a line to the next, in the pattern's axes (not turned by the angle)
    std::vector<double> dashes; // as of a line style; empty is solid
    double Spacing() const;     // distance from line to line
};

// Without lines the style is solid.
class BrushStyle : public TableEntry {
public:
    BrushStyle(std::string_view entryName, std::vector<PatternLine> patternLines)
        : TableEntry(entryName), lines(std::move(patternLines)) {}
    const std::vector<PatternLine> lines;
};

// The first entries are "Solid", which has the identifier kBrushSolid, and six plain hatches.
class BrushStyleTable : public TableOf<BrushStyle> {
public:
    explicit BrushStyleTable(Drawing* owner);
    std::unique_ptr<TableEntry> MakeEntry(std::string_view name, void* data) override;
};

} // namespace drawcore
