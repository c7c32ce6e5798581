// Property sets as JSON; docs/suminfo.md lists keys and formats.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "document.h"

namespace suminfo {

using Json = nlohmann::ordered_json;

// Returns one stream: stream, size, byte_order, version, os_version, clsid, section_count, irregularities, damage,
// sections.
Json StreamJson(const NamedStream& stream);

} // namespace suminfo
