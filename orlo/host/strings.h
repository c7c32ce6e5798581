// Texts of the host that the library shows.
#pragma once

#include "orlo/host/api.h"

// Copies the text, at most size bytes with the NUL; the number of characters copied, 0 if there is none.
DRAWCORE_API int DrawCoreLoadString(unsigned int id, char* buffer, int size);

constexpr unsigned int kStringByBlock = 0x7052;     // pen style 65533, colour -4
constexpr unsigned int kStringByLayer = 0x7053;     // pen style 65534, colour -3
constexpr unsigned int kStringLastColor = 0x7054;   // colour -5, of a brush: that of the pen
constexpr unsigned int kStringNoBrush = 0x7058;     // brush style 0
constexpr unsigned int kStringPaperScale = 0x7059;  // scale system 2
constexpr unsigned int kStringWorldScale = 0x705A;  // scale system 0
constexpr unsigned int kStringSampleText = 0x705C;  // preview of the Text page; at most 63 characters

// Names of styles that the host keeps for itself, in the order in which the library compares.
constexpr unsigned int kStringsReservedStyles[] = {0x704A, 0x704B, 0x704C, 0x704D, 0x704E, 0x7050, 0x704F, 0x7051};
