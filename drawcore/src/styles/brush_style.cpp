#include "drawcore/src/styles/brush_style.h"

#include <cmath>

namespace drawcore {

namespace {

constexpr double kQuarter = 0.78539816339744831; // 45 degrees

PatternLine Family(double angle) {
    PatternLine line;
    line.angle = angle;
    line.offset = {-std::sin(angle), std::cos(angle)};
    return line;
}

} // namespace

double PatternLine::Spacing() const {
    return std::fabs(offset.y * std::cos(angle) - offset.x * std::sin(angle));
}

BrushStyleTable::BrushStyleTable(Drawing* owner) : TableOf(owner) {
    const auto add = [this](const char* name, std::vector<PatternLine> lines) {
        Add(std::make_unique<BrushStyle>(name, std::move(lines)));
    };
    add("Solid", {});
    add("Horizontal", {Family(0)});
    add("Vertical", {Family(2 * kQuarter)});
    add("Diagonal up", {Family(kQuarter)});
    add("Diagonal down", {Family(3 * kQuarter)});
    add("Cross", {Family(0), Family(2 * kQuarter)});
    add("Diagonal cross", {Family(kQuarter), Family(3 * kQuarter)});
}

std::unique_ptr<TableEntry> BrushStyleTable::MakeEntry(std::string_view name, void*) {
    return std::make_unique<BrushStyle>(name, std::vector<PatternLine>{});
}

} // namespace drawcore
