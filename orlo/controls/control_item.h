// The text of an item of a table-driven control: eight uppercase hexadecimal digits (an identifier or a color), a tab,
// and the name. Only the name is drawn.
//
//   char text[kItemTextSize] = "000000FF\tRed";
//   ParseControlItem(text) == 255, and text is "Red"
//   char plain[] = "Red";
//   ParseControlItem(plain) == 0, and plain is still "Red"
#pragma once

#include <windows.h>

#include "orlo/export.h"
#include "orlo/host/walk.h"

constexpr int kKeySize = 9;          // eight digits and the tab, or the NUL
constexpr int kEntryNameSize = 0x80; // the host truncates longer names
constexpr int kItemTextSize = 0x90;  // longest item text including the NUL
constexpr int kHostTextSize = 0x7F;  // longer texts of the host are truncated

// Splits an item text in place: returns the number and leaves the name in the buffer. Returns 0 and changes nothing if
// the text has no tab.
ORLO_API unsigned long ParseControlItem(char* item);

// Returns the identifier of the named entry in the table of a control, or 0 if the window has no CComboControl, the
// control has no table, or the table has no such entry.
ORLO_API unsigned long LookupControlItem(HWND hWnd, const char* name);

// Numbers that are not identifiers of entries: no entry, and multiple entries.
enum : unsigned int { kEntryNone = 0, kEntryIndeterminate = 0xFFFF };

// Returns whether the identifier can belong to an entry. Values from kEntryIndeterminate on are indeterminate or exceed
// 16 bits.
constexpr bool IsTableIdentifier(unsigned int id) {
    return id != kEntryNone && id < kEntryIndeterminate;
}

// Returns whether the identifier can be neither found nor shown.
constexpr bool IsNoEntry(unsigned int id) {
    return id == kEntryNone || id == kEntryIndeterminate;
}

// Builds an item text.
class ItemText {
public:
    // Starts with the digits and the tab of that number and an empty name.
    explicit ItemText(DWORD number);

    char* name() { return text_ + kKeySize; }
    const char* name() const { return text_ + kKeySize; }
    const char* c_str() const { return text_; }

private:
    char text_[kItemTextSize];
};

// Returns an item for a number that is not an entry, named by a string of the host.
ItemText HostTextItem(DWORD number, unsigned int stringID);

// Calls add(ItemText&) for each named entry of the table, in table order.
template <class Add>
void ForEachTableItem(TableStruct* table, Add add) {
    for (const uint16_t id : orlo::host::Entries(table)) {
        ItemText text(id);
        if (::TableEntryGetName(table, id, text.name(), kEntryNameSize)) add(text);
    }
}
