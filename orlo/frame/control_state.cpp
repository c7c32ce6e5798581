// Texts and selections of the controls of a page.

#include "orlo/frame/control_state.h"

#include <afxwin.h>

#include <vector>

#include "orlo/controls/control_items.h"

namespace {

LONG_PTR StyleOf(HWND control) {
    return ::GetWindowLongPtrA(control, GWL_STYLE);
}

std::string FieldText(HWND field) {
    CString text;
    CWnd::FromHandle(field)->GetWindowText(text);
    return static_cast<const char*>(text);
}

// Includes the index because texts may be equal, and the text because a list may have been refilled.
std::string ItemState(const ControlItems& items, int index, bool hasTexts) {
    CString text;
    if (hasTexts) items.GetText(index, text);
    return std::to_string(index) + '\t' + static_cast<const char*>(text) + '\n';
}

std::string ComboState(HWND combo) {
    constexpr LONG_PTR kOwnerDrawn = CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE;
    const LONG_PTR style = StyleOf(combo);
    if ((style & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST) return FieldText(combo);
    const ControlItems items = ControlItems::OfCombo(combo);
    return ItemState(items, items.Selected(), !(style & kOwnerDrawn) || style & CBS_HASSTRINGS);
}

std::string ListState(HWND list) {
    constexpr LONG_PTR kOwnerDrawn = LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE;
    const LONG_PTR style = StyleOf(list);
    const bool hasTexts = !(style & kOwnerDrawn) || style & LBS_HASSTRINGS;
    const ControlItems items = ControlItems::OfList(list);
    const LRESULT count = ::SendMessageA(list, LB_GETSELCOUNT, 0, 0);
    if (count == LB_ERR) return ItemState(items, items.Selected(), hasTexts); // a list with single selection
    std::vector<int> selected(static_cast<size_t>(count));
    ::SendMessageA(list, LB_GETSELITEMS, selected.size(), reinterpret_cast<LPARAM>(selected.data()));
    std::string state;
    for (const int index : selected)
        state += ItemState(items, index, hasTexts);
    return state;
}

std::string CheckState(HWND button) {
    return std::to_string(::SendMessageA(button, BM_GETCHECK, 0, 0));
}

std::string GroupState(HWND button) {
    std::string state;
    do {
        if (::SendMessageA(button, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) state += CheckState(button);
        button = ::GetWindow(button, GW_HWNDNEXT);
    } while (button != nullptr && !(StyleOf(button) & WS_GROUP));
    return state;
}

std::optional<std::string> ButtonState(HWND button) {
    switch (StyleOf(button) & BS_TYPEMASK) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE:
        return CheckState(button);
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
        return GroupState(button);
    default:
        return std::nullopt;
    }
}

constexpr struct {
    const char* className;
    std::optional<std::string> (*state)(HWND);
} kClasses[] = {
    {"Edit", [](HWND control) { return std::optional(FieldText(control)); }},
    {"ComboBox", [](HWND control) { return std::optional(ComboState(control)); }},
    {"QXComboBox", [](HWND control) { return std::optional(ComboState(control)); }},
    {"ListBox", [](HWND control) { return std::optional(ListState(control)); }},
    {"QXListBox", [](HWND control) { return std::optional(ListState(control)); }},
    {"Button", ButtonState},
};

} // namespace

std::optional<std::string> ShownState(HWND control) {
    char className[100] = "";
    ::GetClassNameA(control, className, sizeof className);
    for (const auto& known : kClasses)
        if (::lstrcmpiA(known.className, className) == 0) return known.state(control);
    return std::nullopt;
}
