// The bottom line of the main window.

#include "demo/viewer/status_line.h"

namespace {

constexpr int kSelectionWidth = 170; // pixels
constexpr int kPointerWidth = 230;
constexpr int kProgressWidth = 200;
constexpr UINT kProgressId = 1;

} // namespace

IMPLEMENT_DYNAMIC(CStatusLine, CStatusBarCtrl)

CStatusLine::CStatusLine() = default;
CStatusLine::~CStatusLine() = default;

BOOL CStatusLine::Create(CWnd* parent, UINT id) {
    if (!CStatusBarCtrl::Create(WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, CRect(), parent, id)) return FALSE;
    if (!m_progress.Create(WS_CHILD, CRect(), this, kProgressId)) return FALSE;
    m_progress.SetRange32(0, 1000);
    return TRUE;
}

int CStatusLine::Height() const {
    CRect rect;
    GetWindowRect(rect);
    return rect.Height();
}

void CStatusLine::Arrange() {
    SendMessage(WM_SIZE); // it finds its own place in the parent
    CRect client;
    GetClientRect(client);
    const int pointer = client.right - kPointerWidth;
    int rightEdges[kPanes] = {pointer - kSelectionWidth, pointer, -1};
    SetParts(kPanes, rightEdges);
    CRect pane;
    GetRect(kMessage, pane);
    m_progress.MoveWindow(pane.right - kProgressWidth, pane.top + 2, kProgressWidth - 4, pane.Height() - 4);
}

void CStatusLine::ShowText(Pane pane, const std::string& text) {
    if (m_texts[pane] == text) return;
    m_texts[pane] = text;
    SetText((" " + text).c_str(), pane, 0);
}

void CStatusLine::StartProgress(const std::string& text) {
    m_permille = -1;
    ShowMessage(text);
    ShowProgress(0);
    m_progress.ShowWindow(SW_SHOWNA);
    UpdateWindow();
}

void CStatusLine::ShowProgress(int permille) {
    if (permille == m_permille) return;
    m_permille = permille;
    m_progress.SetPos(permille);
    m_progress.UpdateWindow();
}

void CStatusLine::EndProgress() {
    m_progress.ShowWindow(SW_HIDE);
    ShowMessage("");
}
