// The text of an item of a table-driven control.

#include "orlo/controls/control_item.h"

#include <cstdlib>
#include <cstring>

#include "orlo/binding/fuzzy.h"
#include "orlo/controls/combo_control.h"
#include "orlo/host/strings.h"

unsigned long ParseControlItem(char* item) {
    char* const tab = std::strchr(item, '\t');
    if (!tab) return 0;
    *tab = '\0';
    const unsigned long number = std::strtoul(item, nullptr, 16);
    std::memmove(item, tab + 1, std::strlen(tab + 1) + 1);
    return number;
}

unsigned long LookupControlItem(HWND hWnd, const char* name) {
    const CComboControl* const control = ComboControlOf(hWnd);
    if (!control || !control->m_pTable) return 0;
    int cookie = 0;
    return ::TableEntryGetIDFirst(control->m_pTable, &cookie, name);
}

ItemText::ItemText(DWORD number) {
    DWord_to_Hex(number, text_);
    text_[kKeySize - 1] = '\t';
    text_[kKeySize] = '\0';
}

ItemText HostTextItem(DWORD number, unsigned int stringID) {
    ItemText text(number);
    ::DrawCoreLoadString(stringID, text.name(), kHostTextSize);
    return text;
}
