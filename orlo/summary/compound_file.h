// The reader of compound_reader.h for files of the system.
#pragma once

#include "orlo/summary/compound_reader.h"

namespace orlo {

// Over an open file. The handle stays the caller's, open as long as the reader is used.
ORLO_API CompoundReader ReadCompoundFile(void* file);
// By name, whoever else has it open. foreign also for a file that can't be read: whoever opens it next learns why.
CompoundState StateOfCompoundFile(const wchar_t* path);

} // namespace orlo
