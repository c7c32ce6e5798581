// Writes small DXF texts for tests.
#pragma once

#include <string>

// Converts "0|LINE|8|walls" to DXF tags, one field per line.
inline std::string Tags(std::string fields) {
    for (char& c : fields)
        if (c == '|') c = '\n';
    return fields.empty() ? fields : fields + "\n";
}

inline std::string Section(const std::string& name, const std::string& fields) {
    return Tags("0|SECTION|2|" + name) + Tags(fields) + Tags("0|ENDSEC");
}

// Returns a drawing with the entities and the blocks that they use.
inline std::string Drawing(const std::string& entities, const std::string& blocks = "") {
    return Section("BLOCKS", blocks) + Section("ENTITIES", entities) + Tags("0|EOF");
}
