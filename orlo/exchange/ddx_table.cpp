// Data exchange of an entry of a host table.

#include "orlo/exchange/ddx_table.h"

#include <cstdlib>

#include "orlo/controls/combo_control.h"
#include "orlo/controls/control_item.h"
#include "orlo/controls/control_items.h"
#include "orlo/exchange/failure.h"
#include "orlo/exchange/window_text.h"
#include "orlo/host/walk.h"

namespace {

constexpr int kPlainNameSize = 64;
constexpr int kDigits = 8;

// The beginning of an item's text, used to find it. The tab makes all eight digits significant; the comparison ignores
// case.
struct LookupKey {
    explicit LookupKey(unsigned int id) { ::wsprintfA(text, "%08lx\t", id); }
    char text[kDigits + 2];
};

unsigned int KeyOf(const char* digits) {
    return static_cast<unsigned int>(std::strtol(digits, nullptr, 16));
}

// Returns the number at the beginning of the window text.
unsigned int KeyOfWindowText(HWND control) {
    char digits[kDigits + 1] = "";
    ::GetWindowTextA(control, digits, sizeof digits);
    return KeyOf(digits);
}

template <class MakeText>
int FillFromTable(const ControlItems& items, TableStruct* pTable, MakeText makeText) {
    int added = 0;
    for (const uint16_t id : orlo::host::Entries(pTable)) {
        CString text;
        if (makeText(id, text) && items.Add(text) != -1) ++added;
    }
    return added;
}

bool EntryName(TableStruct* pTable, uint16_t id, CString& name) {
    char buffer[kPlainNameSize] = "";
    if (!::TableEntryGetName(pTable, id, buffer, sizeof buffer)) return false;
    name = buffer;
    return true;
}

const char* EntryData(TableStruct* pTable, uint16_t id) {
    return static_cast<const char*>(::TableEntryGetData(pTable, id));
}

} // namespace

int FillComboTable(CComboBox* pCombo, TableStruct* pTable, int bUseData) {
    return FillFromTable(ControlItems::OfCombo(pCombo->m_hWnd), pTable, [=](uint16_t id, CString& text) {
        if (!bUseData) return EntryName(pTable, id, text);
        const char* const data = EntryData(pTable, id);
        text = data;
        return data != nullptr;
    });
}

int FillListBoxTable(CListBox* pList, TableStruct* pTable, unsigned int nFlags) {
    return FillFromTable(ControlItems::OfList(pList->m_hWnd), pTable, [=](uint16_t id, CString& text) {
        if (nFlags & 1) EntryName(pTable, id, text);
        const char* const data = nFlags & 2 ? EntryData(pTable, id) : nullptr;
        if (data) {
            if (!text.IsEmpty()) text += '\t';
            text += data;
        }
        return !text.IsEmpty();
    });
}

int FillComboStringTable(CComboBox* pCombo, unsigned int nIDS, int nCount) {
    CString lines;
    lines.LoadString(nIDS);
    const ControlItems items = ControlItems::OfCombo(pCombo->m_hWnd);
    int added = 0;
    for (int i = 0; i < nCount; ++i) {
        CString line;
        if (!AfxExtractSubString(line, lines, i, '\n')) break;
        if (!line.IsEmpty() && items.Add(line) != -1) ++added;
    }
    return added;
}

int DDX_LBTableIndex(int, CDataExchange* pDX, int nIDC, unsigned int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    const ControlItems items = ControlItems::OfList(control);
    if (pDX->m_bSaveAndValidate) {
        const int index = items.Selected();
        if (index == -1) return 1;
        CString text;
        value = items.GetText(index, text) ? KeyOf(text) : KeyOfWindowText(control);
        return 1;
    }
    const LookupKey key(value);
    if (!items.SelectPrefix(0, key.text)) ::SetWindowTextA(control, key.text);
    return 1;
}

int DDX_CBTableIndex(int, CDataExchange* pDX, int nIDC, unsigned int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        if (::GetWindowTextLengthA(control) > 0) value = KeyOfWindowText(control);
        return 1;
    }
    const LookupKey key(value);
    if (!ControlItems::OfCombo(control).SelectPrefix(-1, key.text)) ::SetWindowTextA(control, key.text);
    return 1;
}

int DDX_CBTableColor(int, CDataExchange* pDX, int nIDC, unsigned long& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        CString text = WindowText(control);
        if (text.IsEmpty()) return 1;
        value = ParseControlItem(text.GetBuffer(0));
        return 1;
    }
    const ControlItems items = ControlItems::OfCombo(control);
    int index = items.Count();
    if (index < 0) return 1;
    CString text;
    while (--index >= 0) {
        if (items.GetText(index, text) && ParseControlItem(text.GetBuffer(0)) == value) break;
    }
    items.Select(index);
    return 1;
}

int DDX_CBTableLookupIndex(int bReport, CDataExchange* pDX, int nIDC, unsigned int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    const CComboControl* const object = ComboControlOf(control);
    TableStruct* const table = object ? object->m_pTable : nullptr;
    if (!table) return FailExchange(bReport, pDX);

    char name[kEntryNameSize] = "";
    if (pDX->m_bSaveAndValidate) {
        if (::GetWindowTextLengthA(control) <= 0) return 1;
        ::GetWindowTextA(control, name, sizeof name);
        int cookie = 0;
        value = ::TableEntryGetIDFirst(table, &cookie, name);
        return 1;
    }
    const ControlItems items = ControlItems::OfCombo(control);
    if (!IsTableIdentifier(value) || !::TableEntryGetName(table, static_cast<uint16_t>(value), name, sizeof name)) {
        items.Select(-1);
        return 1;
    }
    const int index = items.FindExact(name);
    if (index >= 0)
        items.Select(index);
    else
        ::SetWindowTextA(control, name);
    return 1;
}
