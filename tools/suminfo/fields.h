// The fields that property sets of documents are known by: one table for showing, setting and removing.
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
