// ChildWindows and ButtonWidth.

#include "orlo/win/child_windows.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

int ButtonWidth(HWND page, const char* text, int standard) {
    const char* feed = std::strchr(text, '\n');
    if (feed == nullptr) return standard;
    RECT width = {0, 0, std::atoi(feed + 1), 0};
    ::MapDialogRect(page, &width);
    return width.right - width.left;
}

bool ChildWindows::AreThoseOf(HWND window) const {
    if (m_parent != window) return false;
    if (m_last == nullptr) return ::GetWindow(window, GW_CHILD) == nullptr;
    return ::GetParent(m_last) == window && ::GetWindow(m_last, GW_HWNDNEXT) == nullptr;
}

const std::vector<HWND>& ChildWindows::Of(HWND window) {
    if (AreThoseOf(window)) return m_windows;
    std::vector<HWND> windows;
    HWND last = nullptr;
    ForEachChild(window, [&](HWND child) {
        windows.push_back(child);
        if (::GetParent(child) == window) last = child;
    });
    m_windows.swap(windows);
    m_parent = window;
    m_last = last;
    return m_windows;
}

HWND ChildWindows::WithId(HWND window, int id) const {
    const auto found = std::find_if(m_windows.begin(), m_windows.end(), [=](HWND child) {
        return ::GetDlgCtrlID(child) == id && ::GetParent(child) == window;
    });
    return found != m_windows.end() ? *found : ::GetDlgItem(window, id);
}
