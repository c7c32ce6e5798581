// Drawings: their tables with initial entries, and a few sample graphics.

#include <new>

#include "database.h"
#include "skeleton.h"

namespace {

void FillTables(Drawing& drawing) {
    for (const char* name :
         {kTableLayers, kTableLineStyles, kTableBrushStyles, kTableColors, kTableBlocks, kTableUnits})
        drawing.tables[name] = std::make_unique<TableStruct>(&drawing);
    const auto add = [&](const char* table, const char* name, Entry entry) {
        drawing.tables[table]->Add(name, std::move(entry));
    };
    Entry entry;
    add(kTableLayers, "0", {});
    entry.color = RGB(255, 0, 0);
    entry.readOnly = true;
    add(kTableLayers, "Survey", std::move(entry));

    add(kTableLineStyles, "Solid", {});
    entry = {};
    entry.dashes = {6, -3};
    add(kTableLineStyles, "Dashed", std::move(entry));

    entry = {};
    entry.brushFlags = kBrushVector; // the library expects the first brush style to be solid
    add(kTableBrushStyles, "Solid", std::move(entry));
    entry = {};
    entry.brushFlags = kBrushVector | kBrushHasLines;
    entry.lines = {{0.7853981633974483, 3.0}};
    add(kTableBrushStyles, "Lines", std::move(entry));

    const std::pair<const char*, uint32_t> colors[] = {
        {"Black", RGB(0, 0, 0)}, {"Red", RGB(255, 0, 0)}, {"Green", RGB(0, 255, 0)}, {"Blue", RGB(0, 0, 255)}};
    for (const auto& [name, color] : colors) {
        entry = {};
        entry.color = color;
        add(kTableColors, name, std::move(entry));
    }
    auto& variables = drawing.tables[kTableUnits]->variables;
    for (const uint16_t unit : {kUnitDrawing, kUnitMillimeter, kUnitTextSize, kUnitPenWidth})
        variables[unit] = std::string("mm");
    variables[kUnitFontName] = std::string("Arial");
}

GraphicStruct* NewRectangle(double width, double height) {
    GraphicStruct* rectangle = ::GraphicNewEx(kGraphicVertices, 0, 1);
    const double corners[][2] = {{0, 0}, {width, 0}, {width, height}, {0, height}, {0, 0}};
    for (const auto& [x, y] : corners) {
        const orlo::host::OwnedVertex vertex(::VertexNewEx(x, y, 0));
        ::GraphicVertexAdd(rectangle, vertex.get());
    }
    return rectangle;
}

GraphicStruct* NewText() {
    GraphicStruct* text = ::GraphicNewEx(kGraphicText, 0, 1);
    const orlo::host::OwnedVertex at(::VertexNewEx(5, 5, 0));
    ::TextSetVWHAEx(text, at.get(), 0, 4, 0, "Skeleton");
    return text;
}

GraphicStruct* NewInsertion(DrawingStruct* drawing) {
    TableStruct* blocks = ::BlocksFromDrawing(drawing);
    const uint16_t square = ::BlocksAddBlock(blocks, "Square", NewRectangle(10, 10));
    GraphicStruct* insertion = ::GraphicNewEx(kGraphicInsert, 0, 1);
    ::InsertSetData(insertion, blocks, square, nullptr);
    return insertion;
}

} // namespace

Drawing::Drawing() : DrawingStruct{} {
    pApplication = ::AppGetCurrentApp();
    FillTables(*this);
    pUnits = tables[kTableUnits].get();
    root = std::make_unique<Graphic>(kGraphicVertices);
    root->Attach(this);
}

Drawing::~Drawing() {
    if (pApplication->pCurrentDrawing == this) pApplication->pCurrentDrawing = nullptr;
}

DrawingStruct* DrawingNew(void) try {
    auto drawing = std::make_unique<Drawing>();
    for (GraphicStruct* graphic : {NewRectangle(40, 20), NewText(), NewInsertion(drawing.get())})
        ::GraphicAdd(drawing->root.get(), graphic);
    return drawing.release();
} catch (const std::bad_alloc&) {
    return nullptr;
}

void DrawingDispose(DrawingStruct** drawing) {
    if (!drawing) return;
    delete Drawing::From(*drawing);
    *drawing = nullptr;
}

GraphicStruct* DrawingGetRoot(DrawingStruct* drawing) {
    return drawing ? Drawing::From(drawing)->root.get() : nullptr;
}

TableStruct* DrawingGetTable(DrawingStruct* drawing, const char* name) {
    if (!drawing || !name) return nullptr;
    const auto& tables = Drawing::From(drawing)->tables;
    const auto found = tables.find(name);
    return found != tables.end() ? found->second.get() : nullptr;
}

// All drawings of this database are in world space.
uint16_t DrawingGetCoordSpace(DrawingStruct*) {
    return kSpaceWorld;
}

int DrawingGetScaleString(DrawingStruct* drawing, char* buffer, int size) {
    return drawing ? CopyText(Drawing::From(drawing)->scaleText, buffer, size) != 0 : 0;
}

int DrawingSetScaleString(DrawingStruct* drawing, const char* text) {
    if (!drawing || ::UnitsGetScaleValue(drawing->pUnits, text) == 0.0) return 0;
    Drawing::From(drawing)->scaleText = text;
    return 1;
}
