// Text forms of values that are neither plain numbers nor texts: money, dates, long numbers, class IDs.
//
//   VT_I8        -12                                      the whole range
//   VT_CY        12.5    -0.0001                          at most four decimals
//   VT_DATE      2001-02-03    "2001-02-03 04:05:06"      no time zone, as the type has none
//   VT_FILETIME  2001-02-03T04:05:06Z    or a number      UTC; a number counts 100 ns, as spans of time are
//   VT_CLSID     {F29F85E0-4FF9-1068-AB91-08002B27B3D9}   braces may be left out
//
//   2001-02-30, 1e3 or 12abc are none of them: refused, the output keeps its value.
#pragma once

#include <objidl.h>

#include <cstdint>
#include <string_view>

#include "orlo/export.h"

namespace orlo {

// One element of that type, as stored on a stream (8 bytes, 16 for VT_CLSID). False: another type, or no
// such text.
ORLO_API bool ParseValueText(std::string_view text, uint32_t type, uint8_t* element);

} // namespace orlo
