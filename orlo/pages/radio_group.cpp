// CRadioGroup: focus and arrow keys in a group of radio buttons.

#include "orlo/pages/radio_group.h"

namespace {

LONG_PTR StyleOf(HWND window) {
    return ::GetWindowLongPtrA(window, GWL_STYLE);
}
void SetStyle(HWND window, LONG_PTR style) {
    ::SetWindowLongPtrA(window, GWL_STYLE, style);
}

bool IsRadioButton(HWND window) {
    return (::SendMessageA(window, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

} // namespace

// Returns the window after the group, or null if the buttons are the last windows.
HWND CRadioGroup::WindowAfter() const {
    HWND window = m_hWnd;
    while (window != nullptr && IsRadioButton(window))
        window = ::GetWindow(window, GW_HWNDNEXT);
    return window;
}

bool CRadioGroup::IsAnyChecked() const {
    const HWND after = WindowAfter();
    bool checked = false;
    for (HWND button = m_hWnd; button != after && !checked; button = ::GetWindow(button, GW_HWNDNEXT))
        checked = ::SendMessageA(button, BM_GETCHECK, 0, 0) == BST_CHECKED;
    return checked;
}

void CRadioGroup::Exchange(CDataExchange* pDX, int nIDC) {
    if (pDX->m_bSaveAndValidate) return;
    if (m_hWnd == nullptr && !SubclassDlgItem(nIDC, pDX->m_pDlgWnd)) return;
    if (const HWND after = WindowAfter()) SetStyle(after, StyleOf(after) | WS_GROUP);
    if (!IsAnyChecked()) SetStyle(m_hWnd, StyleOf(m_hWnd) | WS_TABSTOP);
}

// The button is a check box while it takes the focus, because focus does not click check boxes.
LRESULT CRadioGroup::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_SETFOCUS || IsAnyChecked()) return CButton::WindowProc(message, wParam, lParam);
    const LONG_PTR style = StyleOf(m_hWnd);
    SetStyle(m_hWnd, (style & ~static_cast<LONG_PTR>(BS_TYPEMASK)) | BS_CHECKBOX);
    const LRESULT result = CButton::WindowProc(message, wParam, lParam);
    SetStyle(m_hWnd, style);
    return result;
}
