// Reports irregularities of a complete value. Internal to the library.
#pragma once

#include <optional>
#include <string>

#include "orlo/propset/inspect/report.h"

namespace orlo {

// `place` names the section; `offset` is the offset of the property's bytes in the stream.
void CheckValue(const ImageProperty& property, std::optional<uint16_t> codePage, uint64_t offset,
                const std::string& place, Report& report);

} // namespace orlo
