// What is odd about a value that was read in full. Used inside the library.
#pragma once

#include <optional>
#include <string>

#include "orlo/propset/inspect/report.h"

namespace orlo {

// `place` names the section, `offset` is where the property's bytes are in the stream.
void FindValueOddities(const ImageProperty& property, std::optional<uint16_t> codePage, uint64_t offset,
                       const std::string& place, Report& report);

} // namespace orlo
