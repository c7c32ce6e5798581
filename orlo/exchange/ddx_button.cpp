// Data exchange with check boxes and radio groups.

#include "orlo/exchange/ddx_button.h"

#include "orlo/binding/indeterminate.h"
#include "orlo/exchange/failure.h"

namespace {

// Returns the next window of the group, or null after the last.
HWND NextInGroup(HWND window) {
    const HWND next = ::GetWindow(window, GW_HWNDNEXT);
    return next && !(::GetWindowLongPtrA(next, GWL_STYLE) & WS_GROUP) ? next : nullptr;
}

} // namespace

int DDX_Check(int, CDataExchange* pDX, int nIDC, int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessageA(control, BM_GETCHECK, 0, 0));
    } else {
        if (value < BST_UNCHECKED || value > BST_INDETERMINATE) value = BST_UNCHECKED;
        ::SendMessageA(control, BM_SETCHECK, static_cast<WPARAM>(value), 0);
    }
    return 1;
}

int DDX_Check(int bReport, CDataExchange* pDX, int nIDC, unsigned short& value) {
    if (!pDX->m_bSaveAndValidate && !IsIndeterminate(value) && value > BST_CHECKED) value = BST_UNCHECKED;
    int state = IsIndeterminate(value) ? BST_INDETERMINATE : value;
    DDX_Check(bReport, pDX, nIDC, state);
    if (pDX->m_bSaveAndValidate)
        value =
            state == BST_INDETERMINATE ? Indeterminate<unsigned short>::Value() : static_cast<unsigned short>(state);
    return 1;
}

int DDX_Radio(int, CDataExchange* pDX, int nIDC, int& value) {
    const bool save = pDX->m_bSaveAndValidate;
    HWND window = pDX->PrepareCtrl(nIDC);
    if (save) value = -1;
    for (int position = 0; window; window = NextInGroup(window)) {
        if (!(::SendMessageA(window, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON)) continue;
        if (!save)
            ::SendMessageA(window, BM_SETCHECK, position == value, 0);
        else if (::SendMessageA(window, BM_GETCHECK, 0, 0))
            value = position;
        ++position;
    }
    return 1;
}

int DDX_Radio(int bReport, CDataExchange* pDX, int nIDC, unsigned short& value) {
    int position = IsIndeterminate(value) ? -1 : value;
    DDX_Radio(bReport, pDX, nIDC, position);
    if (pDX->m_bSaveAndValidate) value = static_cast<unsigned short>(position);
    return 1;
}

int DDX_RadioMap(int bReport, CDataExchange* pDX, unsigned int nIDC, int& value, int* pMap, int nCount) {
    const int id = static_cast<int>(nIDC);
    int position = nCount - 2;
    if (pDX->m_bSaveAndValidate) {
        DDX_Radio(bReport, pDX, id, position);
        if (position < -1 || position > nCount - 2) return FailExchange(bReport, pDX);
        value = pMap[position + 1];
        return 1;
    }
    while (position >= 0 && pMap[position + 1] != value)
        --position;
    return DDX_Radio(bReport, pDX, id, position);
}
