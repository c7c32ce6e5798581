// The window that shows a drawing.

#include "demo/viewer/drawing_view.h"

#include <cstdlib>

#include "drawcore/view.h"

namespace {

constexpr int kMargin = 24;     // margin in pixels around the whole drawing
constexpr int kReach = 4;       // distance in pixels at which a click selects a graphic
constexpr int kDragStart = 4;   // distance in pixels at which a click becomes a drag
constexpr int kPanStep = 60;    // pixels an arrow key pans
constexpr int kPenOverhang = 8; // distance in pixels that a wide pen may extend beyond the extents of a graphic

constexpr UINT_PTR kRedrawTimer = 1;
constexpr UINT kRedrawDelay = 60; // milliseconds without movement after which the exact picture is drawn
constexpr UINT kTimeSlice = 10;   // milliseconds of drawing between checks for messages

Selection::Operation OperationFor(UINT mouseFlags) {
    if (mouseFlags & MK_CONTROL) return Selection::Operation::Toggle;
    if (mouseFlags & MK_SHIFT) return Selection::Operation::Add;
    return Selection::Operation::Replace;
}

} // namespace

IMPLEMENT_DYNAMIC(CDrawingView, CWnd)

BEGIN_MESSAGE_MAP(CDrawingView, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MBUTTONDOWN()
ON_WM_MBUTTONUP()
ON_WM_MOUSEMOVE()
ON_WM_MOUSEWHEEL()
ON_WM_KEYDOWN()
ON_WM_CAPTURECHANGED()
ON_WM_TIMER()
END_MESSAGE_MAP()

CDrawingView::CDrawingView(DrawingViewClient& client) : m_client(client) {
    SetBackground(kDarkBackground);
}

BOOL CDrawingView::Create(CWnd* parent, UINT id) {
    return CWnd::Create(nullptr, "Drawing", WS_CHILD | WS_VISIBLE, CRect(), parent, id);
}

void CDrawingView::SetDocument(Document* document) {
    EndDrag();
    SetChangeListener(nullptr);
    m_document = document;
    const ChangeListener listener = {this, OnGraphicChanging};
    SetChangeListener(&listener);
    m_camera.SetDrawing(document ? document->Drawing() : nullptr);
    m_cachedView.SetDocument(document);
    InvalidateAll();
    FitAll();
}

// ---- Zooming and panning

void CDrawingView::FitAll() {
    if (!m_document) return;
    FitTo(m_document->Root());
    m_isFitted = true;
}

void CDrawingView::FitSelection() {
    if (m_document) FitTo(m_document->Selected().Set());
}

void CDrawingView::FitTo(GraphicStruct* graphic) {
    m_camera.Fit(graphic, kMargin);
    m_isFitted = false;
    InvalidateAll();
}

void CDrawingView::Zoom(double factor, CPoint anchor) {
    m_cachedView.Zoom(factor, anchor);
    m_isFitted = false;
    ShowMove();
}

void CDrawingView::Pan(CSize pixels) {
    m_cachedView.Pan(pixels);
    m_isFitted = false;
    ShowMove();
}

void CDrawingView::Redraw() {
    InvalidateAll();
}

void CDrawingView::SetChangeListener(const ChangeListener* listener) {
    if (m_document) ::DrawingSetChangeListener(m_document->Drawing(), listener);
}

void CDrawingView::OnGraphicChanging(void* view) {
    CDrawingView& self = *static_cast<CDrawingView*>(view);
    if (self.m_cachedView.IsInvalid()) return;
    self.InvalidateAll();
    self.m_client.OnDrawingChanging();
}

void CDrawingView::SetBackground(COLORREF background) {
    m_background = background;
    ::ViewportSetBackground(m_camera.Viewport(), background);
    m_cachedView.SetBackground(background);
    InvalidateAll();
}

void CDrawingView::ShowLineWeights(bool show) {
    m_lineWeights = show;
    ::ViewportShowLineWeights(m_camera.Viewport(), show);
    InvalidateAll();
}

// ---- Selecting

void CDrawingView::SelectAll() {
    if (m_document) Select(m_document->Selectable(), Selection::Operation::Replace);
}

void CDrawingView::SelectNext(bool forward) {
    GraphicStruct* next = m_document ? m_document->Next(forward) : nullptr;
    if (!next) return;
    Select({next}, Selection::Operation::Replace);
    const std::optional<WorldBox> box = ExtentsOf(next);
    if (box && !m_camera.Visible().Contains(*box) && !box->Contains(m_camera.Visible())) {
        m_camera.CenterOn(box->Center());
        m_isFitted = false;
        InvalidateAll();
    }
}

void CDrawingView::ClearSelection() {
    EndDrag();
    if (m_document) Select({}, Selection::Operation::Replace);
}

void CDrawingView::Select(const std::vector<GraphicStruct*>& graphics, Selection::Operation operation) {
    if (!m_client.MayChangeSelection()) return;
    m_document->Selected().Apply(graphics, operation);
    ShowSelectionChange();
}

void CDrawingView::ShowSelectionChange() {
    if (const std::optional<WorldBox> changed = m_document->Selected().TakeChanged()) {
        CRect area = m_camera.ToPixels(*changed);
        area.InflateRect(SelectionHighlight::kRadius + kPenOverhang, SelectionHighlight::kRadius + kPenOverhang);
        m_cachedView.InvalidateHighlight(area);
        InvalidateRect(area, FALSE);
    }
    m_client.OnSelectionChanged();
}

// ---- Mouse and keyboard

void CDrawingView::OnLButtonDown(UINT, CPoint point) {
    SetFocus();
    if (!m_document || m_drag != Drag::None) return;
    m_drag = Drag::Press;
    m_dragFrom = point;
    SetCapture();
}

void CDrawingView::OnMButtonDown(UINT, CPoint point) {
    SetFocus();
    if (!m_document || m_drag != Drag::None) return;
    m_drag = Drag::Pan;
    m_dragFrom = point;
    SetCapture();
}

void CDrawingView::OnMouseMove(UINT, CPoint point) {
    m_client.OnPointerMoved(m_camera.ToWorld(point));
    const CSize offset = point - m_dragFrom;
    if (m_drag == Drag::Press && (std::abs(offset.cx) >= kDragStart || std::abs(offset.cy) >= kDragStart)) {
        m_drag = Drag::Band;
        m_band.Start(m_dragFrom);
    }
    if (m_drag == Drag::Band) {
        MoveBand(point);
    } else if (m_drag == Drag::Pan) {
        Pan(offset);
        m_dragFrom = point;
    }
}

void CDrawingView::MoveBand(CPoint point) {
    InvalidateRect(m_band.Frame(), FALSE);
    m_band.MoveTo(point);
    InvalidateRect(m_band.Frame(), FALSE);
}

void CDrawingView::OnLButtonUp(UINT flags, CPoint point) {
    const Drag drag = m_drag;
    const CRect frame = m_band.Frame();
    const bool crossing = m_band.IsCrossing();
    EndDrag();
    if (drag == Drag::Band) {
        Select(Within(frame, crossing), OperationFor(flags));
    } else if (drag == Drag::Press) {
        GraphicStruct* graphic = At(point);
        if (graphic)
            Select({graphic}, OperationFor(flags));
        else if (OperationFor(flags) == Selection::Operation::Replace)
            Select({}, Selection::Operation::Replace);
    }
}

// The first click has selected the graphic.
void CDrawingView::OnLButtonDblClk(UINT flags, CPoint point) {
    EndDrag();
    if (m_document && !(flags & (MK_CONTROL | MK_SHIFT)) && At(point)) m_client.OnEditProperties();
}

GraphicStruct* CDrawingView::At(CPoint point) const {
    return ::ViewportPick(m_camera.Viewport(), m_document->Root(), point, kReach, kAllGraphics);
}

std::vector<GraphicStruct*> CDrawingView::Within(const CRect& frame, bool crossing) const {
    const Selection found;
    ::ViewportPickWindow(m_camera.Viewport(), m_document->Root(), frame, crossing, kAllGraphics, found.Set());
    return found.Members();
}

void CDrawingView::OnMButtonUp(UINT, CPoint) {
    if (m_drag == Drag::Pan) EndDrag();
}

BOOL CDrawingView::OnMouseWheel(UINT, short delta, CPoint screenPoint) {
    CPoint point = screenPoint;
    ScreenToClient(&point);
    if (m_document) Zoom(delta > 0 ? kZoomStep : 1 / kZoomStep, point);
    return TRUE;
}

void CDrawingView::OnKeyDown(UINT key, UINT, UINT) {
    switch (key) {
    case VK_LEFT:
        Pan(CSize(kPanStep, 0));
        break;
    case VK_RIGHT:
        Pan(CSize(-kPanStep, 0));
        break;
    case VK_UP:
        Pan(CSize(0, kPanStep));
        break;
    case VK_DOWN:
        Pan(CSize(0, -kPanStep));
        break;
    default:
        Default();
    }
}

void CDrawingView::OnCaptureChanged(CWnd*) {
    m_drag = Drag::None;
    if (m_band.IsActive()) InvalidateRect(m_band.Frame(), FALSE);
    m_band.End();
}

void CDrawingView::EndDrag() {
    if (m_drag != Drag::None) ::ReleaseCapture(); // ends in OnCaptureChanged
}

// ---- Painting

void CDrawingView::OnSize(UINT, int cx, int cy) {
    m_camera.SetWindow(CSize(cx, cy));
    m_cachedView.Resize(CSize(cx, cy));
    if (m_isFitted) FitAll();
    InvalidateAll();
}

BOOL CDrawingView::OnEraseBkgnd(CDC*) {
    return TRUE; // painting covers the whole area
}

void CDrawingView::InvalidateAll() {
    m_cachedView.InvalidateAll();
    if (m_hWnd) Invalidate(FALSE);
}

void CDrawingView::ShowMove() {
    Invalidate(FALSE);
    if (m_cachedView.IsMoved()) SetTimer(kRedrawTimer, kRedrawDelay);
}

// Called when the view has not moved for a while, or to continue interrupted drawing.
void CDrawingView::OnTimer(UINT_PTR) {
    KillTimer(kRedrawTimer);
    if (IsExact()) return;
    while (!m_cachedView.Finish(kTimeSlice)) {
        if (!HIWORD(::GetQueueStatus(QS_INPUT | QS_POSTMESSAGE | QS_PAINT))) continue;
        SetTimer(kRedrawTimer, kTimeSlice);
        return;
    }
    Invalidate(FALSE);
}

void CDrawingView::OnPaint() {
    m_cachedView.Renew();
    CPaintDC dc(this);
    const CRect area(dc.m_ps.rcPaint);
    if (!m_cachedView.Dc()) return;
    MemoryPicture frame; // avoids flicker of the rubber band
    if (!m_band.IsActive() || !frame.Resize(area.Size())) {
        ::BitBlt(dc.m_hDC, area.left, area.top, area.Width(), area.Height(), m_cachedView.Dc(), area.left, area.top,
                 SRCCOPY);
        return;
    }
    ::BitBlt(frame.Dc(), 0, 0, area.Width(), area.Height(), m_cachedView.Dc(), area.left, area.top, SRCCOPY);
    ::SetViewportOrgEx(frame.Dc(), -area.left, -area.top, nullptr);
    m_band.Draw(frame.Dc());
    ::BitBlt(dc.m_hDC, area.left, area.top, area.Width(), area.Height(), frame.Dc(), area.left, area.top, SRCCOPY);
}
