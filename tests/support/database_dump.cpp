// DumpDrawing.

#include "support/database_dump.h"

#include <algorithm>
#include <cstdio>

#include "drawcore/drawing.h"
#include "drawcore/property_schema.h"
#include "orlo/host/host.h"
#include "orlo/host/property.h"
#include "orlo/host/walk.h"

namespace {

using namespace orlo::host;

constexpr const char* kTables[] = {kTableLayers, kTableLineStyles, kTableBrushStyles,
                                   kTableColors, kTableBlocks,     kTableUnits};

std::string Exactly(double value) {
    char text[40];
    std::snprintf(text, sizeof text, "%a", value);
    return text;
}

std::string PropertyText(GraphicStruct* graphic, const PropertyInfo& property) {
    if (const auto whole = ReadProperty<uint32_t>(graphic, property.name)) return std::to_string(*whole);
    if (const auto real = ReadProperty<double>(graphic, property.name)) return Exactly(*real);
    if (const auto text = ReadProperty<std::string>(graphic, property.name)) return '"' + *text + '"';
    return FindProperty(graphic, property.name) ? "unreadable" : "absent";
}

void DumpGraphic(GraphicStruct* graphic, const std::string& path, std::vector<std::string>& lines) {
    lines.push_back(path + " type " + std::to_string(graphic->bType));
    for (const PropertyInfo& property : AllProperties())
        lines.push_back(path + " " + property.name + " " + PropertyText(graphic, property));
    for (const VertexStruct* v : Vertices(graphic))
        lines.push_back(path + " vertex " + std::to_string(v->wFlags) + " " + Exactly(v->x) + " " +
                        Exactly(v->y) + " " + Exactly(v->z));
    int index = 0;
    for (GraphicStruct* member : Members(graphic))
        DumpGraphic(member, path + "/" + std::to_string(index++), lines);
}

void DumpTable(DrawingStruct* drawing, const char* name, std::vector<std::string>& lines) {
    TableStruct* table = ::DrawingGetTable(drawing, name);
    for (const uint16_t id : Entries(table)) {
        char entry[300] = "";
        ::TableEntryGetName(table, id, entry, sizeof entry);
        lines.push_back(std::string(name) + " " + std::to_string(id) + " " + entry);
    }
}

} // namespace

std::vector<std::string> DumpDrawing(DrawingStruct* drawing) {
    std::vector<std::string> lines;
    for (const char* name : kTables)
        DumpTable(drawing, name, lines);
    TableStruct* blocks = ::BlocksFromDrawing(drawing);
    for (const uint16_t id : Entries(blocks))
        DumpGraphic(::BlockGetGraphic(blocks, id), "block " + std::to_string(id), lines);
    DumpGraphic(::DrawingGetRoot(drawing), "drawing", lines);
    return lines;
}

std::string FirstDifference(const std::vector<std::string>& before, const std::vector<std::string>& after) {
    const auto [a, b] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    if (a == before.end() && b == after.end()) return "";
    return "before: " + (a == before.end() ? "(end)" : *a) + "\nafter:  " + (b == after.end() ? "(end)" : *b);
}
