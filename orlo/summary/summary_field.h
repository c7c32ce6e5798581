// Finds and stores a field of a summary by ID and type.
#pragma once

#include <windows.h>

#include "orlo/propset/formats.h"

class CProperty;
class CPropertySet;

namespace orlo {

// Returns the property if it exists with that type, or null.
CProperty* SummaryProperty(CPropertySet* set, DWORD id, DWORD type);

// Adds, replaces or, if value is null, removes a property; for value see CProperty::Set. Returns 0 if there is no
// summary, the property exists with another type, or the value cannot be stored.
int StoreSummaryProperty(CPropertySet* set, DWORD id, DWORD type, void* value);

} // namespace orlo
