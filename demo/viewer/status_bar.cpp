// The status bar of the main window.

#include "demo/viewer/status_bar.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

// At 96 dpi.
constexpr int kPaneMargin = 16;
constexpr int kProgressWidth = 200;
constexpr UINT kProgressId = 1;

constexpr char kEllipsis[] = "...";

} // namespace

IMPLEMENT_DYNAMIC(CStatusBar, CStatusBarCtrl)

BOOL CStatusBar::Create(CWnd* parent, UINT id) {
    if (!CStatusBarCtrl::Create(WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP | SBARS_TOOLTIPS, CRect(), parent, id))
        return FALSE;
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
    ArrangePanes();
}

void CStatusBar::ArrangePanes() {
    CRect client;
    GetClientRect(client);
    const int available = client.Width() - ::GetSystemMetrics(SM_CXVSCROLL); // without the size grip
    std::string texts[kPanes];
    int widths[kPanes];
    const auto setText = [&](Pane pane, const std::string& text) {
        texts[pane] = text;
        widths[pane] = WidthFor(text);
    };
    for (const Pane pane : {kMessage, kSelection, kWidths, kPointer})
        setText(pane, m_texts[pane].full);
    widths[kPointer] = m_pointerWidth = std::max(m_pointerWidth, widths[kPointer]);
    if (m_progress.IsWindowVisible()) widths[kMessage] += Scaled(kProgressWidth);
    const auto excess = [&] { return std::accumulate(widths, widths + kPanes, 0) - available; };
    for (const Pane pane : {kWidths, kSelection})
        if (excess() > 0) setText(pane, m_texts[pane].brief);
    // The widest pane is shortened first, to no less than a fourth of the bar.
    for (int* widest; excess() > 0; *widest -= std::min(excess(), std::max(*widest - available / kPanes, 1)))
        widest = std::max_element(widths, widths + kPanes);
    widths[kMessage] -= excess();

    int rightEdges[kPanes];
    std::partial_sum(widths, widths + kPanes, rightEdges);
    rightEdges[kPointer] = -1; // including the size grip
    SetParts(kPanes, rightEdges);
    PlaceProgress(widths[kMessage]);
    for (int pane = 0; pane < kPanes; ++pane)
        SetPane(pane, texts[pane], widths[pane]);
}

// Places the progress bar at the right end of the message's pane.
void CStatusBar::PlaceProgress(int& messageWidth) {
    if (!m_progress.IsWindowVisible()) return;
    CRect pane;
    GetRect(kMessage, pane);
    const int width = std::min(Scaled(kProgressWidth), pane.Width() / 2);
    m_progress.MoveWindow(pane.right - width, pane.top + 2, width - 4, pane.Height() - 4);
    messageWidth -= width;
}

void CStatusBar::SetPane(int pane, const std::string& text, int width) {
    const std::string& full = m_texts[pane].full;
    const std::string shown = Fitting(text, width);
    SetText((" " + shown).c_str(), pane, 0);
    SendMessage(SB_SETTIPTEXTA, static_cast<WPARAM>(pane), reinterpret_cast<LPARAM>(shown == full ? "" : full.c_str()));
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

std::string CStatusBar::Fitting(const std::string& text, int width) const {
    if (WidthFor(text) <= width) return text;
    size_t length = text.size();
    while (length > 0 && WidthFor(text.substr(0, length) + kEllipsis) > width)
        --length;
    return text.substr(0, length) + kEllipsis;
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
    m_pointerWidth = 0;
}

void CStatusBar::ShowMessage(const std::string& text) {
    if (std::exchange(m_texts[kMessage], StatusText{text, text}).full != text) ArrangePanes();
}

void CStatusBar::ShowSelection(const StatusText& kinds, const StatusText& widths) {
    if (kinds.full == m_texts[kSelection].full && widths.full == m_texts[kWidths].full) return;
    m_texts[kSelection] = kinds;
    m_texts[kWidths] = widths;
    ArrangePanes();
}

void CStatusBar::ShowPointer(const std::string& text) {
    m_texts[kPointer] = {text, text};
    if (WidthFor(text) > m_pointerWidth)
        ArrangePanes();
    else
        SetPane(kPointer, text, m_pointerWidth);
}

void CStatusBar::StartProgress(const std::string& text) {
    m_permille = -1;
    ShowProgress(0);
    m_progress.ShowWindow(SW_SHOWNA);
    ShowMessage(text);
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
