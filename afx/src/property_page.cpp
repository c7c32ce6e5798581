// CPropertyPage: a dialog template as a page of a sheet.

#include "dialog_proc.h"
#include "dialog_template.h"
#include "window_link.h"

#include <afxdlgs.h>

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

BEGIN_MESSAGE_MAP(CPropertyPage, CDialog)
ON_WM_CLOSE()
END_MESSAGE_MAP()

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption)
    : CPropertyPage(MAKEINTRESOURCEA(nIDTemplate), nIDCaption) {}

CPropertyPage::CPropertyPage(LPCSTR lpszTemplateName, UINT nIDCaption)
    : CDialog(lpszTemplateName), m_bChanged(FALSE), m_hTemplateModule(nullptr), m_bScrollingCombos(FALSE),
      m_pSheet(nullptr), m_nIDCaption(nIDCaption) {}

CPropertyPage::~CPropertyPage() {
    if (m_pSheet != nullptr) m_pSheet->RemovePage(this);
}

void CPropertyPage::SetModified(BOOL bChanged) {
    m_bChanged = bChanged;
    if (m_pSheet != nullptr) m_pSheet->EnableApplyButton();
}

BOOL CPropertyPage::OnSetActive() {
    return m_hWnd != nullptr || CreatePageWindow();
}

BOOL CPropertyPage::OnKillActive() {
    return UpdateData(TRUE);
}

void CPropertyPage::OnOK() {}

void CPropertyPage::OnCancel() {}

// Does not handle keys of the dialog itself, because the sheet manages the default button and the other pages.
BOOL CPropertyPage::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg);
}

// Escape in a multiline edit control closes its parent; the page forwards it to the sheet.
void CPropertyPage::OnClose() {
    if (m_pSheet != nullptr) m_pSheet->PostMessage(WM_CLOSE);
}

AfxDialogTemplate CPropertyPage::GetTemplate() const {
    if (m_dialogTemplate.empty()) return AfxDialogTemplate(m_lpszTemplateName, m_hTemplateModule);
    HINSTANCE module = m_hTemplateModule != nullptr ? m_hTemplateModule : AfxGetInstanceHandle();
    return AfxDialogTemplate(m_dialogTemplate.data(), m_dialogTemplate.size(), module);
}

CString CPropertyPage::GetTabText() const {
    CString text;
    if (m_nIDCaption != 0) text.LoadString(m_nIDCaption);
    return text.IsEmpty() ? GetTemplate().Title() : text;
}

BOOL CPropertyPage::CreatePageWindow() {
    const AfxDialogTemplate dialog = GetTemplate();
    if (!dialog.IsFound() || m_pSheet == nullptr) return FALSE;
    const std::vector<BYTE> page = dialog.AsPage(m_bScrollingCombos);
    const AfxWindowCreation creation(this);
    ::CreateDialogIndirectParamA(dialog.Module(), reinterpret_cast<LPCDLGTEMPLATEA>(page.data()), m_pSheet->m_hWnd,
                                 AfxDialogProc, 0);
    return m_hWnd != nullptr; // also null if OnInitDialog has destroyed the window
}
