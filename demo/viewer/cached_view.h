// The cached picture of a view: the drawing with the highlight of its selection.
//
// If drawing takes less than a frame's time, the picture is redrawn whenever the camera moves. Otherwise it is shifted
// or stretched, and the parts that enter at the edges are drawn within the time of a frame. When movement stops, the
// exact picture is drawn in the background in time slices, and is then identical to one that has never moved.
#pragma once

#include <chrono>
#include <vector>

#include "demo/viewer/camera.h"
#include "demo/viewer/document.h"
#include "demo/viewer/memory_picture.h"
#include "demo/viewer/selection_highlight.h"

class CachedView {
public:
    static constexpr int kFrameTime = 20; // milliseconds for drawing; a fluid frame takes at most 50

    explicit CachedView(Camera& camera, int frameTime = kFrameTime);

    void SetDocument(Document* document);    // null to show nothing
    void SetBackground(COLORREF background); // background color of the drawing
    void Resize(CSize size);
    CRect Bounds() const { return m_picture.Bounds(); }

    // Discards the picture, which is never displayed again.
    void InvalidateAll();
    bool IsInvalid() const { return m_invalid; }
    // Discards the highlight in that area, where the selection has changed.
    void InvalidateHighlight(const CRect& area);

    // Move the camera.
    void Zoom(double factor, CPoint anchor);
    void Pan(CSize pixels);

    // Draws the missing parts.
    void Renew();
    // Null if there is not enough memory.
    HDC Dc() const { return m_moving ? m_frame.Dc() : m_scene.Dc(); }

    // Returns whether the picture has been moved and is not exact yet.
    bool IsMoved() const { return m_moving; }
    // Continues drawing the exact picture for about that many milliseconds. Returns true when Dc shows it.
    bool Finish(int milliseconds);

private:
    // Drawing in time slices to a separate bitmap.
    struct TimeSlice {
        enum class Part { Drawing, Selection } part = Part::Drawing;
        uint32_t place = 0;
        bool begun = false;
        int spent = 0; // milliseconds
    };

    bool StartMoving(); // returns false if the picture cannot be moved
    void MoveFrame();
    void DrawGaps();

    void RenewPicture();
    void RenewScene();
    void Draw(HDC dc, GraphicStruct* graphic);
    bool DrawOn(HDC dc, GraphicStruct* graphic, uint32_t& place, int milliseconds);
    bool FinishSince(std::chrono::steady_clock::time_point start, int milliseconds);
    bool HasHighlight() const { return m_document && m_document->Selected().Count() > 0; }
    bool SelectsAll() const;

    Camera& m_camera;
    const int m_frameTime;
    Document* m_document = nullptr;
    COLORREF m_background = 0;

    MemoryPicture m_picture; // the drawing
    MemoryPicture m_scene;   // with the selection highlight
    SelectionHighlight m_highlight;
    bool m_invalid = true; // of the whole picture and scene
    CRect m_invalidScene;
    bool m_slow = false; // drawing took longer than a frame

    bool m_moving = false;     // the following members are valid
    MemoryPicture m_frame;     // the moved scene
    WorldBox m_sceneBox;       // the box shown by the scene
    bool m_stretch = false;    // the frame must be made from the scene again
    std::vector<CRect> m_gaps; // missing parts of the frame
    MemoryPicture m_next;      // the next picture
    TimeSlice m_slice;
};
