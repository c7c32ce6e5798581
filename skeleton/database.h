// What stands behind the pointers that the library gets. Records that both sides know are derived from; what only the host
// knows (tables, viewports, extents) is defined here as it likes.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "orlo/host/host.h"

struct Graphic;
struct Drawing;

// A box; empty as long as minX is above maxX.
struct ExtentsStruct {
    double minX = 1, minY = 1, maxX = 0, maxY = 0;

    bool IsEmpty() const { return minX > maxX; }
    void Add(double x, double y);
};

// One family of lines of a hatch.
struct BrushPatternStruct {
    double angle, spacing;
};

// An entry of any table; each kind of table uses its part.
struct Entry {
    std::string name;
    uint32_t color = 0;                    // of a layer, or the entry of the colour table itself
    bool visible = true, readOnly = false; // of a layer
    std::vector<double> dashes;            // of a line style
    uint16_t brushFlags = 0;
    std::vector<BrushPatternStruct> lines; // of a brush style
    std::unique_ptr<Graphic> contents;     // of a block
};

struct TableStruct {
    explicit TableStruct(Drawing* drawing);
    ~TableStruct();
    TableStruct(const TableStruct&) = delete;
    TableStruct& operator=(const TableStruct&) = delete;

    // The library may still hold a table that has gone: null for that.
    static TableStruct* Find(TableStruct* table);
    Entry* At(uint16_t id);
    uint16_t IdOf(const char* name) const;      // 0: none
    uint16_t Add(const char* name, Entry rest); // 0: the name is bad or taken

    Drawing* owner;
    std::map<uint16_t, Entry> entries;
    std::map<uint16_t, std::variant<long, double, std::string>> variables;
};

// What a graphic shows and says: what a copy has too.
struct Content {
    std::vector<VertexStruct> vertices; // of an insertion: the origin and the ends of the axes
    uint16_t block = 0;                 // of an insertion
    double x = 0, y = 0, textAngle = 0; // of a text
    std::string text;

    // The properties, in the forms that property.cpp moves.
    uint32_t layer = 1, styleTree = 0;
    uint32_t penColor = kColorByLayer, penStyle = kLineStyleByLayer, penAlignment = 0,
             scaleSystem = kScalePaper;
    uint32_t brushColor = kColorOfPen, brushStyle = kBrushStyleNone, hatchCross = 0, brushDrawMode = 0;
    uint32_t textStyle = 0, textFormat = 0;
    double penWidth = 0, penScale = 1, brushAngle = 0, brushScale = 1, textSize = 2.5;
    std::string info, textFont = "Arial";
};

struct Graphic : GraphicStruct {
    explicit Graphic(int type);

    static Graphic* From(GraphicStruct* graphic) { return static_cast<Graphic*>(graphic); }
    void Attach(Drawing* to);

    Drawing* drawing = nullptr;
    Content content;
    std::vector<std::unique_ptr<Graphic>> members;
    ExtentsStruct extents;
};

struct Drawing : DrawingStruct {
    Drawing();
    ~Drawing();
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    static Drawing* From(DrawingStruct* drawing) { return static_cast<Drawing*>(drawing); }

    std::map<std::string, std::unique_ptr<TableStruct>> tables;
    std::string scaleText = "1 : 1";
    std::unique_ptr<Graphic> root;
};

// The property table of every graphic here (property.cpp).
extern const PropertyTable kProperties;

// Copies at most size bytes with the NUL; the number of characters copied.
int CopyText(const std::string& text, char* buffer, int size);
