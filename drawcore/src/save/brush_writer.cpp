// Writes the brush of an entity: groups of a hatch, extended data for other entities.
#include <algorithm>
#include <cmath>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/dxf/placement.h"
#include "drawcore/src/dxf/standard_brushes.h"
#include "drawcore/src/save/appearance_writer.h"

namespace dxf {

namespace {

constexpr int kHatchStyle = 75; // first group of the pattern
constexpr int kPatternType = 76;
constexpr int kSeeds = 98; // first group after the pattern
constexpr int kGradient = 450;
constexpr int kLastGradient = 470;

bool IsOfPattern(int code) {
    constexpr int kCodes[] = {52, 41, 77, 78, 53, 43, 44, 45, 46, 79, 49};
    return std::find(std::begin(kCodes), std::end(kCodes), code) != std::end(kCodes);
}

bool IsOfGradient(int code) {
    return (code >= kGradient && code <= kLastGradient) || code == 63 || code == 421;
}

// Returns the degrees that are read back as exactly these radians, if there are any nearby.
double DegreesOf(double radians) {
    const double degrees = drawcore::Degrees(radians);
    for (const double tried :
         {std::round(degrees * 1e9) / 1e9, degrees, std::nextafter(degrees, -1e9), std::nextafter(degrees, 1e9)})
        if (Radians(tried) == radians) return tried;
    return degrees;
}

// Returns whether a hatch can store the angle unchanged.
bool IsWithinTurn(double angle) {
    return std::fabs(angle) < 2 * drawcore::kPi;
}

} // namespace

void AppearanceWriter::WriteBrush(const Appearance& wanted) {
    if (Now().brush == wanted.brush) return;
    for (const char* name : {kPropBrushStyle, kPropBrushScale, kPropBrushAngle, kPropHatchCross, kPropBrushDrawMode})
        RemoveExtended(name);
    const BrushAppearance& brush = wanted.brush;
    if (auto* hatch = As<Hatch>(entity_)) PutBrush(*hatch, brush);
    const BrushAppearance inGroups = AppearanceByGroups(drawing_.Known(), entity_).brush;
    const bool sameLines = brush.lines.empty() && inGroups.lines.empty() ? brush.style == inGroups.style
                                                                         : SameLines(brush.lines, inGroups.lines);
    if (!sameLines || brush.style.empty() != inGroups.style.empty())
        ExtendedText(kPropBrushStyle, brush.style,
                     SameLines(StandardLines(brush.style), brush.lines) ? std::vector<double>()
                                                                        : NumbersFromLines(brush.lines));
    if (brush.scale != inGroups.scale) ExtendedNumbers(kPropBrushScale, {brush.scale});
    if (brush.angle != inGroups.angle) WriteAngle(brush.angle, inGroups.angle);
    if (brush.cross != inGroups.cross) ExtendedNumbers(kPropHatchCross, {brush.cross ? 1.0 : 0.0});
    if (brush.winding != inGroups.winding) ExtendedNumbers(kPropBrushDrawMode, {brush.winding ? 1.0 : 0.0});
}

// Writes the exact angle to extended data if the degrees are only near it.
void AppearanceWriter::WriteAngle(double angle, double inGroups) {
    if (!Near(angle, inGroups)) return ExtendedNumbers(kPropBrushAngle, {angle});
    exact_.insert(kPropBrushAngle);
    ExtendedNumbers(kPropBrushAngle, {angle, inGroups});
}

// Stores the parts of the brush that a hatch can represent.
void AppearanceWriter::PutBrush(Hatch& hatch, const BrushAppearance& wanted) {
    const BrushAppearance inGroups = BrushOf(hatch);
    if (wanted.style == kSolidBrush && wanted.lines.empty()) {
        if (inGroups.style != kSolidBrush || !inGroups.lines.empty()) PutSolid(hatch);
        return;
    }
    if (wanted.lines.empty()) return; // no brush, or one without lines
    BrushAppearance put = wanted;
    if (!(put.scale > 0)) put.scale = inGroups.scale;
    if (!IsWithinTurn(put.angle)) put.angle = inGroups.angle;
    put.cross = wanted.cross && wanted.lines.size() == 1;
    const bool same = SameLines(put.lines, inGroups.lines) && put.scale == inGroups.scale &&
                      put.angle == inGroups.angle && put.cross == inGroups.cross;
    if (!same) PutPattern(hatch, put);
}

// Replaces the groups after the head and the outlines.
void AppearanceWriter::ReplacePattern(const std::vector<RecordPatch::Value>& values) {
    const std::vector<Group>& groups = record_.Groups();
    const auto from =
        std::find_if(groups.rbegin(), groups.rend(), [](const Group& group) { return group.code == kHatchStyle; });
    if (from == groups.rend()) throw SaveError("the groups of a hatch's pattern are missing");
    size_t offset = from->end;
    bool inPattern = true, inGradient = false;
    for (auto group = from.base(); group != groups.end() && !group->attached; ++group) {
        if (group->code == kPatternType) offset = group->end;
        inPattern = inPattern && group->code != kSeeds;
        inGradient = inGradient || group->code == kGradient;
        if ((inPattern && IsOfPattern(group->code)) || (inGradient && IsOfGradient(group->code)))
            record_.Remove(*group);
    }
    for (const RecordPatch::Value& value : values)
        record_.Insert(offset, value.code, value.text);
}

void AppearanceWriter::PutHatchHead(const Hatch& hatch) {
    const std::vector<Group>& groups = record_.Groups();
    const std::string name = hatch.solid ? "SOLID" : drawing_.in_.decoder.Encode(hatch.pattern);
    for (const Group& group : groups) {
        if (group.code == 91 || group.code == 92) break; // outlines follow
        if (group.attached) continue;
        if (group.code == 2) record_.SetValue(group, name);
        if (group.code == 70) record_.SetValue(group, hatch.solid ? "1" : "0");
    }
}

void AppearanceWriter::PutSolid(Hatch& hatch) {
    hatch.solid = true;
    hatch.gradient = false;
    PutHatchHead(hatch);
    ReplacePattern({});
}

void AppearanceWriter::PutPattern(Hatch& hatch, const BrushAppearance& wanted) {
    const Vec3 base = hatch.lines.empty() ? Vec3() : hatch.lines[0].base;
    hatch.solid = hatch.gradient = false;
    hatch.pattern = wanted.style;
    hatch.scale = wanted.scale;
    hatch.angle = DegreesOf(wanted.angle);
    hatch.crossed = wanted.cross;
    hatch.lines = PlacedLines(wanted.lines, wanted.scale, wanted.angle, base);
    PutHatchHead(hatch);
    std::vector<RecordPatch::Value> values = {{52, RealText(hatch.angle)},
                                              {41, RealText(hatch.scale)},
                                              {77, hatch.crossed ? "1" : "0"},
                                              {78, std::to_string(hatch.lines.size())}};
    for (const Hatch::PatternLine& line : hatch.lines) {
        values.push_back({53, RealText(line.angle)});
        values.push_back({43, RealText(line.base.x)});
        values.push_back({44, RealText(line.base.y)});
        values.push_back({45, RealText(line.offset.x)});
        values.push_back({46, RealText(line.offset.y)});
        values.push_back({79, std::to_string(line.dashes.size())});
        for (const double dash : line.dashes)
            values.push_back({49, RealText(dash)});
    }
    ReplacePattern(values);
}

} // namespace dxf
