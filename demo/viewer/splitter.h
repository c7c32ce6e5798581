// The splitter between drawing and pane.
#pragma once

#include <afxwin.h>

#include <functional>

class CSplitter : public CWnd {
    DECLARE_DYNAMIC(CSplitter)
public:
    // Called during and (done) after a drag with the requested left edge, in client coordinates of the parent.
    using Dragged = std::function<void(int left, bool done)>;

    explicit CSplitter(Dragged dragged);

    BOOL Create(CWnd* parent, UINT id); // creates it hidden

protected:
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void DragTo(int x, bool done);

    Dragged m_dragged;
    int m_grip = 0; // offset of the pointer in the splitter at the start of the drag
};
