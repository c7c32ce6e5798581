// The system's controls: creation and owner drawing.

#include <afxcmn.h>
#include <afxctl.h>

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)
IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

namespace {

void InitControlClasses(DWORD classes) {
    const INITCOMMONCONTROLSEX init = {sizeof(INITCOMMONCONTROLSEX), classes};
    ::InitCommonControlsEx(&init);
}

// Converts owner-draw messages to calls of the virtual functions of a list box or combo box.
template <class Control>
BOOL CallOwnerDraw(Control* control, UINT message, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_DRAWITEM:
        control->DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    case WM_MEASUREITEM:
        control->MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        break;
    case WM_COMPAREITEM:
        *pResult = control->CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_DELETEITEM:
        control->DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        break;
    default:
        return FALSE;
    }
    *pResult = TRUE;
    return TRUE;
}

// Copies the text of an item. The messages for length and text are those of the control.
void GetItemText(HWND hWnd, UINT lengthMessage, UINT textMessage, int index, CString& text) {
    text.Empty();
    const LRESULT length = ::SendMessageA(hWnd, lengthMessage, static_cast<WPARAM>(index), 0);
    if (length <= 0) return;
    LPSTR buffer = text.GetBufferSetLength(static_cast<int>(length));
    ::SendMessageA(hWnd, textMessage, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer));
    text.ReleaseBuffer();
}

} // namespace

CStatic::CStatic() = default;
CStatic::~CStatic() = default;
BOOL CStatic::Create(LPCSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("STATIC", lpszText, dwStyle, rect, pParentWnd, nID);
}

CButton::CButton() = default;
CButton::~CButton() = default;
BOOL CButton::Create(LPCSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("BUTTON", lpszCaption, dwStyle, rect, pParentWnd, nID);
}

CEdit::CEdit() = default;
CEdit::~CEdit() = default;
BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("EDIT", nullptr, dwStyle, rect, pParentWnd, nID);
}

CListBox::CListBox() = default;
CListBox::~CListBox() = default;
BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("LISTBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}
void CListBox::GetText(int nIndex, CString& rString) const {
    GetItemText(m_hWnd, LB_GETTEXTLEN, LB_GETTEXT, nIndex, rString);
}
void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}
void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
int CListBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}
void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}
BOOL CListBox::OnChildNotify(UINT message, WPARAM, LPARAM lParam, LRESULT* pResult) {
    return CallOwnerDraw(this, message, lParam, pResult);
}

BEGIN_MESSAGE_MAP(CComboBox, CWnd)
ON_WM_MEASUREITEM()
END_MESSAGE_MAP()

CComboBox::CComboBox() = default;
CComboBox::~CComboBox() = default;
BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create("COMBOBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}
void CComboBox::GetLBText(int nIndex, CString& rString) const {
    GetItemText(m_hWnd, CB_GETLBTEXTLEN, CB_GETLBTEXT, nIndex, rString);
}
void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}
void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
void CComboBox::OnMeasureItem(int, LPMEASUREITEMSTRUCT) {
    Default();
}
int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}
void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}
BOOL CComboBox::OnChildNotify(UINT message, WPARAM, LPARAM lParam, LRESULT* pResult) {
    return CallOwnerDraw(this, message, lParam, pResult);
}

CTabCtrl::CTabCtrl() = default;
CTabCtrl::~CTabCtrl() = default;
BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    InitControlClasses(ICC_TAB_CLASSES);
    return CWnd::Create(WC_TABCONTROLA, nullptr, dwStyle, rect, pParentWnd, nID);
}
int CTabCtrl::InsertItem(int nItem, LPCSTR lpszItem) {
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<LPSTR>(lpszItem); // not modified by this message
    return static_cast<int>(SendMessage(TCM_INSERTITEMA, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&item)));
}

CStatusBarCtrl::CStatusBarCtrl() = default;
CStatusBarCtrl::~CStatusBarCtrl() = default;
BOOL CStatusBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    InitControlClasses(ICC_BAR_CLASSES);
    return CWnd::Create(STATUSCLASSNAMEA, nullptr, dwStyle, rect, pParentWnd, nID);
}

CProgressCtrl::CProgressCtrl() = default;
CProgressCtrl::~CProgressCtrl() = default;
BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    InitControlClasses(ICC_PROGRESS_CLASS);
    return CWnd::Create(PROGRESS_CLASSA, nullptr, dwStyle, rect, pParentWnd, nID);
}
