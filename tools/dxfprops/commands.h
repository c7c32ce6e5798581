// The commands, each for one drawing. Texts are UTF-8; ReadError and SaveError contain the reason of a failure.
#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tools/dxfprops/drawing_file.h"

namespace dxfprops {

struct EntityProperties {
    dxf::RecordName name;
    std::vector<std::pair<std::string, std::string>> values; // by property name
};

struct Listing {
    std::vector<EntityProperties> entities;
    std::set<std::string> kinds; // if nothing matched: the kinds that exist
};

// Returns the properties of the entities that meet the conditions: those in `show`, or all if it is empty.
Listing ListProperties(const std::string& file, const std::vector<Condition>& where,
                       const std::vector<std::string>& show);

struct SetResult {
    size_t matched = 0, changed = 0;
    std::set<std::string> kinds;    // if nothing matched: the kinds that exist
    std::vector<std::string> notes; // properties that other programs will not show
};

// Sets properties of the entities that meet the conditions and have these properties, and writes the drawing to
// `output`; see DrawingFile::Write. Only what has changed differs. An invalid value is a SaveError even if it applies
// to no entity.
SetResult SetProperties(const std::string& file, const std::vector<Condition>& where,
                        const std::vector<Condition>& values, const std::string& output);

struct Difference {
    enum class Kind { changed, onlyBefore, onlyAfter };
    struct Value {
        std::string property, before, after;
    };
    dxf::RecordName name;
    Kind kind = Kind::changed;
    std::vector<Value> values;
};

// Returns the entities that differ, in model space and in blocks, matched by handle or else by position.
std::vector<Difference> FindDifferences(const std::string& before, const std::string& after);

} // namespace dxfprops
