// Typing ahead in a control whose items begin with a key.

#include "orlo/controls/type_ahead.h"

#include <cstring>

#include "orlo/controls/control_item.h"

namespace {

char Folded(char character) {
    ::CharUpperBuffA(&character, 1);
    return character;
}

bool BeginsWithKey(const ControlItems& items, char* text) {
    return items.GetText(0, text, kItemTextSize) && std::strlen(text) >= kKeySize &&
           text[kKeySize - 1] == '\t';
}

int FindInitial(const ControlItems& items, char initial) {
    char text[kItemTextSize];
    const int count = items.Count(), selected = items.Selected();
    for (int step = 1; step <= count; ++step) {
        const int index = (selected + step) % count;
        if (!items.GetText(index, text, sizeof text)) continue;
        ParseControlItem(text);
        if (Folded(text[0]) == initial) return index;
    }
    return -1;
}

} // namespace

bool TypeAhead(HWND control, const ControlItems& items, WPARAM character) {
    char text[kItemTextSize];
    if (character <= ' ' || character > 0xFF || !BeginsWithKey(items, text)) return false;
    const int index = FindInitial(items, Folded(static_cast<char>(character)));
    if (index < 0 || index == items.Selected()) return true;
    items.Select(index);
    // CBN_SELCHANGE and LBN_SELCHANGE are the same.
    ::SendMessageA(::GetParent(control), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(control), CBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(control));
    return true;
}
