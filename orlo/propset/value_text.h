// Text forms of values other than plain numbers and texts: money, dates, 64-bit integers, class IDs.
//
//   VT_I8        -12                                      the whole range
//   VT_CY        12.5    -0.0001                          at most four decimals
//   VT_DATE      2001-02-03    "2001-02-03 04:05:06"      no time zone, as in the type itself
//   VT_FILETIME  2001-02-03T04:05:06Z    or a number      UTC; a number counts 100 ns, for durations
//   VT_CLSID     {F29F85E0-4FF9-1068-AB91-08002B27B3D9}   braces are optional
//
// Other texts, such as 2001-02-30, 1e3 or 12abc, are rejected.
#pragma once

#include <objidl.h>

#include <cstdint>
#include <string_view>

#include "orlo/export.h"

namespace orlo {

// Stores one element of that type in its stored form (8 bytes, 16 for VT_CLSID). Returns false and leaves element
// unchanged if the type is another one or the text is not valid.
ORLO_API bool ParseValueText(std::string_view text, uint32_t type, uint8_t* element);

} // namespace orlo
