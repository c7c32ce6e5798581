// Dragging of the splitter.

#include "demo/viewer/splitter.h"

#include <utility>

IMPLEMENT_DYNAMIC(CSplitter, CWnd)

BEGIN_MESSAGE_MAP(CSplitter, CWnd)
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

CSplitter::CSplitter(Dragged dragged) : m_dragged(std::move(dragged)) {}

BOOL CSplitter::Create(CWnd* parent, UINT id) {
    const HBRUSH face = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    const LPCSTR windowClass = AfxRegisterWndClass(0, ::LoadCursorA(nullptr, IDC_SIZEWE), face);
    return CWnd::Create(windowClass, "Splitter", WS_CHILD, CRect(), parent, id); // the name for screen readers
}

void CSplitter::OnLButtonDown(UINT, CPoint point) {
    m_grip = point.x;
    SetCapture();
}

void CSplitter::OnMouseMove(UINT, CPoint point) {
    if (::GetCapture() == m_hWnd) DragTo(point.x, false);
}

void CSplitter::OnLButtonUp(UINT, CPoint point) {
    if (::GetCapture() != m_hWnd) return;
    ::ReleaseCapture();
    DragTo(point.x, true);
}

void CSplitter::DragTo(int x, bool done) {
    CPoint left(x - m_grip, 0);
    ::MapWindowPoints(m_hWnd, GetParent()->m_hWnd, &left, 1);
    m_dragged(left.x, done);
}
