// Scrolls the children of a window that is smaller than its contents, with the window's scroll bars, the mouse wheel,
// and the focus. Used by pages and panes.
#pragma once

#include <afxwin.h>

class ScrollArea {
public:
    // Sets the size of the contents in pixels; empty for no scrolling.
    void SetContents(HWND window, CSize contents);
    // Returns the position of the contents' upper left corner in the window.
    CPoint Place() const { return m_place; }
    // Handles messages that scroll or resize the window. Returns whether the message must not be processed further.
    bool Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    // Scrolls to make a control visible that is a child or descendant of the window.
    void Reveal(HWND window, HWND control);

private:
    void ArrangeBars(HWND window);
    void Scroll(HWND window, int bar, int code);
    void ScrollBy(HWND window, CSize pixels);

    CSize m_contents;
    CPoint m_place; // position of the contents' upper left corner; never positive
};
