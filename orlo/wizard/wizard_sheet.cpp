// CWizardSheet: creation, layout and navigation.

#include "orlo/wizard/wizard_sheet.h"

#include <afxext.h>

#include <algorithm>
#include <cstring>

#include "orlo/resources/library_text.h"
#include "orlo/resources/resource.h"
#include "orlo/win/child_windows.h"

namespace {

constexpr int kBackId = 100;
constexpr int kNextId = 101;
constexpr UINT kTabRowId = 301;
constexpr int kHeadingId = 302;
constexpr DWORD kChildStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_GROUP;

struct Button {
    int id;
    UINT text; // string: caption, line feed, width in dialog units
};

constexpr Button kButtons[] = {{kBackId, IDS_WIZARD_BACK}, {kNextId, IDS_WIZARD_NEXT}, {IDCANCEL, IDS_WIZARD_CANCEL}};
constexpr int kButtonCount = static_cast<int>(std::size(kButtons));

bool IsPushButton(HWND control) {
    constexpr LRESULT kPushButton = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;
    return (::SendMessageA(control, WM_GETDLGCODE, 0, 0) & kPushButton) != 0;
}

HWND ChildAround(HWND page, HWND control) {
    while (control != nullptr && ::GetParent(control) != page)
        control = ::GetParent(control);
    return control;
}

// Returns whether a field of the page follows that control in the tab order.
bool HasFieldAfter(HWND page, HWND control) {
    const HWND first = ::GetNextDlgTabItem(page, nullptr, FALSE), from = ChildAround(page, control);
    HWND next = ::GetNextDlgTabItem(page, from, FALSE);
    while (next != nullptr && next != first && next != from && IsPushButton(next))
        next = ::GetNextDlgTabItem(page, next, FALSE);
    return next != nullptr && next != first && next != from;
}

// A multiline edit control handles all keys, but passes Return without Ctrl to the default button of its parent, the
// page, which has none.
bool TakesReturn(MSG& message) {
    const LRESULT code = ::SendMessageA(message.hwnd, WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(&message));
    const LONG style = ::GetWindowLongA(message.hwnd, GWL_STYLE);
    if ((code & DLGC_HASSETSEL) != 0 && (style & ES_MULTILINE) != 0)
        return (style & ES_WANTRETURN) != 0 || ::GetKeyState(VK_CONTROL) < 0;
    return (code & (DLGC_WANTALLKEYS | DLGC_WANTMESSAGE)) != 0;
}

bool CanBePressed(HWND control) {
    return IsPushButton(control) && ::IsWindowEnabled(control);
}

// Returns whether the message is Return for the default button. A focused button handles Return itself.
bool IsReturnForDefault(MSG& message) {
    return message.message == WM_KEYDOWN && message.wParam == VK_RETURN && !CanBePressed(message.hwnd) &&
           !TakesReturn(message);
}

void FramePushButton(HWND button, bool framed) {
    const LONG type = ::GetWindowLongA(button, GWL_STYLE) & BS_TYPEMASK;
    const LONG wanted = framed ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    if ((type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON) && type != wanted)
        ::SendMessageA(button, BM_SETSTYLE, static_cast<WPARAM>(wanted), TRUE);
}

// Returns the position nearest to `place` at which a window of that size is completely on the screen.
CPoint PlaceOnScreen(HWND window, CPoint place, CSize size) {
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoA(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    const CRect work = monitor.rcWork;
    return CPoint(std::max(work.left, std::min(place.x, work.right - size.cx)),
                  std::max(work.top, std::min(place.y, work.bottom - size.cy)));
}

// Leaves only the commands Move and Close.
void TrimSystemMenu(HWND sheet) {
    const HMENU menu = ::GetSystemMenu(sheet, FALSE);
    for (int i = ::GetMenuItemCount(menu) - 1; i >= 0; --i) {
        const UINT command = ::GetMenuItemID(menu, i);
        if (command != SC_MOVE && command != SC_CLOSE) ::DeleteMenu(menu, static_cast<UINT>(i), MF_BYPOSITION);
    }
}

void CopyFont(HWND page, CFont& font) {
    const auto source = reinterpret_cast<HFONT>(::SendMessageA(page, WM_GETFONT, 0, 0));
    LOGFONTA description;
    if (source == nullptr || ::GetObjectA(source, sizeof description, &description) == 0) return;
    font.DeleteObject();
    font.CreateFontIndirect(&description);
}

// The widths of the buttons, in pixels.
struct Row {
    int widths[kButtonCount] = {};
    int sum = 0;
    int gap = 0; // before Cancel
};

Row MeasureRow(HWND sheet, HWND page, int standardWidth, int gap) {
    Row row;
    for (int i = 0; i < kButtonCount; ++i) {
        row.widths[i] = ButtonWidth(page, LibraryText(kButtons[i].text), standardWidth);
        if (!IsShown(::GetDlgItem(sheet, kButtons[i].id))) continue;
        row.sum += row.widths[i];
        if (kButtons[i].id == IDCANCEL) row.gap = gap;
    }
    return row;
}

// Aligned right: Back and Next together, Cancel after a gap.
void PlaceRow(HWND sheet, const Row& row, CPoint end, int height) {
    int x = end.x - row.gap - row.sum;
    for (int i = 0; i < kButtonCount; ++i) {
        const HWND button = ::GetDlgItem(sheet, kButtons[i].id);
        if (!IsShown(button)) continue;
        if (kButtons[i].id == IDCANCEL) x += row.gap;
        ::MoveWindow(button, x, end.y - height, row.widths[i], height, TRUE);
        x += row.widths[i];
    }
}

// Shows the page's title in place of the tabs.
void ShowHeading(HWND sheet, CTabCtrl& tabs, int page) {
    char text[256] = "";
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = sizeof text;
    tabs.SendMessage(TCM_GETITEMA, static_cast<WPARAM>(page), reinterpret_cast<LPARAM>(&item));
    ::SetDlgItemTextA(sheet, kHeadingId, item.pszText);
}

// The system updates the default button's frame for the Tab key, but not between the sheet and its page, and does not
// remove it from a disabled button. Called for every message, because keys, clicks and the host move the focus.
void ShowDefaultButton(HWND sheet) {
    const HWND focus = ::GetFocus();
    const bool inside = focus != nullptr && ::IsChild(sheet, focus);
    if (focus != nullptr && focus != sheet && !inside) return;
    const HWND framed = inside && CanBePressed(focus) ? focus : ::GetDlgItem(sheet, kNextId);
    ForEachChild(sheet, [=](HWND child) {
        if (IsPushButton(child)) FramePushButton(child, child == framed);
    });
}

} // namespace

IMPLEMENT_DYNAMIC(CWizardSheet, CPropertySheet)

BEGIN_MESSAGE_MAP(CWizardSheet, CPropertySheet)
ON_WM_CREATE()
ON_COMMAND(kBackId, &CWizardSheet::OnBack)
ON_COMMAND(kNextId, &CWizardSheet::OnNext)
ON_COMMAND(IDOK, &CWizardSheet::OnEnter)
ON_MESSAGE(WM_ACTIVATE, &CWizardSheet::OnActivateMessage)
ON_MESSAGE(DM_GETDEFID, &CWizardSheet::OnGetDefaultButton)
END_MESSAGE_MAP()

CWizardSheet::CWizardSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(nIDCaption, pParentWnd, iSelectPage) {}

CWizardSheet::CWizardSheet(const char* pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(pszCaption, pParentWnd, iSelectPage) {}

CWizardSheet::~CWizardSheet() = default;

// ---- Creation

// If the first page cannot be created, the sheet is empty and the user can cancel it.
int CWizardSheet::OnCreate(CREATESTRUCT*) {
    if (!BeginCreate()) return -1;
    TrimSystemMenu(m_hWnd);
    SetActivePage(m_nCurPage);
    CopyFont(GetActivePage()->m_hWnd, m_font);
    const DWORD rows = m_bStacked ? TCS_MULTILINE : TCS_SINGLELINE;
    if (!CreateTabRow(kChildStyle | rows, CRect(0, 0, 100, 10), kTabRowId)) return -1;
    m_tabRow.ShowWindow(SW_HIDE);
    ::CreateWindowExA(0, "static", "", WS_CHILD | WS_VISIBLE | SS_NOPREFIX | SS_CENTERIMAGE | SS_ENDELLIPSIS, 0, 0, 0,
                      0, m_hWnd, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kHeadingId)), AfxGetInstanceHandle(),
                      nullptr);
    ::SendDlgItemMessageA(m_hWnd, kHeadingId, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.m_hObject), FALSE);
    MeasureUnits();
    if (!m_bModeless && !CreateButtons()) return -1;
    RecalcWizardLayout();
    m_tabRow.SetCurSel(m_nCurPage);
    ShowHeading(m_hWnd, m_tabRow, m_nCurPage);
    if (GetActivePage()->m_hWnd != nullptr) GetActivePage()->SetFocus();
    return 0;
}

