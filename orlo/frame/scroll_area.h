// Scrolls the children of a window that can be smaller than its contents, by the window's own scroll bars, the wheel of
// the mouse, and the focus. Used by pages and panes.
#pragma once

#include <afxwin.h>

class ScrollArea {
public:
    // Sets the size of the contents in pixels; empty: nothing to scroll.
    void SetContents(HWND window, CSize contents);
    // Returns where the upper left corner of the contents is in the window.
    CPoint Place() const { return m_place; }
    // Handles the messages of the window that scroll or resize it. Returns whether this was one that must not go on.
    bool Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    // Scrolls as far as needed to show a control in the window, a child or a descendant.
    void Reveal(HWND window, HWND control);

private:
    void ArrangeBars(HWND window);
    void Scroll(HWND window, int bar, int code);
    void ScrollBy(HWND window, CSize pixels);

    CSize m_contents;
    CPoint m_place; // of the contents' upper left corner; never positive
};
