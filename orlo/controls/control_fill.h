// Filling a control with a host table: the message and its record.
//
// The host sends the message to a control of the library at any time; the control is emptied and filled
// again:
//
//   ControlFillRecord fill = {layers, 0, currentLayer};
//   SendMessageA(control, kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
//
// A null table empties the control. The host sends one before it closes the drawing that the table belongs
// to, since the control keeps the table's address to draw from it.
#pragma once

#include <cstddef>
#include <windows.h>

#include "orlo/host/records.h"

constexpr UINT kFillMessage = 0x4BC; // lParam: const ControlFillRecord*

#pragma pack(push, 4)
struct ControlFillRecord {
    TableStruct* pTable;    // null empties the control
    UINT_PTR dwValue;       // face name (const char*) or size (bits of a float) of the font controls; else not read
    unsigned int nSelected; // identifier of the entry to select, or a color
};
#pragma pack(pop)

static_assert(offsetof(ControlFillRecord, dwValue) == sizeof(void*));
static_assert(offsetof(ControlFillRecord, nSelected) == 2 * sizeof(void*));
static_assert(sizeof(ControlFillRecord) == 2 * sizeof(void*) + 4);
