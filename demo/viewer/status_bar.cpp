// The status bar of the main window.

#include "demo/viewer/status_bar.h"

#include <algorithm>
#include <numeric>

namespace {

// At 96 dpi.
constexpr int kPaneMargin = 16;
constexpr int kPointerWidth = 230;
constexpr int kProgressWidth = 200;
constexpr UINT kProgressId = 1;

} // namespace

IMPLEMENT_DYNAMIC(CStatusBar, CStatusBarCtrl)

CStatusBar::CStatusBar() = default;
CStatusBar::~CStatusBar() = default;

BOOL CStatusBar::Create(CWnd* parent, UINT id) {
    if (!CStatusBarCtrl::Create(WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, CRect(), parent, id)) return FALSE;
    if (!m_progress.Create(WS_CHILD, CRect(), this, kProgressId)) return FALSE;
    m_progress.SetRange32(0, 1000);
    return TRUE;
}

int CStatusBar::Height() const {
    CRect rect;
    GetWindowRect(rect);
    return rect.Height();
}

void CStatusBar::Arrange() {
    SendMessage(WM_SIZE); // makes the control set its own position
    CRect client;
    GetClientRect(client);
    int widths[kPanes] = {};
    widths[kPointer] = Scaled(kPointerWidth);
    for (const int pane : {kSelection, kWidths})
        widths[pane] = WidthFor(m_texts[pane]);
    // The other panes take the space that they need from the message, up to a maximum; then the widest one is
    // truncated.
    const int most = client.Width() * (kPanes - 1) / kPanes;
    int excess = std::accumulate(widths, widths + kPanes, 0) - most;
    for (int* widest; excess > 0; excess = std::accumulate(widths, widths + kPanes, 0) - most) {
        widest = std::max_element(widths, widths + kPanes);
        *widest = std::max(*widest - excess, std::min(*widest - 1, most / (kPanes - 1)));
    }
    int rightEdges[kPanes];
    rightEdges[kPointer] = client.right;
    for (int pane = kPointer; pane > kMessage; --pane)
        rightEdges[pane - 1] = rightEdges[pane] - widths[pane];
    rightEdges[kPointer] = -1; // including the size grip
    SetParts(kPanes, rightEdges);
    CRect pane;
    GetRect(kMessage, pane);
    const int width = std::min(Scaled(kProgressWidth), pane.Width() / 2);
    m_progress.MoveWindow(pane.right - width, pane.top + 2, width - 4, pane.Height() - 4);
}

int CStatusBar::Scaled(int at96) const {
    return ::MulDiv(at96, m_dpi, 96);
}

int CStatusBar::WidthFor(const std::string& text) const {
    if (text.empty()) return 0;
    const orlo::WindowDC dc(m_hWnd);
    const orlo::SelectedObject font(dc.get(), reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
    SIZE size = {};
    ::GetTextExtentPoint32A(dc.get(), text.c_str(), static_cast<int>(text.size()), &size);
    return size.cx + Scaled(kPaneMargin);
}

void CStatusBar::SetDpi(int dpi) {
    NONCLIENTMETRICSA metrics = {};
    metrics.cbSize = sizeof metrics;
    const orlo::WindowDC screen(nullptr);
    if (!::SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0) || !screen.get()) return;
    m_dpi = dpi;
    LOGFONTA& font = metrics.lfStatusFont; // for the system's resolution
    font.lfHeight = ::MulDiv(font.lfHeight, dpi, ::GetDeviceCaps(screen.get(), LOGPIXELSY));
    orlo::OwnedFont sized(::CreateFontIndirectA(&font));
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(sized.get()), TRUE);
    m_font = std::move(sized);
}

bool CStatusBar::ShowText(Pane pane, const std::string& text) {
    if (m_texts[pane] == text) return false;
    m_texts[pane] = text;
    SetText((" " + text).c_str(), pane, 0);
    return true;
}

void CStatusBar::ShowSelection(const std::string& kinds, const std::string& widths) {
    const bool changed = ShowText(kSelection, kinds);
    if (ShowText(kWidths, widths) || changed) Arrange();
}

void CStatusBar::StartProgress(const std::string& text) {
    m_permille = -1;
    ShowMessage(text);
    ShowProgress(0);
    m_progress.ShowWindow(SW_SHOWNA);
    UpdateWindow();
}

void CStatusBar::ShowProgress(int permille) {
    if (permille == m_permille) return;
    m_permille = permille;
    m_progress.SetPos(permille);
    m_progress.UpdateWindow();
}

void CStatusBar::EndProgress() {
    m_progress.ShowWindow(SW_HIDE);
    ShowMessage("");
}
