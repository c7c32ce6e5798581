// The properties pane.

#include "demo/viewer/properties_pane.h"

#include <commctrl.h>

#include <afxres.h>

#include <algorithm>

#include "demo/viewer/resource.h"
#include "orlo/frame/graphic_property_page.h"

namespace {

constexpr UINT kRenew = WM_APP;
constexpr UINT kNothingId = 1;
// In pixels.
constexpr int kMargin = 8;
constexpr int kScrollLine = 20;

struct Button {
    UINT id;
    const char* text;
};
constexpr Button kButtons[] = {
    // Help has no mnemonic, because Alt+H opens the menu.
    {IDOK, "&Apply"},
    {ID_PANE_RESET, "&Reset"},
    {ID_VIEW_PROPERTIES, "&Close"},
    {ID_HELP, "Help"}};

CRect PlaceIn(HWND parent, HWND window) {
    CRect rect;
    ::GetWindowRect(window, rect);
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

} // namespace

IMPLEMENT_DYNAMIC(CPropertiesPane, CWnd)

BEGIN_MESSAGE_MAP(CPropertiesPane, CWnd)
ON_WM_SIZE()
ON_COMMAND(IDOK, &CPropertiesPane::OnApply)
ON_COMMAND(IDCANCEL, &CPropertiesPane::OnCancel)
ON_COMMAND(ID_PANE_RESET, &CPropertiesPane::Reset)
ON_MESSAGE(kRenew, &CPropertiesPane::OnRenew)
ON_MESSAGE(WM_HSCROLL, &CPropertiesPane::OnHScroll)
ON_MESSAGE(WM_VSCROLL, &CPropertiesPane::OnVScroll)
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

CPropertiesPane::Edited::Edited(CWnd* owner, const Document& document)
    : graphics(document.Selected()), sheet(owner, document.Drawing(), graphics.Set(), kAllGraphics) {}

CPropertiesPane::CPropertiesPane(Applied applied) : m_applied(std::move(applied)) {}

CPropertiesPane::~CPropertiesPane() = default;

BOOL CPropertiesPane::Create(CWnd* parent, UINT id) {
    const HBRUSH face = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    const LPCSTR windowClass = AfxRegisterWndClass(0, ::LoadCursorA(nullptr, IDC_ARROW), face);
    return CWnd::Create(windowClass, "Properties", WS_CHILD | WS_CLIPCHILDREN, CRect(), parent, id) &&
           m_nothing.Create("STATIC", "Nothing is selected", WS_CHILD | SS_NOPREFIX, CRect(), this, kNothingId);
}

void CPropertiesPane::OnSize(UINT, int cx, int) {
    const HFONT font = static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
    m_nothing.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font));
    m_nothing.MoveWindow(kMargin, kMargin, cx - 2 * kMargin, 2 * kMargin);
    ArrangeScrollBars();
}

// ---- Scrolling

int CPropertiesPane::FittingWidth(int height) const {
    return m_sheetSize.cx + (m_sheetSize.cy > height ? ::GetSystemMetrics(SM_CXVSCROLL) : 0);
}

// A scroll bar for one direction reduces the space for the other, which may then need one too.
void CPropertiesPane::ArrangeScrollBars() {
    const bool any = IsOverGraphics();
    for (const int bar : {SB_VERT, SB_HORZ, SB_VERT}) {
        CRect client;
        GetClientRect(client);
        const bool vertical = bar == SB_VERT;
        SCROLLINFO info = {sizeof info, SIF_PAGE | SIF_RANGE, 0, 0, 0, 0, 0};
        info.nMax = !any ? 0 : vertical ? m_sheetSize.cy - 1 : m_sheetSize.cx - 1;
        info.nPage = static_cast<UINT>(std::max(0, vertical ? client.Height() : client.Width()));
        ::SetScrollInfo(m_hWnd, bar, &info, TRUE);
    }
    ScrollBy(CSize());
}

