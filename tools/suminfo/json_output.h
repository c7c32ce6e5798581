// Property sets as JSON; docs/suminfo.md lists keys and forms.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "document.h"

namespace suminfo {

using Json = nlohmann::ordered_json;

// One stream: stream, size, byte_order, version, os_version, clsid, section_count, irregularities, damage, sections.
Json StreamJson(const NamedStream& stream);

} // namespace suminfo
