// CSheetPane.

#include "orlo/frame/sheet_pane.h"

#include <commctrl.h>

#include <afxres.h>

#include <optional>

#include "orlo/frame/flag_scope.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/frame/orlo_property_page.h"
#include "orlo/frame/scroll_area.h"
#include "orlo/resources/library_text.h"
#include "orlo/resources/resource.h"
#include "orlo/win/child_windows.h"

namespace {

constexpr UINT kRenew = WM_APP;
constexpr UINT_PTR kRetry = 1;   // the timer that repeats kRenew while the pane is busy
constexpr UINT kRetryAfter = 50; // milliseconds
constexpr UINT kNothingId = 1;
constexpr int kMargin = 8; // pixels

struct Button {
    unsigned id;
    UINT text;
};
constexpr Button kButtons[] = {
    {IDOK, IDS_PANE_APPLY}, {kPaneReset, IDS_PANE_RESET}, {kPaneClose, IDS_PANE_CLOSE}, {ID_HELP, IDS_PANE_HELP}};

// The buttons are children of the sheet, which passes their commands on to the pane.
LRESULT CALLBACK OnSheetMessage(HWND sheet, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR pane) {
    auto* self = reinterpret_cast<CSheetPane*>(pane);
    if (message == WM_NCDESTROY) ::RemoveWindowSubclass(sheet, OnSheetMessage, id);
    const auto control = reinterpret_cast<HWND>(lParam);
    if (message == WM_COMMAND && (control == nullptr || ::GetParent(control) == sheet)) {
        const unsigned button = LOWORD(wParam);
        if (button == IDOK || button == IDCANCEL || button == kPaneReset) return self->SendMessage(WM_COMMAND, button);
        if (button == kPaneClose) // deletes the sheet and this button
            return self->PostMessage(WM_COMMAND, button);
    }
    return ::DefSubclassProc(sheet, message, wParam, lParam);
}

// Adds the buttons at the position of a modal sheet's buttons: in the column beside the page, above the preview.
void AddButtons(const CGraphicPropertySheet& propertySheet) {
    const HWND sheet = propertySheet.m_hWnd, page = propertySheet.GetActivePage()->m_hWnd;
    CRect units(4, 4, 50, 14); // dialog units
    ::MapDialogRect(page, units);
    const CSize gap(units.left, units.top), size(units.right, units.bottom);
    CRect client;
    ::GetClientRect(sheet, client);
    const LRESULT font = ::SendMessageA(page, WM_GETFONT, 0, 0);
    CPoint place(client.right - 2 * gap.cx - size.cx, PlaceIn(sheet, page).top + gap.cy);
    for (const Button& button : kButtons) {
        const DWORD kind = button.id == IDOK ? WS_GROUP | BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
        const HWND window = ::CreateWindowExA(
            0, "BUTTON", LibraryText(button.text), WS_CHILD | WS_VISIBLE | WS_TABSTOP | kind, place.x, place.y, size.cx,
            size.cy, sheet, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(button.id)), nullptr, nullptr);
        ::SendMessageA(window, WM_SETFONT, static_cast<WPARAM>(font), FALSE);
        place.y += size.cy + gap.cy;
    }
    ::SendMessageA(sheet, DM_SETDEFID, IDOK, 0);
}

