// The looks of hatches and of texts.
#pragma once

#include "drawcore/src/dxf/inline_codes.h"
#include "drawcore/src/dxf/look.h"
#include "orlo/host/words.h"

namespace dxf {

// Line types whose names are not in a table.
constexpr char kByLayerName[] = "BYLAYER";
constexpr char kByBlockName[] = "BYBLOCK";

BrushLook BrushOf(const Hatch& hatch);
// A pattern as the hatch holds it: at its scale and angle, with the first line where it is.
std::vector<Hatch::PatternLine> PlacedLines(const std::vector<Hatch::PatternLine>& lines, double scale, double angle,
                                            const Vec3& base);
// A pattern as a row of numbers; false, and nothing is written, if they are not a pattern.
bool LinesFromNumbers(const std::vector<double>& numbers, std::vector<Hatch::PatternLine>& lines);
std::vector<double> NumbersFromLines(const std::vector<Hatch::PatternLine>& lines);

TextLook TextLookOf(const Text& text, const TextStyle& style);
TextLook TextLookOf(const MText& text, const TextStyle& style, const InlineFormat& format);
// Returns whether an underline or a strikethrough marks only a part of the text.
bool IsPartlyMarked(const Text& text);
// Returns the bits of the values that other parts of the text do not share with most of it.
uint8_t VariedBits(const FormattedText& text, const InlineFormat& most);
// In drawing units, where the format knows a height of nothing.
double HeightOf(const MText& text, const Document& document);

} // namespace dxf
