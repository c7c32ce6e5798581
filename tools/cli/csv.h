// Lines of comma-separated values as in RFC 4180, but terminated by LF.
#pragma once

#include <string>
#include <vector>

namespace cli {

std::string CsvLine(const std::vector<std::string>& values);

} // namespace cli
