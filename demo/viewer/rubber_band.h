// The rubber band for selecting by window: dragged to the right, it selects the graphics that it contains (blue), to
// the left also those that it touches (green, dashed).
#pragma once

#include <afxgdi.h>

class RubberBand {
public:
    void Start(CPoint at) {
        m_from = m_to = at;
        m_active = true;
    }
    void MoveTo(CPoint at) { m_to = at; }
    void End() { m_active = false; }

    bool IsActive() const { return m_active; }
    bool IsCrossing() const { return m_to.x < m_from.x; }
    CRect Frame() const; // including its lines
    void Draw(HDC dc) const;

private:
    CPoint m_from;
    CPoint m_to;
    bool m_active = false;
};
