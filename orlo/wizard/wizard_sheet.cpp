// CWizardSheet.

#include "orlo/wizard/wizard_sheet.h"

#include <afxext.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "orlo/resources/library_text.h"
#include "orlo/resources/resource.h"

namespace {

constexpr int kBackId = 100;
constexpr int kNextId = 101;
constexpr UINT kTabRowId = 301;
constexpr DWORD kChildStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_GROUP;

struct Button {
    int id;
    UINT text; // string: caption, line feed, width in dialog units
};

constexpr Button kButtons[] = {
    {kBackId, IDS_WIZARD_BACK}, {kNextId, IDS_WIZARD_NEXT}, {IDCANCEL, IDS_WIZARD_CANCEL}};
constexpr int kButtonCount = static_cast<int>(std::size(kButtons));

CSize WindowSize(HWND window) {
    CRect rect;
    ::GetWindowRect(window, &rect);
    return rect.Size();
}

bool IsShown(HWND button) {
    return button != nullptr && (::GetWindowLongA(button, GWL_STYLE) & WS_VISIBLE) != 0;
}

} // namespace

struct CWizardSheet::Row {
    int widths[kButtonCount] = {};
    int sum = 0;
    int gaps = 0;
};

IMPLEMENT_DYNAMIC(CWizardSheet, CPropertySheet)

BEGIN_MESSAGE_MAP(CWizardSheet, CPropertySheet)
ON_WM_CREATE()
ON_COMMAND(kBackId, &CWizardSheet::OnBack)
ON_COMMAND(kNextId, &CWizardSheet::OnNext)
ON_COMMAND(IDOK, &CWizardSheet::OnEnter)
ON_MESSAGE(WM_ACTIVATE, &CWizardSheet::OnActivateMessage)
END_MESSAGE_MAP()

CWizardSheet::CWizardSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(nIDCaption, pParentWnd, iSelectPage) {}

CWizardSheet::CWizardSheet(const char* pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(pszCaption, pParentWnd, iSelectPage) {}

CWizardSheet::~CWizardSheet() = default;

// ---- Making the window

// A first page that cannot be made leaves an empty sheet, which the user can cancel.
int CWizardSheet::OnCreate(CREATESTRUCT*) {
    if (!BeginCreate()) return -1;
    TrimSystemMenu();
    SetActivePage(m_nCurPage);
    TakePageFont();
    const DWORD rows = m_bStacked ? TCS_MULTILINE : TCS_SINGLELINE;
    if (!CreateTabRow(kChildStyle | rows, CRect(0, 0, 100, 10), kTabRowId)) return -1;
    m_tabRow.ShowWindow(SW_HIDE);
    MeasureUnits();
    if (!m_bModeless && !CreateButtons()) return -1;
    RecalcWizardLayout();
    m_tabRow.SetCurSel(m_nCurPage);
    if (GetActivePage()->m_hWnd != nullptr) GetActivePage()->SetFocus();
    return 0;
}

// Leaves what a wizard can do: be moved and be closed.
void CWizardSheet::TrimSystemMenu() {
    const HMENU menu = ::GetSystemMenu(m_hWnd, FALSE);
    for (int i = ::GetMenuItemCount(menu) - 1; i >= 0; --i) {
        const UINT command = ::GetMenuItemID(menu, i);
        if (command != SC_MOVE && command != SC_CLOSE)
            ::DeleteMenu(menu, static_cast<UINT>(i), MF_BYPOSITION);
    }
}

void CWizardSheet::TakePageFont() {
    const auto font = reinterpret_cast<HFONT>(GetActivePage()->SendMessage(WM_GETFONT));
    LOGFONTA look;
    if (font == nullptr || ::GetObjectA(font, sizeof look, &look) == 0) return;
    m_font.DeleteObject();
    m_font.CreateFontIndirect(&look);
}

// Without a page the units are taken for pixels.
void CWizardSheet::MeasureUnits() {
    CRect button(4, 0, 50, 14), margin(0, 0, 4, 4);
    ::MapDialogRect(GetActivePage()->m_hWnd, &button);
    ::MapDialogRect(GetActivePage()->m_hWnd, &margin);
    m_cxButtonGap = button.left;
    m_sizeButton = CSize(button.right, button.bottom);
    m_sizeTabMargin = CSize(margin.right, margin.bottom);
}

int CWizardSheet::CreateButtons() {
    for (const Button& button : kButtons) {
        char text[kTextSize];
        if (!LoadButtonText(button.text, text)) return 0;
        const auto id = reinterpret_cast<HMENU>(static_cast<UINT_PTR>(button.id));
        const HWND window = ::CreateWindowExA(0, "button", text, kChildStyle, 0, 0, 0, 0, m_hWnd, id,
                                              AfxGetInstanceHandle(), nullptr);
        if (window == nullptr) return 0;
        if (m_font.m_hObject != nullptr)
            ::SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.m_hObject), FALSE);
    }
    EnableButton(m_hWnd, kBackId, FALSE);
    return 1;
}

int CWizardSheet::LoadButtonText(UINT nID, char* pszBuffer) {
    if (LoadLibraryText(nID, pszBuffer, kTextSize) == 0) return 0;
    pszBuffer[std::strcspn(pszBuffer, "\n")] = '\0';
    return pszBuffer[0] != '\0';
}

