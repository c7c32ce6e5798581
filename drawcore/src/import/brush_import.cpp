// Converts hatch patterns to brush styles, each pattern once.
#include "drawcore/src/import/brush_import.h"

#include "drawcore/src/database/encoding.h"

namespace drawcore {

namespace {

constexpr int kMaxNumbers = 1000; // for different patterns with the same name

// Returns the style with these lines, under the name or the name with a number, or 0 if the table is full.
Id FindOrAddStyle(const std::string& name, const std::vector<dxf::Hatch::PatternLine>& lines, BrushStyleTable& styles) {
    for (int number = 1; number <= kMaxNumbers; ++number) {
        const std::string numbered = number == 1 ? name : name + " " + std::to_string(number);
        const BrushStyle* known = styles.At(numbered);
        if (!known) return styles.Add(std::make_unique<BrushStyle>(numbered, LinesFromFile(lines)));
        if (dxf::SameLines(FileLines(*known), lines)) return styles.IdOf(numbered);
    }
    return kNoId;
}

Id StyleOf(const dxf::BrushAppearance& appearance, BrushStyleTable& styles) {
    if (appearance.style.empty()) return kBrushStyleNone;
    constexpr size_t kLongestName = 200;
    const std::string name = CodePageFromUtf8(appearance.style).substr(0, kLongestName);
    if (!appearance.lines.empty()) return FindOrAddStyle(name, appearance.lines, styles);
    const Id known = styles.IdOf(name);
    return known ? known : kBrushSolid;
}

} // namespace

std::vector<dxf::Hatch::PatternLine> FileLines(const BrushStyle& style) {
    std::vector<dxf::Hatch::PatternLine> fileLines;
    for (const PatternLine& from : style.lines)
        fileLines.push_back(
            {Degrees(from.angle), {from.base.x, from.base.y, 0}, {from.offset.x, from.offset.y, 0}, from.dashes});
    return fileLines;
}

Brush ImportBrush(const dxf::BrushAppearance& appearance, BrushStyleTable& styles) {
    Brush brush;
    brush.style = StyleOf(appearance, styles);
    brush.scale = appearance.scale;
    brush.angle = appearance.angle;
    brush.color = appearance.color;
    brush.cross = appearance.cross;
    brush.drawMode = appearance.winding;
    return brush;
}

} // namespace drawcore
