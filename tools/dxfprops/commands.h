// What the commands do with one drawing. Texts are UTF-8; ReadError and SaveError say why a drawing failed.
#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tools/dxfprops/drawing_file.h"

namespace dxfprops {

struct EntityProperties {
    dxf::RecordName name;
    std::vector<std::pair<std::string, std::string>> values; // by the names of properties
};

struct Listing {
    std::vector<EntityProperties> entities;
    std::set<std::string> kinds; // if there are none: what there is in their place
};

// The properties of the entities that meet the conditions; show: these alone, or with none all that each has.
Listing ListProperties(const std::string& file, const std::vector<Condition>& where,
                       const std::vector<std::string>& show);

struct SetResult {
    size_t matched = 0, changed = 0;
    std::set<std::string> kinds;    // if none matched: what there is in their place
    std::vector<std::string> notes; // what other programs will not show
};

// Sets properties of the entities that meet the conditions, where these have them, and writes the drawing into
// `output`, as DrawingFile::Write does: only what has changed differs. A value that is none of its property is a
// SaveError even if no entity takes it.
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

// The entities that differ, of model space and of blocks: of the same handle, or else at the same place.
std::vector<Difference> FindDifferences(const std::string& before, const std::string& after);

} // namespace dxfprops
