// Lines of comma-separated values, as RFC 4180 has them, but ended by LF.
#pragma once

#include <string>
#include <vector>

namespace cli {

std::string CsvLine(const std::vector<std::string>& values);

} // namespace cli