// ---- Layout

int CWizardSheet::ButtonWidth(UINT nIDText) {
    char text[kTextSize];
    const char* feed = LoadLibraryText(nIDText, text, kTextSize) != 0 ? std::strchr(text, '\n') : nullptr;
    if (feed == nullptr) return m_sizeButton.cx;
    CRect width(0, 0, std::atoi(feed + 1), 0);
    ::MapDialogRect(GetActivePage()->m_hWnd, &width);
    return width.right;
}

CWizardSheet::Row CWizardSheet::MeasureRow() {
    Row row;
    if (m_bModeless) return row;
    for (int i = 0; i < kButtonCount; ++i) {
        row.widths[i] = ButtonWidth(kButtons[i].text);
        if (!IsShown(::GetDlgItem(m_hWnd, kButtons[i].id))) continue;
        row.sum += row.widths[i];
        if (kButtons[i].id == IDCANCEL) row.gaps += m_cxButtonGap;
    }
    return row;
}

// At the right: Back and Next together, Cancel behind a gap.
void CWizardSheet::PlaceRow(const Row& row, int cxClient, int cyClient) {
    int x = cxClient - m_sizeTabMargin.cx - row.gaps - row.sum;
    const int y = cyClient - m_sizeButton.cy - m_sizeTabMargin.cy;
    for (int i = 0; i < kButtonCount; ++i) {
        const HWND button = ::GetDlgItem(m_hWnd, kButtons[i].id);
        if (!IsShown(button)) continue;
        if (kButtons[i].id == IDCANCEL) x += m_cxButtonGap;
        ::MoveWindow(button, x, y, row.widths[i], m_sizeButton.cy, TRUE);
        x += row.widths[i];
    }
}

void CWizardSheet::RecalcWizardLayout() {
    const HWND page = GetActivePage()->m_hWnd;
    const CSize pageSize = page != nullptr ? WindowSize(page) : CSize();
    const int mx = m_sizeTabMargin.cx, my = m_sizeTabMargin.cy;
    const Row row = MeasureRow();
    const int cxClient = std::max<int>(2 * mx + pageSize.cx + 3, row.sum + row.gaps + 2 * mx);

    constexpr UINT kKeep = SWP_NOZORDER | SWP_NOACTIVATE;
    m_tabRow.SetWindowPos(nullptr, mx, my, cxClient - 2 * mx, 0, kKeep);
    const int cyTabs = WindowSize(m_tabRow.m_hWnd).cy;
    const int cyClient = 3 * my + m_sizeButton.cy + cyTabs + pageSize.cy + 4;

    CRect window(0, 0, cxClient, cyClient);
    ::AdjustWindowRectEx(&window, GetStyle(), FALSE, GetExStyle());
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height(), kKeep | SWP_NOMOVE);
    CenterWindow();

    if (page != nullptr)
        ::SetWindowPos(page, nullptr, mx + 1, cyTabs + my, cxClient - 2 * mx - 3, pageSize.cy, kKeep);
    if (!m_bModeless) PlaceRow(row, cxClient, cyClient);
}

// ---- Walking

void CWizardSheet::EnableButton(HWND hWndSheet, int nID, BOOL bEnable, int nNewFocusID) {
    const HWND button = ::GetDlgItem(hWndSheet, nID);
    if (button == nullptr) return;
    const HWND next = nNewFocusID != -1 ? ::GetDlgItem(hWndSheet, nNewFocusID) : nullptr;
    if (next != nullptr && ::GetFocus() == button) ::SetFocus(next);
    ::EnableWindow(button, bEnable);
}

void CWizardSheet::SetButtonStates(int nPage) {
    EnableButton(m_hWnd, IDCANCEL, TRUE);
    EnableButton(m_hWnd, kBackId, nPage != 0);
    char text[kTextSize];
    const bool last = nPage == GetPageCount() - 1;
    LoadButtonText(last ? IDS_WIZARD_FINISH : IDS_WIZARD_NEXT, text);
    ::SetDlgItemTextA(m_hWnd, kNextId, text);
}

// Tab row and buttons follow the page that has come, and stay where it has not.
void CWizardSheet::MoveTo(int nPage) {
    if (!SetActivePage(nPage)) return;
    SetButtonStates(nPage);
    // A system that takes the focus from a button which is disabled leaves the keyboard with nobody.
    if (::GetFocus() == nullptr && ::GetActiveWindow() == m_hWnd) FocusActivePage();
}

void CWizardSheet::OnBack() {
    if (m_nCurPage >= 1) MoveTo(m_nCurPage - 1);
}

void CWizardSheet::OnNext() {
    if (m_nCurPage == GetPageCount() - 1) {
        OnFinish();
    } else {
        MoveTo(m_nCurPage + 1);
    }
}

// The Enter key does not step forward: it would skip what the user has not read.
void CWizardSheet::OnEnter() {
    if (m_nCurPage == GetPageCount() - 1) OnFinish();
}

void CWizardSheet::OnFinish() {
    for (int i = 0; i < GetPageCount(); ++i)
        GetPage(i)->OnOK();
    CPropertySheet::OnOK();
}

// Dialogs give the focus back to the control that had it; here the page decides.
LRESULT CWizardSheet::OnActivateMessage(WPARAM, LPARAM) {
    return 1;
}
