// The structure check of compound_check.h for a file by its name.
#pragma once

#include "orlo/summary/compound_check.h"

namespace orlo {

// foreign also for a file that can't be read: whoever opens it next hears why.
ORLO_API CompoundState CheckCompoundFile(const wchar_t* path);

} // namespace orlo
