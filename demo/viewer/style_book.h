// The styles of an open drawing, and the current style.
//
// A style is a block of the table "_Blocks_" whose contents have the name of the demo's style tree. The contents are
// two samples, a shape and a text, that have the attributes of the style; a sheet for the contents edits them.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "orlo/host/owners.h"
#include "orlo/host/records.h"

class StyleBook {
public:
    static constexpr size_t kLongestName = 32;

    // The attributes that a style determines.
    struct Parts {
        bool pen, brush, text;
    };

    // The first of the drawing's styles becomes the current one.
    explicit StyleBook(DrawingStruct* drawing);

    TableStruct* Table() const;
    std::vector<uint16_t> All() const; // in table order
    bool IsStyle(uint16_t id) const;
    std::string Name(uint16_t id) const;
    GraphicStruct* Content(uint16_t id) const;
    // Returns the number of graphics that have the style.
    int Uses(uint16_t id) const;

    uint16_t Current() const { return m_current; } // 0 for none
    void SetCurrent(uint16_t id) { m_current = id; }

    // Returns the reason why the name cannot be used for a new style, or an empty string.
    std::string NameError(const std::string& name) const;
    // Returns the parts that at least one of the graphics has.
    static Parts PartsOf(const std::vector<GraphicStruct*>& graphics);
    // The first graphic that has each part, or null.
    struct Examples {
        GraphicStruct *pen, *brush, *text;
    };
    static Examples ExamplesOf(const std::vector<GraphicStruct*>& graphics);

    // Creates a style from the graphics and makes it current. Returns 0 if the name cannot be used.
    uint16_t Create(const std::string& name, const std::vector<GraphicStruct*>& graphics, Parts parts);
    // Makes a style current that was added to the table as a copy of the current one. Returns 0 if there is none.
    uint16_t TakeAdded();
    // Returns false, changing nothing, if graphics use it.
    bool Delete(uint16_t id);
    // Copy the contents, restore them, and compare them with the current ones.
    orlo::host::OwnedGraphic Copy(uint16_t id) const;
    void Restore(uint16_t id, GraphicStruct* copy);
    bool HasContent(uint16_t id, GraphicStruct* copy) const;

    // Finds a style by name, as undo does. Returns 0 if there is none.
    uint16_t Find(const std::string& name) const;
    Parts PartsOf(uint16_t id) const { return m_parts.at(id); }
    void Remove(uint16_t id);
    // Adds a removed style again, with a new identifier: RenumberGraphics sets it in graphics to which undo has
    // restored a former identifier of the style.
    void Readd(const std::string& name, GraphicStruct* copy, Parts parts);
    void RenumberGraphics() const;
    // Applies the current style's parts to the graphics.
    void ApplyCurrent(const std::vector<GraphicStruct*>& graphics) const;

private:
    uint16_t Any() const; // 0 if there is none
    void Enter(uint16_t id, Parts parts);

    DrawingStruct* m_drawing;
    std::map<uint16_t, Parts> m_parts;               // for a style from the file: all parts
    std::map<uint16_t, std::string> m_formerNumbers; // of removed styles, with their names
    uint16_t m_current;
};
