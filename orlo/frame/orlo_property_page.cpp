// COrloPropertyPage: closing drop-down lists, and the focus while a page is left.

#include "orlo/frame/orlo_property_page.h"

#include "orlo/controls/combo_control.h"
#include "orlo/win/child_windows.h"

IMPLEMENT_DYNAMIC(COrloPropertyPage, CPropertyPage)

BEGIN_MESSAGE_MAP(COrloPropertyPage, CPropertyPage)
ON_WM_WINDOWPOSCHANGING()
ON_MESSAGE(WM_NEXTDLGCTL, &COrloPropertyPage::OnNextDlgCtl)
END_MESSAGE_MAP()

COrloPropertyPage::COrloPropertyPage(unsigned int nIDTemplate, unsigned int nIDCaption)
    : CPropertyPage(nIDTemplate, nIDCaption), m_children(std::make_unique<ChildWindows>()) {}

COrloPropertyPage::COrloPropertyPage(const char* lpszTemplateName, unsigned int nIDCaption)
    : CPropertyPage(lpszTemplateName, nIDCaption), m_children(std::make_unique<ChildWindows>()) {}

COrloPropertyPage::~COrloPropertyPage() = default;

int COrloPropertyPage::IsModified() {
    return m_bChanged;
}

const char* COrloPropertyPage::GetTemplateName() const {
    return m_lpszTemplateName;
}

void COrloPropertyPage::OnWindowPosChanging(WINDOWPOS*) {
    const std::vector<HWND> children = m_children->Of(m_hWnd); // a copy, because a list that closes may send messages
    for (const HWND child : children)
        if (::IsChild(m_hWnd, child)) ::SendMessageA(child, CB_SHOWDROPDOWN, FALSE, 0);
    Default();
}

BOOL COrloPropertyPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    const BOOL result = CPropertyPage::OnCommand(wParam, lParam);
    if (HIWORD(wParam) == CBN_DROPDOWN) {
        CWnd* control = CWnd::FromHandle(reinterpret_cast<HWND>(lParam));
        if (control != nullptr && control->IsKindOf(RUNTIME_CLASS(CComboControl)))
            static_cast<CComboControl*>(control)->SizeDropDown();
    }
    return result;
}

BOOL COrloPropertyPage::OnKillActive() {
    const HWND focus = ::GetFocus();
    const bool inPage = ::IsChild(m_hWnd, focus);
    if (inPage) ::SetFocus(m_hWnd);
    if (CPropertyPage::OnKillActive()) return TRUE;
    if (inPage) ::SetFocus(focus);
    return FALSE;
}
