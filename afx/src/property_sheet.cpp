// CPropertySheet: creation, the list of pages, the active page, and handling of commands.

#include "dialog_proc.h"
#include "dialog_template.h"
#include "guarded_call.h"
#include "modal.h"
#include "window_link.h"

#include <afxapp.h>
#include <afxdlgs.h>
#include <afxres.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
ON_WM_CREATE()
ON_WM_PAINT()
ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
ON_COMMAND(IDOK, &CPropertySheet::OnOK)
ON_COMMAND(IDCANCEL, &CPropertySheet::OnCancel)
ON_COMMAND(ID_APPLY_NOW, &CPropertySheet::OnApply)
ON_COMMAND(ID_HELP, &CPropertySheet::OnHelp)
END_MESSAGE_MAP()

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(static_cast<LPCSTR>(nullptr), pParentWnd, iSelectPage) {
    m_strCaption.LoadString(nIDCaption);
}

CPropertySheet::CPropertySheet(LPCSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : m_cxButtonGap(0), m_bHasApply(TRUE), m_bModeless(FALSE), m_bStacked(FALSE),
      m_nCurPage(static_cast<int>(iSelectPage)), m_strCaption(pszCaption), m_pParentWnd(pParentWnd) {}

CPropertySheet::~CPropertySheet() {
    for (CPropertyPage* page : m_pages)
        page->m_pSheet = nullptr;
}

// ---- Creation

int CPropertySheet::DoModal() {
    m_bModeless = FALSE;
    return RunModal(m_pParentWnd, [this](HWND owner) {
        const DWORD style = WS_SYSMENU | WS_POPUP | WS_CAPTION | DS_MODALFRAME;
        if (!CreateSheetWindow(owner, style, WS_EX_DLGMODALFRAME)) return false;
        // A sheet that was ended during its creation is not shown.
        if (IsModal()) Open();
        return true;
    });
}

BOOL CPropertySheet::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle) {
    m_bModeless = TRUE;
    if (pParentWnd == nullptr) pParentWnd = m_pParentWnd != nullptr ? m_pParentWnd : AfxGetMainWnd();
    HWND parent = pParentWnd != nullptr ? pParentWnd->m_hWnd : nullptr;
    if (!CreateSheetWindow(parent, dwStyle & ~WS_VISIBLE, dwExStyle)) return FALSE;
    if ((dwStyle & WS_VISIBLE) != 0) Open();
    return TRUE;
}

BOOL CPropertySheet::CreateSheetWindow(HWND hWndParent, DWORD dwStyle, DWORD dwExStyle) {
    // An empty dialog, for the keyboard interface, default button and appearance of dialogs.
    struct {
        DLGTEMPLATE head;
        WORD menu, windowClass, title;
    } sheet = {};
    sheet.head.style = dwStyle;
    sheet.head.dwExtendedStyle = dwExStyle | WS_EX_CONTROLPARENT;
    const AfxWindowCreation creation(this);
    return ::CreateDialogIndirectParamA(AfxGetInstanceHandle(), &sheet.head, hWndParent, AfxDialogProc, 0) != nullptr;
}

// Shows the sheet once it is complete, and sets the focus to the active page.
void CPropertySheet::Open() {
    ShowWindow(SW_SHOWNORMAL);
    FocusActivePage();
}

void CPropertySheet::EndDialog(int nEndID) {
    CloseModal(nEndID);
}

bool CPropertySheet::BeginCreate() {
    if (Default() == -1 || m_pages.empty()) return false;
    SetWindowText(m_strCaption);
    m_nCurPage = std::clamp(m_nCurPage, 0, GetPageCount() - 1);
    return true;
}

int CPropertySheet::OnCreate(LPCREATESTRUCTA) {
    if (!BeginCreate()) return -1;
    const LOGFONTA font = GetActivePage()->GetTemplate().Font();
    m_font.DeleteObject();
    m_font.CreateFontIndirect(&font);
    if (!m_bModeless && !CreateButtons()) return -1;
    const DWORD rows = m_bStacked ? TCS_MULTILINE : TCS_SINGLELINE;
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_GROUP | WS_CLIPSIBLINGS | rows;
    // As wide as the screen, because a tab control that is too narrow for its tabs creates a scroll control.
    const CRect initial(0, 0, ::GetSystemMetrics(SM_CXSCREEN), 0);
    if (!CreateTabRow(style, initial, AFX_IDC_TAB_CONTROL)) return -1;
    if (!ShowFirstPage(CRect())) return -1;
    MeasureUnits();
    return 0;
}

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM) {
    CRect client;
    GetClientRect(&client);
    if (client.IsRectEmpty()) LayOut();
    return FALSE; // the focus is set when the page is activated
}

// ---- Pages

void CPropertySheet::AddPage(CPropertyPage* pPage) {
    ASSERT(pPage->m_pSheet == nullptr);
    m_pages.push_back(pPage);
    pPage->m_pSheet = this;
    if (m_tabRow.m_hWnd != nullptr) m_tabRow.InsertItem(GetPageCount() - 1, pPage->GetTabText());
}

