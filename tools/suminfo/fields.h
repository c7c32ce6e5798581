// The fields that property sets of documents are known by: one table for showing, setting and removing.
#pragma once

#include <cstdint>
#include <objidl.h>
#include <string>
#include <string_view>
#include <vector>

#include "orlo/propset/code_page.h"

namespace suminfo {

extern const GUID kSummaryFormat;         // {F29F85E0-4FF9-1068-AB91-08002B27B3D9}
extern const GUID kDocumentSummaryFormat; // {D5CDD502-2E9C-101B-9397-08002B2CF9AE}
extern const GUID kUserDefinedFormat;     // {D5CDD505-2E9C-101B-9397-08002B2CF9AE}

using orlo::kCodePageId;
constexpr uint32_t kLocaleId = 0x80000000;

struct Field {
    const GUID& format;
    uint32_t id;
    uint32_t type;    // VT_...; 0 for one that can't be set
    const char* name; // as it is shown and typed
};

const std::vector<Field>& Fields();
// The field of that name; Failure if there isn't one that can be removed, or set.
const Field& FieldToRemove(const std::string& name);
const Field& FieldToSet(const std::string& name);
// Null if no field has that name (in any case), or no field that ID.
const Field* FieldNamed(std::string_view name);
const Field* FieldOf(const GUID& format, uint32_t id);
// "SummaryInformation", "DocumentSummaryInformation", "UserDefinedProperties", or null.
const char* FormatName(const GUID& format);

} // namespace suminfo
