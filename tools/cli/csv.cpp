// Quotes values that need it.

#include "tools/cli/csv.h"

namespace cli {

std::string CsvLine(const std::vector<std::string>& values) {
    std::string line;
    for (const std::string& value : values) {
        if (&value != &values.front()) line += ',';
        if (value.find_first_of(",\"\r\n") == std::string::npos) {
            line += value;
            continue;
        }
        line += '"';
        for (const char c : value)
            line += c == '"' ? std::string("\"\"") : std::string(1, c);
        line += '"';
    }
    return line + "\n";
}

} // namespace cli
