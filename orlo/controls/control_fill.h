// Filling a control with a host table: the record that comes with the message, and the scope of one filling.
//
// The host sends the message to a control of the library whenever it likes; the control is emptied and filled
// anew:
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
    TableStruct* pTable; // null empties the control
    UINT_PTR dwValue; // face name (const char*) or size (bits of a float) of the font controls; else not read
    unsigned int nSelected; // identifier of the entry to select, or a colour
};
#pragma pack(pop)

static_assert(offsetof(ControlFillRecord, dwValue) == sizeof(void*));
static_assert(offsetof(ControlFillRecord, nSelected) == 2 * sizeof(void*));
static_assert(sizeof(ControlFillRecord) == 2 * sizeof(void*) + 4);

// One filling of a control: it does not redraw until the end, and measures its rows once. Internal to the
// library.
class ControlFill {
public:
    enum class Items { AsTheyCome, InFinalOrder };

    explicit ControlFill(HWND window, Items items = Items::AsTheyCome);
    ~ControlFill();
    ControlFill(const ControlFill&) = delete;
    ControlFill& operator=(const ControlFill&) = delete;

    // The filling of that window that is under way, null if none is.
    static ControlFill* Of(HWND window);

    bool ItemsInFinalOrder() const { return items_ == Items::InFinalOrder; }
    int TextHeight();

private:
    HWND window_;
    Items items_;
    int textHeight_ = 0; // 0: not yet measured
    ControlFill* outer_;
};

// Height of a row of text in device pixels: GetOwnerDrawFixedTextHeight, asked once in a filling. A list of
// variable row height wants it for every item that is added.
int RowTextHeight(HWND window);
