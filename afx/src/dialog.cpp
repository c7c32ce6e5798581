// CDialog: windows from templates, modal and modeless.

#include "dialog_proc.h"
#include "dialog_template.h"
#include "modal.h"
#include "window_link.h"

#include <afxapp.h>
#include <afxdialog.h>

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
ON_COMMAND(IDOK, &CDialog::OnOK)
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

INT_PTR CALLBACK AfxDialogProc(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

CDialog::CDialog() : CDialog(static_cast<LPCSTR>(nullptr)) {}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd) : CDialog(MAKEINTRESOURCEA(nIDTemplate), pParentWnd) {}

CDialog::CDialog(LPCSTR lpszTemplateName, CWnd* pParentWnd)
    : m_lpszTemplateName(lpszTemplateName), m_pParentWnd(pParentWnd) {}

CDialog::~CDialog() = default;

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) {
    return Create(MAKEINTRESOURCEA(nIDTemplate), pParentWnd);
}

BOOL CDialog::Create(LPCSTR lpszTemplateName, CWnd* pParentWnd) {
    m_lpszTemplateName = lpszTemplateName;
    if (pParentWnd == nullptr) pParentWnd = AfxGetMainWnd();
    return CreateFromTemplate(pParentWnd != nullptr ? pParentWnd->m_hWnd : nullptr);
}

BOOL CDialog::CreateFromTemplate(HWND hWndParent) {
    const AfxDialogTemplate dialog(m_lpszTemplateName);
    if (!dialog.IsFound()) return FALSE;
    const AfxWindowCreation creation(this);
    return ::CreateDialogIndirectParamA(dialog.Module(), dialog.Get(), hWndParent, AfxDialogProc, 0) != nullptr;
}

int CDialog::DoModal() {
    return RunModal(m_pParentWnd, [this](HWND owner) {
        if (!CreateFromTemplate(owner)) return false;
        // A dialog that was ended in OnInitDialog is not shown.
        if (IsModal()) ShowWindow(SW_SHOWNORMAL);
        return true;
    });
}

void CDialog::EndDialog(int nResult) {
    CloseModal(nResult);
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM) {
    SendMessageToDescendants(WM_INITIALUPDATE);
    try {
        return OnInitDialog();
    } catch (...) {
        EndDialog(-1); // an incomplete dialog is not shown
        throw;
    }
}

BOOL CDialog::OnInitDialog() {
    if (UpdateData(FALSE)) return TRUE;
    EndDialog(-1);
    return FALSE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE)) EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl) {
    SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), TRUE);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg) || IsDialogMessage(pMsg);
}
