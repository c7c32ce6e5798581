// The text of an item of a table-driven control: eight upper-case hexadecimal digits of an identifier (or a
// color), a tab, the name. Only the name is ever drawn.
//
//   char text[kItemTextSize] = "000000FF\tRed";
//   ParseControlItem(text) == 255, and text is "Red"
//   char plain[] = "Red";
//   ParseControlItem(plain) == 0, and plain is still "Red"
#pragma once

#include <windows.h>

#include "orlo/export.h"
#include "orlo/host/table.h"

constexpr int kKeySize = 9;          // eight digits and the tab, or the NUL
constexpr int kEntryNameSize = 0x80; // names longer than this are cut by the host
constexpr int kItemTextSize = 0x90;  // the longest item text with its NUL

// Splits an item text in place: the number is the result, the name is left in the buffer. A text without
// a tab gives 0 and stays as it is.
ORLO_API unsigned long ParseControlItem(char* item);

// Identifier of the entry of that name in the table of the control in that window; 0 if the window has no
// CComboControl, the control no table, or the table no such name.
ORLO_API unsigned long LookupControlItem(HWND hWnd, const char* name);

// Numbers that are not the identifier of an entry: none, and several.
enum : unsigned int { kEntryNone = 0, kEntryIndeterminate = 0xFFFF };

// Identifiers that can belong to an entry. From kEntryIndeterminate on they are indeterminate, or exceed 16 bits.
constexpr bool IsTableIdentifier(unsigned int id) {
    return id != kEntryNone && id < kEntryIndeterminate;
}

// Identifiers that can be neither found nor shown.
constexpr bool IsNoEntry(unsigned int id) {
    return id == kEntryNone || id == kEntryIndeterminate;
}

// An item text under construction.
class ItemText {
public:
    // Digits and tab of that number; the name is still empty.
    explicit ItemText(DWORD number);

    char* name() { return text_ + kKeySize; }
    const char* name() const { return text_ + kKeySize; }
    const char* c_str() const { return text_; }

private:
    char text_[kItemTextSize];
};

// Calls add(ItemText&) for each entry of the table that has a name, in table order.
template <class Add>
void ForEachTableItem(TableStruct* table, Add add) {
    int cookie = 0;
    for (uint16_t id = ::TableEntryFirst(table, &cookie); id; id = ::TableEntryNext(table, &cookie)) {
        ItemText text(id);
        if (::TableEntryGetName(table, id, text.name(), kEntryNameSize)) add(text);
    }
}
