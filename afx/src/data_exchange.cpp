// CDataExchange and the framework's own exchange functions.

#include "thread_state.h"

#include <afxapp.h>
#include <afxdialog.h>
#include <afxres.h>

#include <cstdlib>

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd), m_hWndLastControl(nullptr), m_bEditLastControl(FALSE) {}

CDataExchange::~CDataExchange() = default;

void CDataExchange::Keep(std::unique_ptr<CObject> pObject) {
    m_kept.push_back(std::move(pObject));
}

HWND CDataExchange::PrepareCtrl(int nIDC) {
    HWND hWnd = AfxThreadState::Get().items.Find(m_pDlgWnd->m_hWnd, nIDC);
    if (hWnd == nullptr) AfxThrowNotSupportedException();
    m_hWndLastControl = hWnd;
    m_bEditLastControl = FALSE;
    return hWnd;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
    HWND hWnd = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return hWnd;
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_hWndLastControl != nullptr) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl) ::SendMessageA(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

void DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        CWnd::FromHandle(hWnd)->GetWindowText(value);
    } else {
        AfxSetWindowText(hWnd, value);
    }
}

void DDX_Text(CDataExchange* pDX, int nIDC, int& value) {
    CString text;
    if (!pDX->m_bSaveAndValidate) text.Format("%d", value);
    DDX_Text(pDX, nIDC, text);
    if (!pDX->m_bSaveAndValidate) return;
    text.TrimLeft();
    text.TrimRight();
    char* end = nullptr;
    const long number = std::strtol(text, &end, 10);
    if (text.IsEmpty() || *end != '\0') {
        AfxMessageBox(AFX_IDP_PARSE_INT);
        pDX->Fail();
    }
    value = static_cast<int>(number);
}

void DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessageA(hWnd, BM_GETCHECK, 0, 0));
    } else {
        ::SendMessageA(hWnd, BM_SETCHECK, static_cast<WPARAM>(value), 0);
    }
}

void DDX_LBString(CDataExchange* pDX, int nIDC, CString& value) {
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        ::SendMessageA(hWnd, LB_SELECTSTRING, static_cast<WPARAM>(-1),
                       reinterpret_cast<LPARAM>(static_cast<LPCSTR>(value)));
        return;
    }
    value.Empty();
    const LRESULT index = ::SendMessageA(hWnd, LB_GETCURSEL, 0, 0);
    if (index == LB_ERR) return;
    const LRESULT length = ::SendMessageA(hWnd, LB_GETTEXTLEN, static_cast<WPARAM>(index), 0);
    LPSTR buffer = value.GetBufferSetLength(static_cast<int>(length));
    ::SendMessageA(hWnd, LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer));
    value.ReleaseBuffer();
}

void DDX_CBString(CDataExchange* pDX, int nIDC, CString& value) {
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        CWnd::FromHandle(hWnd)->GetWindowText(value);
        return;
    }
    const LRESULT index = ::SendMessageA(hWnd, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                                         reinterpret_cast<LPARAM>(static_cast<LPCSTR>(value)));
    if (index == CB_ERR) AfxSetWindowText(hWnd, value);
}
