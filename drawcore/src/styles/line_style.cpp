// Fills the table of line styles.
#include "drawcore/src/styles/line_style.h"

namespace drawcore {

LineStyleTable::LineStyleTable(DrawingStruct* owner) : TableOf(owner) {
    Add(std::make_unique<LineStyle>("Continuous", "Solid line", std::vector<double>{}));
}

std::unique_ptr<TableEntry> LineStyleTable::MakeEntry(std::string_view name, void* data) {
    const char* description = static_cast<const char*>(data);
    return std::make_unique<LineStyle>(name, description ? description : "", std::vector<double>{});
}

} // namespace drawcore
