// The page with the extended data (XDATA) of a DXF entity.

#include "demo/viewer/extended_data_page.h"

#include <string>
#include <utility>

#include "drawcore/dxf.h"
#include "drawcore/selection.h"
#include "orlo/pages/field_page.h"

namespace {

constexpr unsigned kExtendedDataPage = 201;

std::string ExtendedData(GraphicStruct* graphic) {
    std::string text(static_cast<size_t>(::GraphicGetExtendedData(graphic, nullptr, 0)), '\0');
    ::GraphicGetExtendedData(graphic, text.data(), static_cast<int>(text.size()));
    return text.c_str(); // without the NUL
}

} // namespace

void AddExtendedDataPage(CGraphicPropertySheet* sheet, GraphicStruct* selection) {
    if (::SelectionCount(selection) != 1) return;
    FieldRow row(FieldKind::Lines, "&Groups of the entity:");
    row.help = "Data of other programs, as in the file: a code and a value on each line";
    row.readOnly = true;
    row.get = [](GraphicStruct* graphic, FieldValue& value) {
        value.text = ExtendedData(graphic);
        return true;
    };
    FieldTable table;
    table.caption = "Extended Data";
    table.accepts = [](GraphicStruct* graphic) { return ::GraphicGetExtendedData(graphic, nullptr, 0) > 0; };
    table.rows = {std::move(row)};
    AddFieldPage(sheet, kExtendedDataPage, std::move(table));
}
