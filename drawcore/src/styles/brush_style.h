// Brush styles: solid, a pattern of parallel lines, or a bitmap; the table "_BrushStyles_".
#pragma once

#include <array>
#include <optional>

#include "drawcore/src/dxf/entities.h"
#include "drawcore/src/geometry/matrix.h"
#include "drawcore/src/styles/colors.h"
#include "drawcore/src/tables/table.h"
#include "orlo/host/style.h"

struct BrushPatternStruct {};

namespace drawcore {

constexpr uint16_t kBrushSolid = 1;

// A family of parallel lines as defined by DXF, in drawing units and radians at brush scale 1 and brush angle 0.
struct PatternLine : BrushPatternStruct {
    double angle = 0;           // direction of the lines
    Point base;                 // point at which the dashes of one line start
    Point offset;               // from one line to the next, in the pattern's axes (not rotated by the angle)
    std::vector<double> dashes; // same form as in line styles; empty is solid
    double Spacing() const;     // Returns the distance between lines.
};

// Converts the lines of a pattern in a file, in degrees.
std::vector<PatternLine> LinesFromFile(const std::vector<dxf::Hatch::PatternLine>& lines);

// A tile of 8 by 8 device pixels, with the same size at every zoom; scale, angle and cross hatch do not apply.
struct BrushBitmap {
    struct Colors {
        Color ink, background;
    };

    std::array<uint8_t, 8> rows{}; // from the top; the highest bit is the leftmost pixel; set bits are foreground
    std::optional<Colors> colors;  // if missing, the foreground is the brush color and the background transparent
};

// A style without lines and bitmap is solid.
class BrushStyle : public TableEntry {
public:
    BrushStyle(std::string_view entryName, std::vector<PatternLine> patternLines)
        : TableEntry(entryName), lines(std::move(patternLines)) {}
    BrushStyle(std::string_view entryName, const BrushBitmap& tile) : TableEntry(entryName), bitmap(tile) {}

    const std::vector<PatternLine> lines;
    const std::optional<BrushBitmap> bitmap;
};

// The first entries are "Solid", which has the identifier kBrushSolid, six plain hatches and four bitmaps.
class BrushStyleTable : public TableOf<BrushStyle> {
public:
    explicit BrushStyleTable(DrawingStruct* owner);
    std::unique_ptr<TableEntry> MakeEntry(std::string_view name, void* data) override;
};

} // namespace drawcore
