// The window that shows a drawing: zooming, panning, selecting. It does not change the drawing; it notifies its client
// of the selection and of edit commands. The window is painted from a bitmap in memory.
#pragma once

#include <afxwin.h>

#include <vector>

#include "demo/viewer/cached_view.h"
#include "demo/viewer/camera.h"
#include "demo/viewer/document.h"
#include "demo/viewer/rubber_band.h"
#include "drawcore/undo.h"

class DrawingViewClient {
public:
    virtual ~DrawingViewClient() = default;
    // Returns whether the selection may change; called before each change.
    virtual bool MayChangeSelection() = 0;
    // Called before the first of several changes of graphics.
    virtual void OnDrawingChanging() = 0;
    virtual void OnSelectionChanged() = 0;
    virtual void OnPointerMoved(WorldPoint point) = 0;
    virtual void OnEditProperties() = 0;
};

class CDrawingView : public CWnd {
    DECLARE_DYNAMIC(CDrawingView)
public:
    static constexpr COLORREF kDarkBackground = RGB(33, 40, 48);
    static constexpr COLORREF kLightBackground = RGB(255, 255, 255);

    explicit CDrawingView(DrawingViewClient& client);

    BOOL Create(CWnd* parent, UINT id);
    // Shows the whole document, which must outlive the view or be replaced first. Null shows nothing.
    void SetDocument(Document* document);
    // Redraws everything. Changes of the document's graphics are detected automatically.
    void Redraw();

    // Returns the background color, dark by default.
    COLORREF Background() const { return m_background; }
    void SetBackground(COLORREF background);
    // Returns whether pens are drawn at their true width (the default) or as hairlines.
    bool ShowsLineWeights() const { return m_lineWeights; }
    void ShowLineWeights(bool show);

    const Camera& GetCamera() const { return m_camera; }
    void FitAll();
    void FitSelection();
    void ZoomIn() { Zoom(kZoomStep, m_cachedView.Bounds().CenterPoint()); }
    void ZoomOut() { Zoom(1 / kZoomStep, m_cachedView.Bounds().CenterPoint()); }
    void Pan(CSize pixels);
    // Returns whether the displayed picture is exact; after a movement it is updated when there is time.
    bool IsExact() const { return !m_cachedView.IsMoved(); }

    void SelectAll();
    void SelectOnly(const std::vector<GraphicStruct*>& graphics) { Select(graphics, Selection::Operation::Replace); }
    void SelectNext(bool forward);
    void ClearSelection();

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg void OnMButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint screenPoint);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnCaptureChanged(CWnd* window);
    afx_msg void OnTimer(UINT_PTR timer);
    DECLARE_MESSAGE_MAP()

private:
    enum class Drag { None, Press, Band, Pan };
    static constexpr double kZoomStep = 1.25;

    void Zoom(double factor, CPoint anchor);
    void ShowMove();
    void FitTo(GraphicStruct* graphic);
    void Select(const std::vector<GraphicStruct*>& graphics, Selection::Operation operation);
    void ShowSelectionChange();
    GraphicStruct* At(CPoint point) const;
    std::vector<GraphicStruct*> Within(const CRect& frame, bool crossing) const;
    void EndDrag();
    void MoveBand(CPoint point);

    static void OnGraphicChanging(void* view);
    void SetChangeListener(const ChangeListener* listener);

    void InvalidateAll();

    DrawingViewClient& m_client;
    Document* m_document = nullptr;
    Camera m_camera;
    COLORREF m_background = kDarkBackground;
    bool m_lineWeights = true;
    bool m_isFitted = false; // the whole drawing is fitted into the window, even when its size changes
    CachedView m_cachedView{m_camera};

    Drag m_drag = Drag::None;
    CPoint m_dragFrom;
    RubberBand m_band;
};
