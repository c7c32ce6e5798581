// The commands, applied to one drawing. Texts are UTF-8. They throw ReadError and SaveError.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tools/dxfprops/drawing_file.h"

namespace dxfprops {

using Values = std::vector<std::pair<std::string, std::string>>; // by the names of properties

struct EntityProperties {
    dxf::RecordName name;
    Values values;
};

// The number of selected entities or layers and, if it is 0, the existing kinds or names.
struct Matches {
    size_t count = 0;
    std::set<std::string> kinds;
};

// Returns a layer's values by the names that set-layer accepts.
Values ValuesOf(const dxf::Contents::Layer& layer);

// Calls `each` with the properties of each selected entity, in the order of the file: those that `show`
// names, or all that the entity has.
Matches ForEachEntity(const DrawingFile& drawing, const Selection& selection, const std::vector<std::string>& show,
                      const std::function<void(const EntityProperties&)>& each);

struct Difference {
    enum class Kind { changed, onlyBefore, onlyAfter };
    struct Value {
        std::string property, before, after;
    };
    dxf::RecordName name;
    Kind kind = Kind::changed;
    std::vector<Value> values;
    std::string layer; // the name of a layer; empty for an entity
};

enum class Compared { all, properties };

// Returns the layers, and the entities of model space, paper space and blocks that differ. Compares layers of the same
// name and entities of the same handle, or, if they have no handles, at the same place. Texts, positions and other
// coordinates are compared as well as properties, or properties of entities alone.
std::vector<Difference> FindDifferences(const dxf::DocumentReader& before, const dxf::DocumentReader& after,
                                        Compared compared);

// The destination of a changed drawing.
struct Target {
    std::string output; // a file, or kStandardStream
    bool isDry = false; // writes nothing and returns the differences
    bool keepsBackup = false;
};

struct SetResult {
    Matches matches;
    size_t changed = 0;
    std::vector<std::string> notes;      // values that other programs do not show
    std::vector<Difference> differences; // if nothing was written
};

// "attribute:TAG" as the name of a value: the text of the attributes with that tag of the selected insertions.
constexpr char kAttribute[] = "attribute:";

// Sets properties of the selected entities that have them, and writes the drawing, in which only changed values differ.
// Throws SaveError if a value is not valid, even if no entity is changed.
SetResult SetProperties(const DrawingFile& drawing, const Selection& selection, const Values& values,
                        const Target& target);

// Sets the values of each named entity. Finds an entity by its handle, or by its line if it has none. Throws SaveError
// if one is missing.
SetResult ApplyProperties(const DrawingFile& drawing, const std::vector<EntityProperties>& wanted,
                          const Target& target);

// Changes the layers with these names, which can contain wildcards; with isNew, adds layers that do not exist.
SetResult SetLayers(const DrawingFile& drawing, const std::vector<std::string>& layers, const dxf::LayerValues& values,
                    bool isNew, const Target& target);

} // namespace dxfprops
