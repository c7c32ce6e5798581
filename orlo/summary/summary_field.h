// One field of a summary: found by its ID and type, stored by the rule that all fields share.
#pragma once

#include <windows.h>

#include "orlo/propset/formats.h"

class CProperty;
class CPropertySet;

namespace orlo {

// The property if it exists with that type, or null.
CProperty* SummaryProperty(CPropertySet* set, DWORD id, DWORD type);

// Adds, replaces or (value null) removes a property; value as CProperty::Set takes it. 1, or 0 if there is no
// summary, the property exists with another type, or the value can't be stored.
int StoreSummaryProperty(CPropertySet* set, DWORD id, DWORD type, void* value);

} // namespace orlo