bool ShowIn(CSheetPane& pane, CGraphicPropertySheet& sheet, CPoint place) {
    if (!sheet.Create(&pane, WS_CHILD | WS_CLIPCHILDREN | DS_CONTROL, WS_EX_CONTROLPARENT)) return false;
    sheet.SetWindowPos(nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    ::SetWindowSubclass(sheet.m_hWnd, OnSheetMessage, 1, reinterpret_cast<DWORD_PTR>(&pane));
    AddButtons(sheet);
    return true;
}

// Returns null for a page of another class, which a regen method can add.
COrloPropertyPage* ActivePageOf(const CGraphicPropertySheet* sheet) {
    CPropertyPage* page = sheet != nullptr ? sheet->GetActivePage() : nullptr;
    const bool isOrlos = page != nullptr && page->IsKindOf(RUNTIME_CLASS(COrloPropertyPage));
    return isOrlos ? static_cast<COrloPropertyPage*>(page) : nullptr;
}

// Makes the sheet open on a page, if it has that page. Returns the index of the page that it opens on.
int OpenOn(CGraphicPropertySheet& sheet, unsigned int page) {
    if (COrloPropertyPage* wanted = sheet.FindPage(page)) sheet.SetActivePage(wanted);
    return sheet.GetActiveIndex();
}

// A control with the focus, in the page or in the sheet.
struct Focus {
    bool inPage;
    int control;
};

std::optional<Focus> FocusWithin(const CGraphicPropertySheet* sheet) {
    const COrloPropertyPage* page = ActivePageOf(sheet);
    HWND control = ::GetFocus();
    if (page == nullptr || control == page->m_hWnd || !::IsChild(sheet->m_hWnd, control)) return std::nullopt;
    const bool inPage = ::IsChild(page->m_hWnd, control);
    while (::GetParent(control) != (inPage ? page->m_hWnd : sheet->m_hWnd)) // the edit field of a combo box
        control = ::GetParent(control);
    return Focus{inPage, ::GetDlgCtrlID(control)};
}

// Returns false if the control does not exist or is not visible.
bool SetFocusWithin(CGraphicPropertySheet& sheet, const Focus& focus) {
    const CWnd* parent = focus.inPage ? static_cast<CWnd*>(ActivePageOf(&sheet)) : &sheet;
    const HWND control = parent != nullptr ? ::GetDlgItem(parent->m_hWnd, focus.control) : nullptr;
    if (control == nullptr || !::IsWindowVisible(control)) return false;
    sheet.SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    return true;
}

// Returns the focus to the window that had it, or to the control of the new sheet that corresponds to it.
void RestoreFocus(CSheetPane& pane, CGraphicPropertySheet* sheet, HWND before, const std::optional<Focus>& within) {
    if (within && sheet != nullptr) {
        if (!SetFocusWithin(*sheet, *within)) pane.TakeFocus();
    } else if (before != ::GetFocus()) {
        ::SetFocus(::IsWindow(before) ? before : ::GetParent(pane.m_hWnd));
    }
}

} // namespace

IMPLEMENT_DYNAMIC(CSheetPane, CWnd)

CSheetPane::CSheetPane() : m_scroll(std::make_unique<ScrollArea>()) {}
CSheetPane::~CSheetPane() = default;

BOOL CSheetPane::CreatePane(DWORD dwStyle, CWnd* pParent, UINT nID) {
    const HBRUSH face = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    const LPCSTR windowClass = AfxRegisterWndClass(0, ::LoadCursorA(nullptr, IDC_ARROW), face);
    const HWND parent = pParent != nullptr ? pParent->m_hWnd : nullptr;
    const auto menu = dwStyle & WS_CHILD ? reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)) : nullptr;
    if (!CreateEx(0, windowClass, LibraryText(IDS_PROPERTIES), dwStyle | WS_CLIPCHILDREN, 0, 0, 0, 0, parent, menu))
        return FALSE;
    return m_emptyText.Create("STATIC", LibraryText(IDS_NOTHING_SELECTED), WS_CHILD | SS_NOPREFIX, CRect(), this,
                              kNothingId);
}

LRESULT CSheetPane::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_scroll->Handle(m_hWnd, message, wParam, lParam)) return 0;
    if ((message == WM_COMMAND || message == WM_CLOSE) && IsBusy()) return 0;
    switch (message) {
    case WM_SIZE:
        m_emptyText.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)));
        m_emptyText.MoveWindow(kMargin, kMargin, LOWORD(lParam) - 2 * kMargin, 2 * kMargin);
        break;
    case WM_CLOSE:
        OnCloseButton();
        return 0;
    case WM_TIMER:
        if (wParam != kRetry) break;
        KillTimer(kRetry);
        [[fallthrough]];
    case kRenew:
        if (m_isStale) Renew();
        return 0;
    default:
        break;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

int CSheetPane::FittingWidth(int height) const {
    return m_sheetSize.cx + (m_sheetSize.cy > height ? ::GetSystemMetrics(SM_CXVSCROLL) : 0);
}

void CSheetPane::RevealFocus() {
    const HWND focus = ::GetFocus();
    if (focus == m_revealed) return;
    m_revealed = focus;
    if (HasFocus() && m_sheet != nullptr && focus != m_sheet->m_hWnd) m_scroll->Reveal(m_hWnd, focus);
}

// ---- The sheet

void CSheetPane::OnOpen() {}
void CSheetPane::OnClose() {}
void CSheetPane::OnApplied() {}
void CSheetPane::OnReset() {}
void CSheetPane::OnCloseButton() {
    Close();
}
void CSheetPane::OnEscape() {
    Reset();
}