void CPropertySheet::RemovePage(CPropertyPage* pPage) {
    RemovePage(GetPageIndex(pPage));
}

void CPropertySheet::RemovePage(int nPage) {
    if (nPage < 0 || nPage >= GetPageCount()) return;
    CPropertyPage* page = GetPage(nPage);
    const CRect place = ActivePlace();
    m_pages.erase(m_pages.begin() + nPage);
    page->m_pSheet = nullptr;
    if (m_tabRow.m_hWnd != nullptr) m_tabRow.DeleteItem(nPage);
    const bool wasActive = nPage == m_nCurPage;
    if (nPage < m_nCurPage || m_nCurPage == GetPageCount()) --m_nCurPage;
    if (wasActive && m_hWnd != nullptr) ShowFirstPage(place);
    page->DestroyWindow();
}

int CPropertySheet::GetPageIndex(const CPropertyPage* pPage) const {
    const auto found = std::find(m_pages.begin(), m_pages.end(), pPage);
    return found != m_pages.end() ? static_cast<int>(found - m_pages.begin()) : -1;
}

CPropertyPage* CPropertySheet::GetActivePage() const {
    return m_nCurPage >= 0 && m_nCurPage < GetPageCount() ? GetPage(m_nCurPage) : nullptr;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* pPage) {
    return SetActivePage(GetPageIndex(pPage));
}

BOOL CPropertySheet::SetActivePage(int nPage) {
    if (nPage < 0 || nPage >= GetPageCount()) return FALSE;
    if (m_hWnd == nullptr) {
        m_nCurPage = nPage;
        return TRUE;
    }
    return LeaveFor(nPage) && ActivatePage(nPage);
}

namespace {

class PageChange {
public:
    explicit PageChange(int& count) : m_count(count) { ++m_count; }
    ~PageChange() { --m_count; }
    PageChange(const PageChange&) = delete;
    PageChange& operator=(const PageChange&) = delete;

private:
    int& m_count;
};

} // namespace

// Returns whether the active page can be left for that one (-1: any other page). A page without a window has nothing to
// save.
bool CPropertySheet::LeaveFor(int nPage) {
    CPropertyPage* active = GetActivePage();
    if (nPage == m_nCurPage || active == nullptr || active->m_hWnd == nullptr) return true;
    const PageChange change(m_nPageChanges);
    return AfxGuardedCall([=] { return active->OnKillActive() != FALSE; });
}

// Shows the given page after the active page, if any, has been left. If the new page cannot be shown, the old one stays
// active and visible.
bool CPropertySheet::ActivatePage(int nPage) {
    const PageChange change(m_nPageChanges);
    const int before = m_nCurPage;
    CPropertyPage* page = GetPage(nPage);
    CPropertyPage* old = GetActivePage();
    if (nPage == before && page->m_hWnd != nullptr && (page->GetStyle() & WS_VISIBLE) != 0) return true;
    const CRect place = ActivePlace();
    const bool hadFocus = HasFocus(old);
    if (!ShowPage(nPage, place)) {
        m_nCurPage = before;
        if (old != page && old != nullptr && old->m_hWnd != nullptr)
            AfxGuardedCall([=] { return old->OnSetActive() != FALSE; });
        if (m_tabRow.m_hWnd != nullptr) m_tabRow.SetCurSel(before);
        return false;
    }
    if (hadFocus) FocusActivePage();
    if (old != page && old != nullptr && old->m_hWnd != nullptr) old->ShowWindow(SW_HIDE);
    return true;
}

// Shows the current page or, if it cannot be shown, the first one after it that can.
bool CPropertySheet::ShowFirstPage(const CRect& place) {
    const int first = m_nCurPage;
    for (int i = 0; i < GetPageCount(); ++i) {
        if (ShowPage((first + i) % GetPageCount(), place)) return true;
    }
    m_nCurPage = first;
    return false;
}

