// Moves the cached view and draws its missing parts.

#include "demo/viewer/cached_view.h"

#include <chrono>
#include <cmath>
#include <utility>

#include "drawcore/view.h"
#include "orlo/host/walk.h"

namespace {

using Clock = std::chrono::steady_clock;

int MillisecondsSince(Clock::time_point start) {
    return static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count());
}

class Clipped {
public:
    Clipped(HDC dc, const CRect& area) : m_saved(dc) {
        ::IntersectClipRect(dc, area.left, area.top, area.right, area.bottom);
    }

private:
    orlo::SavedDC m_saved;
};

// One axis of a stretched bitmap: pixels of the bitmap and of the target.
struct Span {
    int from, fromLength, to, toLength;
};

// position: window coordinate of the bitmap's pixel 0; scale: window pixels per bitmap pixel; length: of both.
Span VisibleSpan(double position, double scale, int length) {
    const double first = std::clamp(std::floor(-position / scale), 0.0, static_cast<double>(length));
    const double last = std::clamp(std::ceil((length - position) / scale), first, static_cast<double>(length));
    const int begin = static_cast<int>(std::lround(position + first * scale)),
              end = static_cast<int>(std::lround(position + last * scale));
    return {static_cast<int>(first), static_cast<int>(last - first), begin, end - begin};
}

// Returns the parts of `all` that surround the inner rectangle.
std::vector<CRect> Around(const CRect& inner, const CRect& all) {
    CRect seen;
    if (!seen.IntersectRect(inner, all)) return {all};
    std::vector<CRect> gaps;
    for (const CRect& gap :
         {CRect(all.left, all.top, all.right, seen.top), CRect(all.left, seen.bottom, all.right, all.bottom),
          CRect(all.left, seen.top, seen.left, seen.bottom), CRect(seen.right, seen.top, all.right, seen.bottom)})
        if (!gap.IsRectEmpty()) gaps.push_back(gap);
    return gaps;
}

} // namespace

CachedView::CachedView(Camera& camera, int frameTime) : m_camera(camera), m_frameTime(frameTime) {}

void CachedView::SetDocument(Document* document) {
    m_document = document;
    InvalidateAll();
}

void CachedView::SetBackground(COLORREF background) {
    m_background = background;
    InvalidateAll();
}

void CachedView::Resize(CSize size) {
    m_picture.Resize(size);
    m_scene.Resize(size);
    InvalidateAll();
}

// ---- Movement

void CachedView::Zoom(double factor, CPoint anchor) {
    const bool along = StartMoving();
    m_camera.Zoom(factor, anchor);
    if (along)
        m_stretch = true;
    else
        InvalidateAll();
}

void CachedView::Pan(CSize pixels) {
    const bool along = StartMoving();
    m_camera.Pan(pixels);
    if (!along) return InvalidateAll();
    if (m_stretch) return; // stretching also moves it
    m_frame.Shift(pixels);
    for (CRect& gap : m_gaps)
        ::OffsetRect(&gap, pixels.cx, pixels.cy);
    for (const CRect& gap : Around(CRect(CPoint(pixels.cx, pixels.cy), Bounds().Size()), Bounds()))
        m_gaps.push_back(gap);
}

bool CachedView::StartMoving() {
    m_slice = {};
    if (m_moving) return true;
    if (!m_slow || m_invalid || !m_frame.Resize(m_scene.Size())) return false;
    Renew();
    m_sceneBox = m_camera.Visible();
    m_frame.CopyFrom(m_scene.Dc(), m_scene.Bounds());
    m_stretch = false;
    m_gaps.clear();
    return m_moving = true;
}

// After zooming, the whole frame is stretched from the scene, which is exact.
void CachedView::MoveFrame() {
    m_stretch = false;
    const CSize size = m_frame.Size();
    const WorldBox now = m_camera.Visible();
    const double scale = m_sceneBox.Width() / now.Width();
    const Span x = VisibleSpan((m_sceneBox.x1 - now.x1) / now.Width() * size.cx, scale, size.cx);
    const Span y = VisibleSpan((now.y2 - m_sceneBox.y2) / now.Height() * size.cy, scale, size.cy);
    const CRect to(CPoint(x.to, y.to), CSize(x.toLength, y.toLength));
    m_gaps = Around(to, Bounds());
    m_frame.Stretch(m_scene.Dc(), CRect(CPoint(x.from, y.from), CSize(x.fromLength, y.fromLength)), to);
    for (const CRect& gap : m_gaps)
        m_frame.Fill(gap, m_background);
}

