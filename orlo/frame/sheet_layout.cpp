// The layout of CGraphicPropertySheet, and the frame painted around the page and the column beside it.

#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/graphic_property_sheet.h"

#include <afxext.h>

#include <algorithm>

#include "orlo/win/child_windows.h"
#include "orlo/win/gdi.h"

namespace {

constexpr int kButtonIds[] = {IDOK, IDCANCEL, ID_HELP};
constexpr unsigned int kButtonTexts = 0xF220; // strings of the framework: caption, line feed, width in dialog units
constexpr unsigned int kFramePainted = 0x58D; // posted to the host after each paint
constexpr int kFrame = 3;                     // space for the three-dimensional frame, in pixels

CRect WindowRect(HWND window) {
    CRect rect;
    ::GetWindowRect(window, &rect);
    return rect;
}

} // namespace

int CGraphicPropertySheet::ButtonColumnWidth(int (&widths)[3]) {
    int widest = 0;
    const CPropertyPage* page = GetActivePage();
    for (int i = 0; i < 3; ++i) {
        char text[256] = "";
        AfxLoadString(kButtonTexts + i, text, sizeof text);
        widths[i] = ButtonWidth(page->m_hWnd, text, m_sizeButton.cx);
        if (IsShown(::GetDlgItem(m_hWnd, kButtonIds[i]))) widest = std::max(widest, widths[i]);
    }
    return widest;
}

void CGraphicPropertySheet::PlaceButtons(int left, int top, const int (&widths)[3]) {
    for (int i = 0; i < 3; ++i) {
        const HWND button = ::GetDlgItem(m_hWnd, kButtonIds[i]);
        if (!IsShown(button)) continue;
        ::MoveWindow(button, left, top, widths[i], m_sizeButton.cy, TRUE);
        top += m_cxButtonGap + m_sizeButton.cy;
    }
}

// Returns the size of all pages in pixels: the larger of the active page's size and the largest m_sizeWanted, limited
// by the monitor's work area. `beside` is the size of the rest of the sheet. A page that has to scroll gets space for
// its scroll bar.
CSize CGraphicPropertySheet::PageSize(const CPropertyPage& active, CSize beside) const {
    CRect wanted;
    for (int i = 0; i < GetPageCount(); ++i) {
        if (!GetPage(i)->IsKindOf(RUNTIME_CLASS(CGraphicPropertyPage))) continue;
        const CSize units = static_cast<CGraphicPropertyPage*>(GetPage(i))->m_sizeWanted;
        wanted.right = std::max(wanted.right, units.cx);
        wanted.bottom = std::max(wanted.bottom, units.cy);
    }
    ::MapDialogRect(active.m_hWnd, &wanted);
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoA(::MonitorFromWindow(m_hWnd, MONITOR_DEFAULTTOPRIMARY), &monitor);
    const CRect workArea = monitor.rcWork;
    const LONG height = workArea.Height() - beside.cy, width = workArea.Width() - beside.cx;
    if (wanted.bottom > height) wanted.right += ::GetSystemMetrics(SM_CXVSCROLL);
    const CRect now = WindowRect(active.m_hWnd);
    return CSize(std::max<int>(now.Width(), std::min(wanted.right, width)),
                 std::max<int>(now.Height(), std::min(wanted.bottom, height)));
}

void CGraphicPropertySheet::RecalcLayout() {
    CPropertyPage* page = GetActivePage();
    if (page == nullptr || page->m_hWnd == nullptr) return;
    const int mx = m_sizeTabMargin.cx, my = m_sizeTabMargin.cy;
    const int cxSide = std::max<int>(m_cxPreview + mx + kFrame, m_sizeButton.cx + mx);
    const HWND tabs = GetTabControl()->m_hWnd;
    const UINT keep = SWP_NOZORDER | SWP_NOACTIVATE;
    ::SetWindowPos(tabs, nullptr, 0, 0, WindowRect(tabs).Width(), 0,
                   keep | SWP_NOMOVE); // the tab control sets its own height
    CRect beside(0, 0, 2 * mx + kFrame + cxSide, WindowRect(tabs).Height() + 2 * my + kFrame + 1);
    ::AdjustWindowRectEx(&beside, ::GetWindowLongA(m_hWnd, GWL_STYLE), FALSE, ::GetWindowLongA(m_hWnd, GWL_EXSTYLE));
    const CSize pageSize = PageSize(*page, beside.Size());

    const int cxBody = pageSize.cx + 2 * mx + kFrame;
    const int cxSheet = cxBody + cxSide;

    ::SetWindowPos(tabs, nullptr, mx, my, cxSheet - 2 * mx, 0, keep);
    const int cyTab = WindowRect(tabs).Height();

    const int cySheet = cyTab + pageSize.cy + 2 * my + kFrame + 1;
    CRect frame(0, 0, cxSheet, cySheet);
    ::AdjustWindowRectEx(&frame, ::GetWindowLongA(m_hWnd, GWL_STYLE), FALSE, ::GetWindowLongA(m_hWnd, GWL_EXSTYLE));
    const CPoint place = GetCenteredPlace(frame.Size());
    ::SetWindowPos(m_hWnd, nullptr, place.x, place.y, frame.Width(), frame.Height(), keep);

    ::SetWindowPos(page->m_hWnd, nullptr, mx + 1, cyTab + my, cxBody - 2 * mx, pageSize.cy, keep);

    if (!m_bModeless) {
        int widths[3];
        const int cxButtons = ButtonColumnWidth(widths);
        PlaceButtons(cxSheet - 2 * mx - cxButtons, cyTab + 2 * my, widths);
    }

    const int right = cxSheet - 2 * mx, bottom = cyTab + pageSize.cy;
    ::MoveWindow(m_wndPreview.m_hWnd, right - m_cxPreview, bottom - m_cyPreview, m_cxPreview, m_cyPreview, FALSE);
}

namespace {

void DrawCorner(HDC dc, int systemColor, const POINT (&points)[3]) {
    const orlo::OwnedPen pen(::CreatePen(PS_SOLID, 1, ::GetSysColor(systemColor)));
    const orlo::SelectedObject selected(dc, pen.get());
    ::MoveToEx(dc, points[0].x, points[0].y, nullptr);
    ::LineTo(dc, points[1].x, points[1].y);
    ::LineTo(dc, points[2].x, points[2].y);
}

} // namespace

void CGraphicPropertySheet::OnPaint() {
    CPropertyPage* page = GetActivePage();
    if (page == nullptr) {
        Default();
        return;
    }
    CRect client;
    ::GetClientRect(m_hWnd, &client);
    CRect r = WindowRect(page->m_hWnd);
    ScreenToClient(&r);
    r.right = client.right - m_sizeTabMargin.cy;
    r.InflateRect(1, 1);
    {
        CPaintDC dc(this);
        dc.SetBkMode(TRANSPARENT);
        DrawCorner(dc.m_hDC, COLOR_BTNHIGHLIGHT, {{r.right - 1, r.top}, {r.left, r.top}, {r.left, r.bottom}});
        DrawCorner(dc.m_hDC, COLOR_BTNSHADOW, {{r.left, r.bottom}, {r.right - 1, r.bottom}, {r.right - 1, r.top}});
        DrawCorner(dc.m_hDC, COLOR_BTNTEXT, {{r.right, r.top}, {r.right, r.bottom + 1}, {r.left - 1, r.bottom + 1}});
    }
    PostMessage(kFramePainted, 0, reinterpret_cast<LPARAM>(m_wndPreview.m_hWnd));
}
