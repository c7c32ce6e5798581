// Folds the case of names.
#pragma once

#include <string>
#include <string_view>

namespace dxf {

// Returns the name with A to Z converted to a to z, for lookups.
std::string FoldName(std::string_view name);

} // namespace dxf
