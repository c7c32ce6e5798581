// Lists what drawings hold, as JSON, without opening a window.
#pragma once

#include <ostream>
#include <string>
#include <vector>

// Writes an array with one object a file: file, acadver, entities (type to count in the ENTITIES section), blocks,
// layers, linetypes, extents and, if something was left out, findings; or file, error, line for one that is refused.
// Paths and output are UTF-8. False if any file was refused.
bool ListDrawings(const std::vector<std::string>& files, std::ostream& out);
