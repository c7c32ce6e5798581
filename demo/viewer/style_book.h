// The styles of an open drawing, and which of them is the current one.
//
// A style is a block of the table "_Blocks_" whose contents carry the name of the demo's style tree. Its contents are
// two samples, a shape and a text, whose attributes are the style's; a sheet over the contents edits them.
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

    // What of a graphic a style decides.
    struct Parts {
        bool pen, brush, text;
    };

    // Of the styles that the drawing has, the first one is the current one.
    explicit StyleBook(DrawingStruct* drawing);

    TableStruct* Table() const;
    std::vector<uint16_t> All() const; // in the order of the table
    bool IsStyle(uint16_t id) const;
    std::string Name(uint16_t id) const;
    GraphicStruct* Content(uint16_t id) const;
    // Graphics of the drawing that have been put into the style.
    int Uses(uint16_t id) const;

    uint16_t Current() const { return m_current; } // 0: none
    void SetCurrent(uint16_t id) { m_current = id; }

    // What keeps the name from being a new style's; empty if nothing does.
    std::string WhyNot(const std::string& name) const;
    // The parts that one of the graphics has.
    static Parts PartsOf(const std::vector<GraphicStruct*>& graphics);
    // Of each part the first graphic that has it is the example, null without one.
    struct Examples {
        GraphicStruct *pen, *brush, *text;
    };
    static Examples ExamplesOf(const std::vector<GraphicStruct*>& graphics);

    // Makes a style after the graphics and makes it the current one. 0 if the name does not suit a new style.
    uint16_t Make(const std::string& name, const std::vector<GraphicStruct*>& graphics, Parts parts);
    // A style has come into the table as a copy of the current one: makes it the current one. 0 if none has.
    uint16_t TakeAdded();
    // False, with nothing changed, if graphics use it.
    bool Delete(uint16_t id);
    // Returns a copy of its contents, what restores them, and whether they are still the same.
    orlo::host::OwnedGraphic Copy(uint16_t id) const;
    void Restore(uint16_t id, GraphicStruct* copy);
    bool HasContent(uint16_t id, GraphicStruct* copy) const;

    // For undo, which restores styles by their names.
    uint16_t Find(const std::string& name) const; // 0: there is no such style
    Parts PartsOf(uint16_t id) const { return m_parts.at(id); }
    void Remove(uint16_t id);
    // Adds a style that has been removed. Its identifier is a new one: RenumberGraphics gives it to graphics that undo
    // has put into the style under a former one.
    void AddAgain(const std::string& name, GraphicStruct* copy, Parts parts);
    void RenumberGraphics() const;
    // Gives the graphics the current style's parts.
    void ApplyCurrent(const std::vector<GraphicStruct*>& graphics) const;

private:
    uint16_t Any() const; // 0 without one
    void Enter(uint16_t id, Parts parts);

    DrawingStruct* m_drawing;
    std::map<uint16_t, Parts> m_parts;               // of a style that was in the file: all
    std::map<uint16_t, std::string> m_formerNumbers; // of styles that have been removed, with their names
    uint16_t m_current;
};