// Limited by the scroll range.
void CPropertiesPane::ScrollBy(CSize pixels) {
    const auto move = [this](int bar, int way) {
        ::SetScrollPos(m_hWnd, bar, ::GetScrollPos(m_hWnd, bar) + way, TRUE);
        return -::GetScrollPos(m_hWnd, bar);
    };
    const CPoint place(move(SB_HORZ, pixels.cx), move(SB_VERT, pixels.cy));
    if (!Sheet() || !Sheet()->m_hWnd || PlaceIn(m_hWnd, Sheet()->m_hWnd).TopLeft() == place) return;
    Sheet()->SetWindowPos(nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CPropertiesPane::Scroll(int bar, int code) {
    SCROLLINFO info = {sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
    ::GetScrollInfo(m_hWnd, bar, &info);
    const auto wayOf = [&] {
        switch (code) {
        case SB_LINEUP:
            return -kScrollLine;
        case SB_LINEDOWN:
            return kScrollLine;
        case SB_PAGEUP:
            return -static_cast<int>(info.nPage);
        case SB_PAGEDOWN:
            return static_cast<int>(info.nPage);
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            return info.nTrackPos - info.nPos;
        case SB_TOP:
            return -info.nPos;
        case SB_BOTTOM:
            return info.nMax;
        default:
            return 0;
        }
    };
    ScrollBy(bar == SB_VERT ? CSize(0, wayOf()) : CSize(wayOf(), 0));
}

LRESULT CPropertiesPane::OnHScroll(WPARAM wParam, LPARAM) {
    Scroll(SB_HORZ, LOWORD(wParam));
    return 0;
}

LRESULT CPropertiesPane::OnVScroll(WPARAM wParam, LPARAM) {
    Scroll(SB_VERT, LOWORD(wParam));
    return 0;
}

BOOL CPropertiesPane::OnMouseWheel(UINT, short delta, CPoint) {
    ScrollBy(CSize(0, ::MulDiv(-delta, 3 * kScrollLine, WHEEL_DELTA)));
    return TRUE;
}

void CPropertiesPane::RevealFocus() {
    const HWND focus = ::GetFocus();
    if (focus == m_revealed) return;
    m_revealed = focus;
    if (!HasFocus() || !Sheet() || focus == Sheet()->m_hWnd) return;
    CRect client;
    GetClientRect(client);
    const CRect place = PlaceIn(m_hWnd, focus);
    const auto way = [](int low, int high, int end) {
        if (low < 0) return low - kMargin;
        return high > end ? std::min(high - end + kMargin, low) : 0;
    };
    ScrollBy(CSize(way(place.left, place.right, client.right), way(place.top, place.bottom, client.bottom)));
}

// ---- Contents

void CPropertiesPane::SetDocument(Document* document) {
    if (m_document && m_isOpen) m_document->EndTransaction();
    DropSheet();
    m_document = document;
    if (m_document && m_isOpen) m_document->BeginTransaction();
    Follow();
}

void CPropertiesPane::Open() {
    if (m_isOpen) return;
    m_isOpen = true;
    if (m_document) m_document->BeginTransaction();
    Renew();
    ShowWindow(SW_SHOWNA);
}

void CPropertiesPane::Close() {
    if (!m_isOpen) return;
    ShowWindow(SW_HIDE);
    if (m_document) m_document->EndTransaction();
    m_isOpen = false;
    DropSheet();
}

void CPropertiesPane::Follow() {
    if (!m_isOpen || m_isStale) return;
    m_isStale = true;
    PostMessage(kRenew);
}

LRESULT CPropertiesPane::OnRenew(WPARAM, LPARAM) {
    if (m_isStale) Renew();
    return 0;
}

void CPropertiesPane::Renew() {
    m_isStale = false;
    if (!m_isOpen) return;
    const HWND focus = ::GetFocus();
    const std::optional<Focus> within = FocusWithin();
    SendMessage(WM_SETREDRAW, FALSE);
    DropSheet();
    if (m_document) {
        m_edited.emplace(GetParent(), *m_document);
        if (!Sheet() || !ShowSheet()) m_edited.reset();
    }
    const bool any = IsOverGraphics();
    ArrangeScrollBars();
    if (m_edited) Sheet()->ShowWindow(any ? SW_SHOWNA : SW_HIDE);
    m_nothing.ShowWindow(any ? SW_HIDE : SW_SHOWNA);
    SendMessage(WM_SETREDRAW, TRUE);
    ::RedrawWindow(m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    if (within && any)
        SetFocusWithin(*within);
    else if (focus != ::GetFocus())
        ::SetFocus(::IsWindow(focus) ? focus : GetParent()->m_hWnd);
}

// A sheet over an empty selection also has pages, but the user has not selected one of them.
void CPropertiesPane::DropSheet() {
    if (IsOverGraphics()) m_edited->sheet.RememberPage();
    m_edited.reset();
}

bool CPropertiesPane::ShowSheet() {
    CGraphicPropertySheet* sheet = Sheet();
    m_edited->sheet.ChooseRememberedPage();
    if (!sheet->Create(this, WS_CHILD | WS_CLIPCHILDREN | DS_CONTROL, WS_EX_CONTROLPARENT)) return false;
    sheet->SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    m_sheetSize = PlaceIn(m_hWnd, sheet->m_hWnd).Size();
    ::SetWindowSubclass(sheet->m_hWnd, OnSheetMessage, 1, reinterpret_cast<DWORD_PTR>(this));
    AddButtons();
    return true;
}

// In the same place as in a modal sheet: in the column beside the page, above the preview.
void CPropertiesPane::AddButtons() {
    const HWND sheet = Sheet()->m_hWnd, page = Sheet()->GetActivePage()->m_hWnd;
    CRect units(4, 4, 50, 14); // in dialog units
    ::MapDialogRect(page, units);
    const CSize gap(units.left, units.top), size(units.right, units.bottom);
    CRect client;
    ::GetClientRect(sheet, client);
    const LRESULT font = ::SendMessageA(page, WM_GETFONT, 0, 0);
    CPoint place(client.right - 2 * gap.cx - size.cx, PlaceIn(sheet, page).top + gap.cy);
    for (const Button& button : kButtons) {
        const DWORD kind = button.id == IDOK ? WS_GROUP | BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
        const HWND window = ::CreateWindowExA(
            0, "BUTTON", button.text, WS_CHILD | WS_VISIBLE | WS_TABSTOP | kind, place.x, place.y, size.cx, size.cy,
            sheet, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(button.id)), nullptr, nullptr);
        ::SendMessageA(window, WM_SETFONT, static_cast<WPARAM>(font), FALSE);
        place.y += size.cy + gap.cy;
    }
    ::SendMessageA(sheet, DM_SETDEFID, IDOK, 0);
}

// ---- Writing

bool CPropertiesPane::IsTyped() const {
    COrloPropertyPage* page = ActivePage();
    return page && !m_isStale && page->IsModified();
}

bool CPropertiesPane::Apply() {
    if (!m_document || !m_isOpen) return true;
    if (IsTyped()) {
        const HWND focus = ::GetFocus();
        COrloPropertyPage* page = ActivePage();
        if (!page->OnKillActive()) return false;
        page->OnOK();
        page->OnSetActive();     // marks all controls as unchanged
        page->UpdateData(FALSE); // shows the values written, such as "1.5" for "2*3/4"
        page->SetModified(FALSE);
        if (::IsChild(page->m_hWnd, focus)) ::SetFocus(focus);
    }
    if (const int changed = m_document->CommitTransaction()) m_applied(changed);
    return true;
}

void CPropertiesPane::Reset() {
    if (m_document && m_isOpen) m_document->RollBackTransaction();
    Follow();
}

// ---- Keyboard and buttons

LRESULT CALLBACK CPropertiesPane::OnSheetMessage(HWND sheet, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                                 DWORD_PTR pane) {
    const auto* self = reinterpret_cast<CPropertiesPane*>(pane);
    if (message == WM_NCDESTROY) ::RemoveWindowSubclass(sheet, OnSheetMessage, id);
    const auto control = reinterpret_cast<HWND>(lParam);
    if (message == WM_COMMAND && (!control || ::GetParent(control) == sheet)) {
        switch (LOWORD(wParam)) {
        case IDOK:
        case IDCANCEL:
        case ID_PANE_RESET:
            return self->SendMessage(WM_COMMAND, LOWORD(wParam));
        case ID_VIEW_PROPERTIES: // closes the pane
            return ::PostMessageA(::GetParent(self->m_hWnd), WM_COMMAND, LOWORD(wParam), 0);
        }
    }
    return ::DefSubclassProc(sheet, message, wParam, lParam);
}

void CPropertiesPane::OnApply() {
    Apply();
}

void CPropertiesPane::OnCancel() {
    Reset();
    GetParent()->SendMessage(WM_COMMAND, ID_VIEW_SWITCH_PANE);
}

// Returns null for a page of another class, created by a regen method.
COrloPropertyPage* CPropertiesPane::ActivePage() const {
    CPropertyPage* page = Sheet() ? Sheet()->GetActivePage() : nullptr;
    const bool isOrlos = page && page->IsKindOf(RUNTIME_CLASS(COrloPropertyPage));
    return isOrlos ? static_cast<COrloPropertyPage*>(page) : nullptr;
}

std::optional<CPropertiesPane::Focus> CPropertiesPane::FocusWithin() const {
    const COrloPropertyPage* page = ActivePage();
    HWND control = ::GetFocus();
    if (!page || !HasFocus() || control == Sheet()->m_hWnd || control == page->m_hWnd) return std::nullopt;
    const bool inPage = ::IsChild(page->m_hWnd, control);
    while (::GetParent(control) != (inPage ? page->m_hWnd : Sheet()->m_hWnd)) // the edit field of a combo box
        control = ::GetParent(control);
    return Focus{inPage, ::GetDlgCtrlID(control)};
}

void CPropertiesPane::SetFocusWithin(const Focus& focus) {
    const CWnd* parent = focus.inPage ? static_cast<CWnd*>(ActivePage()) : Sheet();
    const HWND control = parent ? ::GetDlgItem(parent->m_hWnd, focus.control) : nullptr;
    if (!control || !::IsWindowVisible(control)) return TakeFocus();
    Sheet()->SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

void CPropertiesPane::TakeFocus() {
    if (m_isStale) Renew();
    if (!Sheet() || !Sheet()->IsWindowVisible()) return;
    const HWND first = ::GetNextDlgTabItem(Sheet()->GetActivePage()->m_hWnd, nullptr, FALSE);
    Sheet()->SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
}
