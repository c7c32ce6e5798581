// A drawing and graphics with arbitrary property tables, which record the values that are written.
//
//   GraphicKit kit;
//   kit.Add({{"PenWidth", 1.0}, {"Info", "wall"}});
//   kit.Add({{"PenWidth", 2.0}});
//   kit[0].Number("PenWidth"); kit[1].writes.size(); kit[0].onSet = [](auto&) { throw 1; };
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "drawcore/owned_drawing.h"
#include "orlo/host/owners.h"

struct KitValue {
    KitValue() = default;
    KitValue(int value) : number(value) {}
    KitValue(double value) : number(value) {}
    KitValue(const char* value) : text(value) {}

    bool operator==(const KitValue& other) const { return number == other.number && text == other.text; }

    double number = 0;
    std::string text;
};

struct KitWrite {
    std::string name;
    int vt;
};

class KitGraphic {
public:
    KitGraphic(int type, std::map<std::string, KitValue> offered);

    double Number(const std::string& name) const { return properties.at(name).number; }
    std::string Text(const std::string& name) const { return properties.at(name).text; }

    GraphicStruct* graphic;
    std::map<std::string, KitValue> properties;
    std::vector<KitWrite> writes;
    std::function<void(const std::string& name)> onSet; // before a value is stored
    std::function<void()> onGet;                        // after a value was returned
    std::string rejected;                               // the property that is rejected
    int reads = 0;
};

class GraphicKit {
public:
    GraphicKit();
    ~GraphicKit();
    GraphicKit(const GraphicKit&) = delete;
    GraphicKit& operator=(const GraphicKit&) = delete;

    KitGraphic& Add(std::map<std::string, KitValue> offered, int type = kGraphicPenBrush);
    // Adds a member without a property table to the selection.
    GraphicStruct* AddWithoutTable();
    KitGraphic& operator[](size_t index) { return *m_graphics[index]; }
    size_t Size() const { return m_graphics.size(); }

    DrawingStruct* Drawing() const { return m_drawing.get(); }
    GraphicStruct* Selection() const { return m_selection.get(); }
    int Writes() const;  // total of all graphics
    long Blocks() const; // number of the host's memory blocks that exist

private:
    OwnedDrawing m_drawing;
    orlo::host::OwnedGraphic m_selection;                // destroyed before its members
    std::vector<std::unique_ptr<KitGraphic>> m_graphics; // the drawing owns the records
};
