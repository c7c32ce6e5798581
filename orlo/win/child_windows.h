// Child windows: iteration, a cached list, class, place and size.
#pragma once

#include <windows.h>

#include <vector>

// A system callback, not a lambda because of the calling convention in 32-bit programs.
template <class Visit>
BOOL CALLBACK VisitChild(HWND child, LPARAM visit) {
    (*reinterpret_cast<Visit*>(visit))(child);
    return TRUE;
}

// Calls visit(HWND) for each child window, recursively.
template <class Visit>
void ForEachChild(HWND window, Visit visit) {
    ::EnumChildWindows(window, VisitChild<Visit>, reinterpret_cast<LPARAM>(&visit));
}

// Returns whether the window is of that class, ignoring case.
inline bool IsOfClass(HWND window, const char* className) {
    char name[64] = "";
    ::GetClassNameA(window, name, sizeof name);
    return ::lstrcmpiA(name, className) == 0;
}

// Returns the size of a window in pixels.
inline SIZE WindowSize(HWND window) {
    RECT rect = {};
    ::GetWindowRect(window, &rect);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

// Returns the rectangle of a window in the client coordinates of another.
inline RECT PlaceIn(HWND parent, HWND window) {
    RECT rect = {};
    ::GetWindowRect(window, &rect);
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

// Returns false for null too.
inline bool IsShown(HWND window) {
    return window != nullptr && (::GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

// Returns the width in pixels of a button whose text is "caption\nwidth", in dialog units of the page; else `standard`.
int ButtonWidth(HWND page, const char* text, int standard);

// The child windows of a window, cached: listing them queries the children of each one, and searching for one lists
// all; a dialog does both for every field whenever it is shown.
class ChildWindows {
public:
    // Returns all child windows, recursively. Lists them again if the last one is no longer the last.
    const std::vector<HWND>& Of(HWND window);
    // Returns the direct child with that identifier, or null.
    HWND WithId(HWND window, int id) const;

private:
    bool AreThoseOf(HWND window) const;

    std::vector<HWND> m_windows;
    HWND m_parent = nullptr;
    HWND m_last = nullptr; // of the direct children
};
