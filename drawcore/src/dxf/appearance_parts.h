// The appearance of hatches and texts.
#pragma once

#include "drawcore/src/dxf/appearance.h"
#include "drawcore/src/dxf/inline_codes.h"
#include "orlo/host/words.h"

namespace dxf {

// Names of line types that are not in a table.
constexpr char kByLayerName[] = "BYLAYER";
constexpr char kByBlockName[] = "BYBLOCK";

BrushAppearance BrushOf(const Hatch& hatch);
// Returns a pattern as stored in a hatch: at its scale and angle, with the position of its first line.
std::vector<Hatch::PatternLine> PlacedLines(const std::vector<Hatch::PatternLine>& lines, double scale, double angle,
                                            const Vec3& base);
// Parses a pattern from numbers. Returns false and leaves lines unchanged if they are not a pattern.
bool LinesFromNumbers(const std::vector<double>& numbers, std::vector<Hatch::PatternLine>& lines);
std::vector<double> NumbersFromLines(const std::vector<Hatch::PatternLine>& lines);

TextAppearance TextAppearanceOf(const Text& text, const TextStyle& style);
TextAppearance TextAppearanceOf(const MText& text, const TextStyle& style, const InlineFormat& format);
// Returns whether underline or strikethrough applies only to part of the text.
bool IsPartlyMarked(const Text& text);
// Returns the bits of the values that differ in other parts of the text.
uint8_t VariedBits(const FormattedText& text, const InlineFormat& most);
// Returns the height in drawing units, even if the format has none.
double HeightOf(const MText& text, const Document& document);

} // namespace dxf