// Returns false if the page cannot be activated; m_nCurPage is then that page, and the caller restores it.
bool CPropertySheet::ShowPage(int nPage, const CRect& before) {
    CPropertyPage* page = GetPage(nPage);
    m_nCurPage = nPage;
    if (!AfxGuardedCall([=] { return page->OnSetActive() != FALSE; })) return false;
    // Before the buttons in tab order.
    const CRect place = GetPagePlace(*page, before);
    const UINT keep = place.IsRectEmpty() ? SWP_NOMOVE | SWP_NOSIZE : 0;
    ::SetWindowPos(page->m_hWnd, HWND_TOP, place.left, place.top, place.Width(), place.Height(),
                   keep | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    if (m_tabRow.m_hWnd != nullptr) m_tabRow.SetCurSel(nPage);
    return true;
}

CRect CPropertySheet::GetPagePlace(const CPropertyPage&, const CRect& before) const {
    return before;
}

CRect CPropertySheet::ActivePlace() const {
    CRect place;
    const CPropertyPage* page = GetActivePage();
    if (page != nullptr && page->m_hWnd != nullptr) {
        page->GetWindowRect(&place);
        ScreenToClient(&place);
    }
    return place;
}

bool CPropertySheet::HasFocus(const CPropertyPage* page) const {
    HWND focus = ::GetFocus();
    return page != nullptr && page->m_hWnd != nullptr && focus != nullptr &&
           (focus == page->m_hWnd || ::IsChild(page->m_hWnd, focus));
}

static bool IsUsable(HWND control) {
    return (::GetWindowLongPtrA(control, GWL_STYLE) & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
}

void CPropertySheet::FocusActivePage() {
    const CPropertyPage* page = GetActivePage();
    if (page == nullptr || page->m_hWnd == nullptr) return;
    HWND first = ::GetNextDlgTabItem(page->m_hWnd, nullptr, FALSE);
    const bool acceptsFocus = first != nullptr && (::GetWindowLongPtrA(first, GWL_STYLE) & WS_TABSTOP) != 0;
    // If no control of the page accepts the focus, it goes to the tabs, the default button or, if that is disabled or
    // hidden, the control after it; in the previous page, now hidden, it would still receive keys.
    if (!acceptsFocus) {
        const bool tabs = m_tabRow.m_hWnd != nullptr && m_tabRow.IsWindowVisible();
        first = tabs ? m_tabRow.m_hWnd : ::GetDlgItem(m_hWnd, LOWORD(SendMessage(DM_GETDEFID)));
        if (first != nullptr && !IsUsable(first)) first = ::GetNextDlgTabItem(m_hWnd, first, FALSE);
    }
    if (first != nullptr && first != ::GetFocus()) {
        SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
    }
}

// ---- User input

void CPropertySheet::OnOK() {
    CPropertyPage* page = GetActivePage();
    if (page == nullptr || !LeaveFor(-1)) return;
    page->OnOK();
    if (!m_bModeless) EndDialog(IDOK);
}

void CPropertySheet::OnCancel() {
    for (CPropertyPage* page : m_pages) {
        if (page->m_hWnd != nullptr) page->OnCancel();
    }
    EndDialog(IDCANCEL);
}

void CPropertySheet::OnApply() {
    CPropertyPage* page = GetActivePage();
    if (page == nullptr || !page->OnKillActive()) return;
    page->OnOK();
    for (CPropertyPage* each : m_pages)
        each->m_bChanged = FALSE;
    EnableApplyButton();
}

void CPropertySheet::EnableApplyButton() {
    HWND apply = m_hWnd != nullptr ? ::GetDlgItem(m_hWnd, ID_APPLY_NOW) : nullptr;
    if (apply == nullptr) return;
    const bool changed =
        std::any_of(m_pages.begin(), m_pages.end(), [](const CPropertyPage* page) { return page->m_bChanged; });
    if (changed != (::IsWindowEnabled(apply) != 0)) ::EnableWindow(apply, changed);
}

BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam) {
    // The dialog manager sends the command of a page's button to the sheet if Return was pressed.
    HWND parent = lParam != 0 ? ::GetParent(reinterpret_cast<HWND>(lParam)) : nullptr;
    if (parent != nullptr && parent != m_hWnd && ::IsChild(m_hWnd, parent)) {
        ::SendMessageA(parent, WM_COMMAND, wParam, lParam);
        return TRUE;
    }
    return CWnd::OnCommand(wParam, lParam);
}

BOOL CPropertySheet::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    if (header->hwndFrom != m_tabRow.m_hWnd) return CWnd::OnNotify(wParam, lParam, pResult);
    if (header->code == static_cast<UINT>(TCN_SELCHANGING)) {
        *pResult = !LeaveFor(-1); // TRUE prevents the selection
        // Wine selects the next tab anyway if a key was pressed; this restores the selection.
        if (*pResult) m_tabRow.PostMessage(TCM_SETCURSEL, static_cast<WPARAM>(m_nCurPage));
        return TRUE;
    }
    if (header->code == static_cast<UINT>(TCN_SELCHANGE)) {
        ActivatePage(m_tabRow.GetCurSel());
        return TRUE;
    }
    return CWnd::OnNotify(wParam, lParam, pResult);
}

// Handles Ctrl with Tab, Page Down or Page Up. Returns the step to another page, or 0.
int CPropertySheet::PageStep(const MSG& msg) {
    if (msg.message != WM_KEYDOWN || ::GetKeyState(VK_CONTROL) >= 0) return 0;
    switch (msg.wParam) {
    case VK_TAB:
        return ::GetKeyState(VK_SHIFT) < 0 ? -1 : 1;
    case VK_NEXT:
        return 1;
    case VK_PRIOR:
        return -1;
    default:
        return 0;
    }
}

BOOL CPropertySheet::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) return TRUE;
    const int step = m_tabRow.m_hWnd != nullptr && m_tabRow.IsWindowVisible() ? PageStep(*pMsg) : 0;
    if (step != 0 && GetPageCount() > 0) {
        SetActivePage((m_nCurPage + step + GetPageCount()) % GetPageCount());
        return TRUE;
    }
    return IsDialogMessage(pMsg);
}