void CachedView::DrawGaps() {
    const Clock::time_point start = Clock::now();
    for (CRect gap : std::exchange(m_gaps, {})) {
        if (!gap.IntersectRect(gap, Bounds())) continue;
        m_frame.Fill(gap, m_background);
        if (!m_document) continue;
        const Clipped clipped(m_frame.Dc(), gap);
        uint32_t place = 0;
        DrawOn(m_frame.Dc(), m_document->Root(), place, m_frameTime - MillisecondsSince(start));
    }
}

bool CachedView::Finish(int milliseconds) {
    if (!m_moving) return true;
    const Clock::time_point start = Clock::now();
    const bool done = FinishSince(start, milliseconds);
    m_slice.spent += MillisecondsSince(start);
    if (!done) return false;
    m_slow = m_slice.spent >= m_frameTime;
    m_moving = false;
    return true;
}

bool CachedView::FinishSince(Clock::time_point start, int milliseconds) {
    const auto left = [&] { return milliseconds - MillisecondsSince(start); };
    if (!m_slice.begun) {
        if (!m_next.Resize(m_picture.Size())) {
            InvalidateAll();
            return true;
        }
        m_next.Fill(m_next.Bounds(), m_background);
        m_slice.begun = true;
    }
    if (m_slice.part == TimeSlice::Part::Drawing) {
        if (m_document && !DrawOn(m_next.Dc(), m_document->Root(), m_slice.place, left())) return false;
        m_slice.part = TimeSlice::Part::Selection;
        m_slice.place = 0;
        if (HasHighlight()) m_highlight.Begin(m_next.Size(), m_next.Bounds());
    }
    if (SelectsAll())
        m_highlight.TakeFrom(m_next, m_background);
    else if (HasHighlight() && !DrawOn(m_highlight.Dc(), m_document->Selected().Set(), m_slice.place, left()))
        return false;
    std::swap(m_picture, m_next);
    m_scene.CopyFrom(m_picture.Dc(), m_scene.Bounds());
    if (HasHighlight()) m_highlight.DrawInto(m_scene);
    return true;
}

// ---- Drawing

void CachedView::InvalidateAll() {
    m_moving = false;
    m_invalid = true;
}

void CachedView::InvalidateHighlight(const CRect& area) {
    if (m_moving) InvalidateAll();
    m_invalidScene.UnionRect(m_invalidScene, area);
}

void CachedView::Renew() {
    if (m_moving) {
        if (m_stretch) MoveFrame();
        return DrawGaps();
    }
    const bool all = m_invalid;
    const Clock::time_point start = Clock::now();
    RenewPicture();
    RenewScene();
    if (all) m_slow = MillisecondsSince(start) >= m_frameTime;
}

void CachedView::RenewPicture() {
    if (!std::exchange(m_invalid, false)) return;
    m_picture.Fill(Bounds(), m_background);
    if (m_document) Draw(m_picture.Dc(), m_document->Root());
    m_invalidScene = Bounds();
}

void CachedView::RenewScene() {
    CRect area = m_invalidScene;
    area.IntersectRect(area, m_scene.Bounds());
    m_invalidScene.SetRectEmpty();
    if (area.IsRectEmpty()) return;
    m_scene.CopyFrom(m_picture.Dc(), area);
    if (!HasHighlight() || !m_highlight.Begin(m_scene.Size(), area)) return;
    if (SelectsAll())
        m_highlight.TakeFrom(m_picture, m_background);
    else
        Draw(m_highlight.Dc(), m_document->Selected().Set());
    m_highlight.DrawInto(m_scene);
}

// Drawing many graphics takes longer than comparing the numbers of graphics.
bool CachedView::SelectsAll() const {
    constexpr int kMany = 1000;
    const int selected = m_document ? m_document->Selected().Count() : 0;
    if (selected < kMany) return false;
    const auto all = orlo::host::Members(m_document->Root());
    int count = 0;
    for (auto member = all.begin(); member != all.end(); ++member)
        ++count;
    return count == selected;
}

void CachedView::Draw(HDC dc, GraphicStruct* graphic) {
    ::ViewportSetGDIStuff(m_camera.Viewport(), nullptr, dc, MM_TEXT, 1);
    ::GraphicDrawEx2(graphic, nullptr, m_camera.Viewport(), 0, 1);
}

bool CachedView::DrawOn(HDC dc, GraphicStruct* graphic, uint32_t& place, int milliseconds) {
    ::ViewportSetGDIStuff(m_camera.Viewport(), nullptr, dc, MM_TEXT, 1);
    return ::GraphicDrawTimed(graphic, m_camera.Viewport(), &place, milliseconds) != 0;
}
