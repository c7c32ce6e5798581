// Reads header variables, and the records of the tables: layers, line types, text styles.
#pragma once

#include "drawcore/src/dxf/record_reader.h"

namespace dxf {

// Reads the current value if the variable is used.
void ReadVariable(RecordReader& in, std::string_view variable);

// Reads or skips the current record and advances to the next.
void ReadTableRecord(RecordReader& in);

} // namespace dxf
