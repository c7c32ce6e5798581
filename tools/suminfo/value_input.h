// Parses values from the command line.
//
//   ParseTyped("int:7")              a VT_I4
//   ParseTyped("date:2001-02-03")    a VT_FILETIME, midnight UTC
//   ParseTyped("int:seven")          throws Failure
#pragma once

#include <string>
#include <string_view>

#include "orlo/propset/inspect/value.h"

namespace suminfo {

// Parses a value of type VT_.... Dates are ISO 8601 in UTC, "2001-02-03" or "2001-02-03T04:05:06Z", or "now".
orlo::Value ParseValue(uint32_t type, const std::string& text);
// Parses a duration, "h:mm:ss" or "h:mm", as a VT_FILETIME.
orlo::Value ParseSpan(const std::string& text);
// Parses "type:value", with a type of TypeNames().
orlo::Value ParseTyped(std::string_view typed);
// Returns "text, int, number, ...", for messages and help.
std::string TypeNames();

} // namespace suminfo
