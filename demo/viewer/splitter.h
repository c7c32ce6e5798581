// The bar between the drawing and the pane, which the user drags.
#pragma once

#include <afxwin.h>

#include <functional>

class CSplitter : public CWnd {
    DECLARE_DYNAMIC(CSplitter)
public:
    // Called with the left edge that the user wants, in client coordinates of the parent, during and (done) after a
    // drag.
    using Dragged = std::function<void(int left, bool done)>;

    explicit CSplitter(Dragged dragged);
    ~CSplitter() override;

    BOOL Create(CWnd* parent, UINT id); // hidden

protected:
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void DragTo(int x, bool done);

    Dragged m_dragged;
    int m_grip = 0; // where the bar was taken hold of
};
