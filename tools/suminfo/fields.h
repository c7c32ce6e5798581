// The fields of document summaries: one table for showing, setting and removing.
#pragma once

#include <cstdint>
#include <objidl.h>
#include <string>
#include <string_view>
#include <vector>

#include "orlo/propset/code_page.h"
#include "orlo/propset/formats.h"

namespace suminfo {

using orlo::kCodePageId;
using orlo::kDocumentSummaryFormat;
using orlo::kSummaryFormat;
using orlo::kUserDefinedFormat;
constexpr uint32_t kLocaleId = 0x80000000;

struct Field {
    const GUID& format;
    uint32_t id;
    uint32_t type;    // VT_...; 0 for a field that cannot be set
    const char* name; // as displayed and entered
};

const std::vector<Field>& Fields();
// Return the field with that name. Throw Failure if there is none, or if it cannot be removed or set.
const Field& FieldToRemove(const std::string& name);
const Field& FieldToSet(const std::string& name);
// Return null if there is no field with that name (ignoring case) or ID.
const Field* FieldNamed(std::string_view name);
const Field* FieldOf(const GUID& format, uint32_t id);
// Returns "SummaryInformation", "DocumentSummaryInformation", "UserDefinedProperties", or null.
const char* FormatName(const GUID& format);

} // namespace suminfo
