// The message and the record that fill a control with a host table.
//
// The host can send the message to a control of the library at any time. The control is emptied and filled again:
//
//   ControlFillRecord fill = {layers, 0, currentLayer};
//   SendMessageA(control, kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
//
// A null table empties the control. The control keeps a pointer to the table for drawing, so the host must send a null
// table before it closes the drawing that the table belongs to.
#pragma once

#include <cstddef>
#include <windows.h>

#include "orlo/host/records.h"

constexpr UINT kFillMessage = 0x4BC; // lParam: const ControlFillRecord*

#pragma pack(push, 4)
struct ControlFillRecord {
    TableStruct* pTable;    // null to empty the control
    UINT_PTR dwValue;       // for font controls: face name (const char*) or size (bits of a float); otherwise ignored
    unsigned int nSelected; // identifier of the entry to select, or a color
};
#pragma pack(pop)

static_assert(offsetof(ControlFillRecord, dwValue) == sizeof(void*));
static_assert(offsetof(ControlFillRecord, nSelected) == 2 * sizeof(void*));
static_assert(sizeof(ControlFillRecord) == 2 * sizeof(void*) + 4);
