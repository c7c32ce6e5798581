// Reads header variables and the records of the tables: layers, line types, text styles.
#pragma once

#include "drawcore/src/dxf/record_reader.h"

namespace dxf {

// Takes the value at which the reader is, if the header keeps that variable.
void ReadVariable(RecordReader& in, std::string_view variable);

// Reads the record at which the reader is, or passes over it, and goes to the next one.
void ReadTableRecord(RecordReader& in);

} // namespace dxf