unsigned int CSheetPane::LastPage() const {
    return m_lastPage;
}
void CSheetPane::SetLastPage(unsigned int nPage) {
    m_lastPage = nPage;
}

void CSheetPane::Open() {
    if (m_isOpen) return;
    m_isOpen = true;
    OnOpen();
    Renew();
    ShowWindow(SW_SHOWNA);
}

bool CSheetPane::IsBusy() const {
    return m_isApplying || (m_sheet != nullptr && m_sheet->IsChangingPage());
}

void CSheetPane::Close() {
    if (!m_isOpen || IsBusy()) return;
    ShowWindow(SW_HIDE);
    OnClose();
    m_isOpen = false;
    DropSheet();
}

void CSheetPane::Follow() {
    if (!m_isOpen || m_isStale) return;
    m_isStale = true;
    PostMessage(kRenew);
}

void CSheetPane::Renew() {
    m_isStale = m_isOpen && IsBusy();
    if (m_isStale) SetTimer(kRetry, kRetryAfter);
    if (!m_isOpen || m_isStale) return;
    const HWND focus = ::GetFocus();
    const std::optional<Focus> within = FocusWithin(m_sheet);
    SendMessage(WM_SETREDRAW, FALSE);
    DropSheet();
    m_sheet = NewSheet();
    if (m_sheet != nullptr) m_openedOn = OpenOn(*m_sheet, LastPage());
    // The pane stays scrolled as far as the new sheet allows.
    if (m_sheet != nullptr && !ShowIn(*this, *m_sheet, m_scroll->Place())) DropSheet();
    if (m_sheet != nullptr) m_sheetSize = WindowSize(m_sheet->m_hWnd);
    const bool any = m_sheet != nullptr && HasGraphics();
    m_scroll->SetContents(m_hWnd, any ? m_sheetSize : CSize());
    if (m_sheet != nullptr) m_sheet->ShowWindow(any ? SW_SHOWNA : SW_HIDE);
    m_emptyText.ShowWindow(any ? SW_HIDE : SW_SHOWNA);
    SendMessage(WM_SETREDRAW, TRUE);
    ::RedrawWindow(m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    RestoreFocus(*this, any ? m_sheet : nullptr, focus, within);
}

// A page that a sheet opened on because it lacks the last one is not remembered.
void CSheetPane::DropSheet() {
    const auto* page = dynamic_cast<const CGraphicPropertyPage*>(ActivePageOf(m_sheet));
    if (page != nullptr && m_sheet->GetActiveIndex() != m_openedOn) SetLastPage(page->GetTemplateNumber());
    m_sheet = nullptr;
    DeleteSheet();
}

// ---- Writing

bool CSheetPane::Apply() {
    if (!m_isOpen) return true;
    if (IsBusy()) return false;
    COrloPropertyPage* page = ActivePageOf(m_sheet);
    if (page != nullptr && !m_isStale && page->IsModified()) {
        const HWND focus = ::GetFocus();
        const FlagScope applying(m_isApplying);
        if (!page->OnKillActive()) return false;
        page->OnOK();
        page->OnSetActive();     // all controls are clean
        page->UpdateData(FALSE); // shows the values as written, such as "1.5" for "2*3/4"
        page->SetModified(FALSE);
        if (::IsChild(page->m_hWnd, focus)) ::SetFocus(focus);
    }
    OnApplied();
    return true;
}

void CSheetPane::Reset() {
    if (IsBusy()) return;
    if (m_isOpen) OnReset();
    Follow();
}

// ---- Keys and buttons

BOOL CSheetPane::OnCommand(WPARAM wParam, LPARAM lParam) {
    switch (LOWORD(wParam)) {
    case IDOK:
        Apply();
        return TRUE;
    case IDCANCEL:
        OnEscape();
        return TRUE;
    case kPaneReset:
        Reset();
        return TRUE;
    case kPaneClose:
        OnCloseButton();
        return TRUE;
    default:
        return CWnd::OnCommand(wParam, lParam);
    }
}

void CSheetPane::TakeFocus() {
    if (m_isStale) Renew();
    if (m_sheet == nullptr || !m_sheet->IsWindowVisible()) return;
    const HWND first = ::GetNextDlgTabItem(m_sheet->GetActivePage()->m_hWnd, nullptr, FALSE);
    m_sheet->SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
}
