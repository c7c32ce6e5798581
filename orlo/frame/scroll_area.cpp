// Scroll bars, wheel and focus of a ScrollArea.

#include "orlo/frame/scroll_area.h"

#include <algorithm>

#include "orlo/win/child_windows.h"
#include "orlo/win/screen_scale.h"

namespace {

constexpr int kLine = 20, kMargin = 8; // in pixels at 96 dpi
constexpr int kLinesOfWheel = 3;

// Returns the distance by which to scroll so that [low, high] is inside [0, end], or at least its beginning.
int DistanceInto(LONG low, LONG high, LONG end) {
    const LONG margin = ScreenPixels(kMargin);
    if (low < 0) return static_cast<int>(low - margin);
    return high > end ? static_cast<int>(std::min(high - end + margin, low)) : 0;
}

int ScrollDistance(const SCROLLINFO& info, int code) {
    switch (code) {
    case SB_LINEUP:
        return -ScreenPixels(kLine);
    case SB_LINEDOWN:
        return ScreenPixels(kLine);
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
}

// Returns the client area without scroll bars.
CSize AreaIn(HWND window) {
    RECT client;
    ::GetClientRect(window, &client);
    const LONG style = ::GetWindowLongA(window, GWL_STYLE);
    return CSize(client.right + (style & WS_VSCROLL ? ::GetSystemMetrics(SM_CXVSCROLL) : 0),
                 client.bottom + (style & WS_HSCROLL ? ::GetSystemMetrics(SM_CYHSCROLL) : 0));
}

void SetBar(HWND window, int bar, int contents, int area) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_PAGE | SIF_RANGE;
    info.nMax = std::max(contents - 1, 0);
    info.nPage = static_cast<UINT>(std::max(area, 0));
    ::SetScrollInfo(window, bar, &info, TRUE);
}

} // namespace

void ScrollArea::SetContents(HWND window, CSize contents) {
    m_contents = contents;
    ArrangeBars(window);
}

// A scroll bar for one direction reduces the space for the other, which may then need one too.
void ScrollArea::ArrangeBars(HWND window) {
    const CSize area = AreaIn(window);
    const int barWidth = ::GetSystemMetrics(SM_CXVSCROLL), barHeight = ::GetSystemMetrics(SM_CYHSCROLL);
    const bool tall = m_contents.cy > area.cy || (m_contents.cx > area.cx && m_contents.cy > area.cy - barHeight);
    const int width = area.cx - (tall ? barWidth : 0);
    const int height = area.cy - (m_contents.cx > width ? barHeight : 0);
    SetBar(window, SB_VERT, m_contents.cy, height);
    SetBar(window, SB_HORZ, m_contents.cx, width);
    ScrollBy(window, CSize());
}

// Limited by the scroll range.
void ScrollArea::ScrollBy(HWND window, CSize pixels) {
    const auto move = [window](int bar, int distance) {
        ::SetScrollPos(window, bar, ::GetScrollPos(window, bar) + distance, TRUE);
        return -::GetScrollPos(window, bar);
    };
    const CPoint place(move(SB_HORZ, pixels.cx), move(SB_VERT, pixels.cy));
    if (place == m_place) return;
    const CPoint before = m_place;
    m_place = place; // set first, because the call can send messages
    ::ScrollWindowEx(window, place.x - before.x, place.y - before.y, nullptr, nullptr, nullptr, nullptr,
                     SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
}

void ScrollArea::Scroll(HWND window, int bar, int code) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    ::GetScrollInfo(window, bar, &info);
    const int distance = ScrollDistance(info, code);
    ScrollBy(window, bar == SB_VERT ? CSize(0, distance) : CSize(distance, 0));
}

bool ScrollArea::Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SIZE:
        ArrangeBars(window);
        return false;
    case WM_HSCROLL:
    case WM_VSCROLL:
        if (lParam != 0) return false; // from a scroll bar control
        Scroll(window, message == WM_VSCROLL ? SB_VERT : SB_HORZ, LOWORD(wParam));
        return true;
    case WM_MOUSEWHEEL:
        if (m_contents.cy <= AreaIn(window).cy) return false; // for a parent that scrolls
        ScrollBy(window, CSize(0, ::MulDiv(-static_cast<short>(HIWORD(wParam)), kLinesOfWheel * ScreenPixels(kLine),
                                           WHEEL_DELTA)));
        return true;
    default:
        return false;
    }
}

void ScrollArea::Reveal(HWND window, HWND control) {
    RECT client;
    ::GetClientRect(window, &client);
    const RECT place = PlaceIn(window, control);
    ScrollBy(window, CSize(DistanceInto(place.left, place.right, client.right),
                           DistanceInto(place.top, place.bottom, client.bottom)));
}