// Without a page, units are treated as pixels.
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
        const HWND window =
            ::CreateWindowExA(0, "button", text, kChildStyle, 0, 0, 0, 0, m_hWnd, id, AfxGetInstanceHandle(), nullptr);
        if (window == nullptr) return 0;
        if (m_font.m_hObject != nullptr)
            ::SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.m_hObject), FALSE);
    }
    EnableButton(m_hWnd, kBackId, FALSE);
    ::SendDlgItemMessageA(m_hWnd, kNextId, BM_SETSTYLE, BS_DEFPUSHBUTTON, FALSE);
    return 1;
}

int CWizardSheet::LoadButtonText(UINT nID, char* pszBuffer) {
    if (LoadLibraryText(nID, pszBuffer, kTextSize) == 0) return 0;
    pszBuffer[std::strcspn(pszBuffer, "\n")] = '\0';
    return pszBuffer[0] != '\0';
}

// ---- Layout

void CWizardSheet::RecalcWizardLayout() {
    const HWND page = GetActivePage()->m_hWnd;
    const CSize pageSize = WindowSize(page);
    const int mx = m_sizeTabMargin.cx, my = m_sizeTabMargin.cy;
    const Row row = m_bModeless ? Row() : MeasureRow(m_hWnd, page, m_sizeButton.cx, m_cxButtonGap);
    const int cxClient = std::max<int>(2 * mx + pageSize.cx + 3, row.sum + row.gap + 2 * mx);

    constexpr UINT kKeep = SWP_NOZORDER | SWP_NOACTIVATE;
    m_tabRow.SetWindowPos(nullptr, mx, my, cxClient - 2 * mx, 0, kKeep);
    const int cyTabs = WindowSize(m_tabRow.m_hWnd).cy;
    ::SetWindowPos(::GetDlgItem(m_hWnd, kHeadingId), nullptr, mx, my, cxClient - 2 * mx, cyTabs - my, kKeep);
    const int cyClient = 3 * my + m_sizeButton.cy + cyTabs + pageSize.cy + 4;

    CRect window(0, 0, cxClient, cyClient);
    ::AdjustWindowRectEx(&window, GetStyle(), FALSE, GetExStyle());
    Resize(window.Size());
    if (page != nullptr) ::SetWindowPos(page, nullptr, mx + 1, cyTabs + my, cxClient - 2 * mx - 3, pageSize.cy, kKeep);
    if (!m_bModeless) PlaceRow(m_hWnd, row, CPoint(cxClient - mx, cyClient - my), m_sizeButton.cy);
    // The system has moved the old screen contents of the child windows, so that parts of the page appear on the
    // buttons.
    ::RedrawWindow(m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// If the sheet is not where it was centered, the user has moved it.
void CWizardSheet::Resize(CSize size) {
    CRect window;
    GetWindowRect(&window);
    const bool moved = IsWindowVisible() && window.TopLeft() != GetCenteredPlace(window.Size());
    const CPoint place = moved ? PlaceOnScreen(m_hWnd, window.TopLeft(), size) : GetCenteredPlace(size);
    SetWindowPos(nullptr, place.x, place.y, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

CRect CWizardSheet::GetPagePlace(const CPropertyPage& page, const CRect& before) const {
    if (before.IsRectEmpty()) return before;
    const CSize own = WindowSize(page.m_hWnd);
    return CRect(before.TopLeft(), CSize(std::max(own.cx, before.Size().cx), std::max(own.cy, before.Size().cy)));
}

// ---- Navigation

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

// Tab row, heading and buttons change with the page, and remain unchanged if it cannot be left.
bool CWizardSheet::MoveTo(int nPage) {
    const CSize before = WindowSize(GetActivePage()->m_hWnd);
    if (!SetActivePage(nPage)) return false;
    SetButtonStates(nPage);
    ShowHeading(m_hWnd, m_tabRow, m_nCurPage);
    if (before != WindowSize(GetActivePage()->m_hWnd)) RecalcWizardLayout();
    // Some systems take the focus from a disabled button, leaving no window with the focus.
    if (::GetFocus() == nullptr && ::GetActiveWindow() == m_hWnd) FocusActivePage();
    return true;
}

void CWizardSheet::OnBack() {
    if (m_nCurPage >= 1) MoveTo(m_nCurPage - 1);
}

void CWizardSheet::OnNext() {
    if (m_nCurPage == GetPageCount() - 1) {
        OnFinish();
    } else if (MoveTo(m_nCurPage + 1)) {
        FocusActivePage();
    }
}

LRESULT CWizardSheet::OnGetDefaultButton(WPARAM, LPARAM) {
    return ::GetDlgItem(m_hWnd, kNextId) != nullptr ? MAKELRESULT(kNextId, DC_HASDEFID) : Default();
}

// Return presses the default button, Next, unless fields that the user has not visited would be skipped.
void CWizardSheet::OnReturn(const MSG& message) {
    const bool heldDown = (HIWORD(message.lParam) & KF_REPEAT) != 0; // the key was pressed on an earlier page
    const bool finishes = m_nCurPage == GetPageCount() - 1;
    const HWND page = GetActivePage()->m_hWnd, next = ::GetDlgItem(m_hWnd, kNextId);
    const bool skips = !finishes && ::IsChild(page, message.hwnd) && HasFieldAfter(page, message.hwnd);
    if (heldDown || skips || !IsShown(next) || !::IsWindowEnabled(next)) return;
    SendMessage(WM_COMMAND, MAKEWPARAM(kNextId, BN_CLICKED), reinterpret_cast<LPARAM>(next));
}

BOOL CWizardSheet::PreTranslateMessage(MSG* pMsg) {
    BOOL handled = TRUE;
    if (!m_bModeless && ::IsChild(m_hWnd, pMsg->hwnd) && IsReturnForDefault(*pMsg))
        OnReturn(*pMsg);
    else
        handled = CPropertySheet::PreTranslateMessage(pMsg);
    if (m_hWnd != nullptr && !m_bModeless) ShowDefaultButton(m_hWnd);
    return handled;
}

// Handles OK sent as a command, and Enter in a sheet without buttons.
void CWizardSheet::OnEnter() {
    if (m_nCurPage == GetPageCount() - 1) OnFinish();
}

void CWizardSheet::OnFinish() {
    for (int i = 0; i < GetPageCount(); ++i)
        GetPage(i)->OnOK();
    CPropertySheet::OnOK();
}

// Dialogs restore the focus to the control that had it; here the page decides.
LRESULT CWizardSheet::OnActivateMessage(WPARAM, LPARAM) {
    return 1;
}
