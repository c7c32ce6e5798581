// DumpDrawing.

#include "support/database_dump.h"

#include <algorithm>
#include <cstdio>

#include <windows.h>

#include <oaidl.h>

#include "drawcore/drawing.h"
#include "orlo/host/host.h"

namespace {

constexpr const char* kProperties[] = {
    "BrushAngle", "BrushColor",   "BrushDrawMode", "BrushScale", "BrushStyle", "HatchCross", "Info",
    "Layer",      "PenAlignment", "PenColor",      "PenScale",   "PenStyle",   "PenWidth",   "ScaleSystem",
    "StyleTree",  "TextFont",     "TextFormat",    "TextSize",   "TextStyle"};
constexpr const char* kTables[] = {"_Layers_", "_LineStyles_", "_BrushStyles_",
                                   "_Colors_", "_Blocks_",     "_Units_"};

std::string Exactly(double value) {
    char text[40];
    std::snprintf(text, sizeof text, "%a", value);
    return text;
}

std::string PropertyText(GraphicStruct* graphic, const char* name) {
    const PropertyTable* table = ::GraphicGetVtbl(graphic);
    int32_t number;
    if (table == nullptr || !table->PropLookup(graphic, &name, 1, 0, &number)) return "absent";
    uint32_t whole;
    if (table->PropGet(graphic, number, VT_UI4, &whole)) return std::to_string(whole);
    double real;
    if (table->PropGet(graphic, number, VT_R8, &real)) return Exactly(real);
    char* text = nullptr;
    if (!table->PropGet(graphic, number, VT_BSTR, &text)) return "unreadable";
    const std::string copy = text;
    ::BStringNULL(&text);
    return '"' + copy + '"';
}

void DumpGraphic(GraphicStruct* graphic, const std::string& path, std::vector<std::string>& lines) {
    lines.push_back(path + " type " + std::to_string(graphic->bType));
    for (const char* name : kProperties)
        lines.push_back(path + " " + name + " " + PropertyText(graphic, name));
    int cookie;
    for (VertexStruct* v = ::GraphicVertexFirst(graphic, &cookie, 0, 0xFFFF); v != nullptr;
         v = ::GraphicVertexNext(graphic, &cookie, 0, 0xFFFF))
        lines.push_back(path + " vertex " + std::to_string(v->wFlags) + " " + Exactly(v->x) + " " +
                        Exactly(v->y) + " " + Exactly(v->z));
    uint32_t position;
    int index = 0;
    for (GraphicStruct* member = ::GraphicFirst(graphic, &position, 1, 0xFFFFFFFF); member != nullptr;
         member = ::GraphicNext(graphic, &position, 1, 0xFFFFFFFF))
        DumpGraphic(member, path + "/" + std::to_string(index++), lines);
}

void DumpTable(DrawingStruct* drawing, const char* name, std::vector<std::string>& lines) {
    TableStruct* table = ::DrawingGetTable(drawing, name);
    int cookie;
    for (uint16_t id = ::TableEntryFirst(table, &cookie); id != 0; id = ::TableEntryNext(table, &cookie)) {
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
    int cookie;
    for (uint16_t id = ::TableEntryFirst(blocks, &cookie); id != 0; id = ::TableEntryNext(blocks, &cookie))
        DumpGraphic(::BlockGetGraphic(blocks, id), "block " + std::to_string(id), lines);
    DumpGraphic(::DrawingGetRoot(drawing), "drawing", lines);
    return lines;
}

std::string FirstDifference(const std::vector<std::string>& before, const std::vector<std::string>& after) {
    const auto [a, b] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    if (a == before.end() && b == after.end()) return "";
    return "before: " + (a == before.end() ? "(end)" : *a) + "\nafter:  " + (b == after.end() ? "(end)" : *b);
}
