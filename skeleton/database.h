// The database's objects. Graphics and drawings derive from the shared records; tables, viewports and extents are
// opaque to the library, so that a database can define them freely.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "orlo/host/host.h"

struct Graphic;
struct Drawing;

// A rectangle, empty if minX > maxX.
struct ExtentsStruct {
    double minX = 1, minY = 1, maxX = 0, maxY = 0;

    bool IsEmpty() const { return minX > maxX; }
    void Add(double x, double y);
};

// One family of parallel lines in a hatch.
struct BrushPatternStruct {
    double angle, spacing;
};

// An entry of any table. Each table uses the members for its kind.
struct Entry {
    std::string name;
    uint32_t color = 0;                    // layers, colors
    bool visible = true, readOnly = false; // layers
    std::vector<double> dashes;            // line styles
    uint16_t brushFlags = 0;
    std::vector<BrushPatternStruct> lines; // brush styles
    std::unique_ptr<Graphic> contents;     // blocks
};

struct TableStruct {
    explicit TableStruct(Drawing* drawing);
    ~TableStruct();
    TableStruct(const TableStruct&) = delete;
    TableStruct& operator=(const TableStruct&) = delete;

    // Returns the table, or null if it has been freed, because controls may still have pointers to freed tables.
    static TableStruct* Find(TableStruct* table);
    Entry* At(uint16_t id);
    uint16_t IdOf(const char* name) const;         // 0 if there is none
    uint16_t Add(const char* name, Entry content); // 0 if the name is invalid or exists

    Drawing* owner;
    std::map<uint16_t, Entry> entries;
    std::map<uint16_t, std::variant<long, double, std::string>> variables;
};

// The part of a graphic that is copied with it.
struct Content {
    std::vector<VertexStruct> vertices; // insertions: the origin and the end points of the axes
    uint16_t block = 0;                 // insertions
    double x = 0, y = 0, textAngle = 0; // texts
    std::string text;

    // The properties; property.cpp converts them to other types.
    uint32_t layer = 1, styleTree = 0;
    uint32_t penColor = kColorByLayer, penStyle = kLineStyleByLayer, penAlignment = 0, scaleSystem = kScalePaper;
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

// The property table of all graphics (property.cpp).
extern const PropertyTable kProperties;

// Copies at most size bytes, including the NUL. Returns the number of characters copied.
int CopyText(const std::string& text, char* buffer, int size);
