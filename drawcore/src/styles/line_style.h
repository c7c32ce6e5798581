// Line styles: names, descriptions and dash patterns; the table "_LineStyles_".
#pragma once

#include "drawcore/src/tables/table.h"
#include "orlo/host/words.h"

namespace drawcore {

// Positive items are dashes, negative ones gaps, 0 is a dot, in drawing units at pen scale 1. Empty is a solid line.
class LineStyle : public TableEntry {
public:
    LineStyle(std::string_view entryName, std::string_view text, std::vector<double> items)
        : TableEntry(entryName), description(text), pattern(std::move(items)) {}
    void* Data() override { return description.data(); } // NUL-terminated text

    std::string description;
    const std::vector<double> pattern;
};

// The first entry is "Continuous", a solid line.
class LineStyleTable : public TableOf<LineStyle> {
public:
    explicit LineStyleTable(DrawingStruct* owner);
    std::unique_ptr<TableEntry> MakeEntry(std::string_view name, void* data) override;
};

} // namespace drawcore
