// Names without regard to case.
#pragma once

#include <string>
#include <string_view>

namespace dxf {

// The name as look-ups compare it: A to Z as a to z.
std::string FoldName(std::string_view name);

} // namespace dxf
