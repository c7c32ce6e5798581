// Finds and stores a field of a summary.

#include "orlo/summary/summary_field.h"

#include <memory>

#include "orlo/propset/property_set.h"

namespace orlo {

CProperty* SummaryProperty(CPropertySet* set, DWORD id, DWORD type) {
    CProperty* property = set ? set->GetProperty(kSummaryFormat, id) : nullptr;
    return property && property->GetType() == type ? property : nullptr;
}

int StoreSummaryProperty(CPropertySet* set, DWORD id, DWORD type, void* value) {
    CPropertySection* section = set ? set->GetSection(kSummaryFormat) : nullptr;
    if (!section) return 0;
    CProperty* property = section->GetProperty(id);
    if (!value) {
        section->Remove(id);
        return 1;
    }
    if (property) return property->GetType() == type ? property->Set(value, type) : 0;
    auto added = std::make_unique<CProperty>(id, value, type);
    if (!added->GetRawValue()) return 0;
    section->AddProperty(added.release());
    return 1;
}

} // namespace orlo
