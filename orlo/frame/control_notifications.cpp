// Tables of notifications that change a control's value or end an edit.

#include "orlo/frame/control_notifications.h"

#include <algorithm>
#include <iterator>

namespace {

struct Row {
    const char* className;
    unsigned int code;
};

constexpr Row kChanges[] = {
    {"Edit", EN_CHANGE},
    {"Button", BN_CLICKED},
    {"Button", BN_DOUBLECLICKED},
    {"ComboBox", CBN_EDITCHANGE},
    {"ComboBox", CBN_SELCHANGE},
    {"ComboBox", CBN_SELENDOK},
    {"QXComboBox", CBN_EDITCHANGE},
    {"QXComboBox", CBN_SELCHANGE},
    {"QXComboBox", CBN_SELENDOK},
    {"QXListBox", LBN_SELCHANGE},
    {"QXListBox", LBN_DBLCLK},
    {"ListBox", LBN_SELCHANGE},
};

constexpr Row kEditEnds[] = {
    {"Edit", EN_KILLFOCUS},           {"Button", BN_CLICKED},         {"Button", BN_DOUBLECLICKED},
    {"ComboBox", CBN_SELENDOK},       {"ComboBox", CBN_SELENDCANCEL}, {"QXComboBox", CBN_SELENDOK},
    {"QXComboBox", CBN_SELENDCANCEL}, {"QXListBox", LBN_DBLCLK},      {"QXListBox", LBN_SELCANCEL},
    {"ListBox", LBN_SELCHANGE},
};

template <size_t N>
bool Contains(const Row (&rows)[N], const PageNotification& notification) {
    return std::any_of(std::begin(rows), std::end(rows), [&](const Row& row) {
        return row.code == notification.code && ::lstrcmpiA(row.className, notification.className) == 0;
    });
}

bool IsRadioButton(HWND control, const char* className) {
    const LONG_PTR type = ::GetWindowLongPtrA(control, GWL_STYLE) & 0xF;
    return ::lstrcmpiA(className, "Button") == 0 && (type == BS_RADIOBUTTON || type == BS_AUTORADIOBUTTON);
}

} // namespace

PageNotification::PageNotification(HWND control, unsigned int notificationCode) : code(notificationCode) {
    if (::GetClassNameA(control, className, sizeof className) == 0) className[0] = '\0';
}

bool PageNotification::IsOfCombo() const {
    return ::lstrcmpiA(className, "ComboBox") == 0 || ::lstrcmpiA(className, "QXComboBox") == 0;
}

bool PageNotification::IsChange() const {
    return Contains(kChanges, *this);
}

bool PageNotification::IsEditEnd() const {
    return Contains(kEditEnds, *this);
}

unsigned int ChangedControlId(HWND control, unsigned int nID, const char* className) {
    if (!IsRadioButton(control, className)) return nID;
    for (HWND window = control; window != nullptr; window = ::GetWindow(window, GW_HWNDPREV))
        if (::GetWindowLongPtrA(window, GWL_STYLE) & WS_GROUP) return static_cast<unsigned int>(::GetDlgCtrlID(window));
    return nID;
}
