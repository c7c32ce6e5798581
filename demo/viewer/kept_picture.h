// What a view shows of a drawing, as a picture in memory: the drawing with the glow of its selection.
//
// A picture that is drawn in less than a frame's time is drawn anew whenever the camera moves. One that takes longer
// moves along: it is shifted or stretched, and what comes in at the edges is drawn as far as a frame has time. At rest
// it is drawn anew beside the one that is shown, in as many turns as its user likes, and is then the same as one that
// has never moved.
#pragma once

#include <chrono>
#include <vector>

#include "demo/viewer/camera.h"
#include "demo/viewer/document.h"
#include "demo/viewer/glow.h"
#include "demo/viewer/memory_picture.h"

class KeptPicture {
public:
    static constexpr int kFrameTime = 20; // milliseconds for drawing, of the 50 that a fluid frame may take

    explicit KeptPicture(Camera& camera, int frameTime = kFrameTime);

    void SetDocument(Document* document); // null: nothing is shown
    void SetPaper(COLORREF paper);        // that lies under the drawing
    void Resize(CSize size);
    CRect Bounds() const { return m_picture.Bounds(); }

    // Something else is to be seen. It is never shown as it was before.
    void SpoilAll();
    bool IsSpoiled() const { return m_spoiled; }
    // Something else is selected there.
    void SpoilGlow(const CRect& area);

    // Move the camera.
    void Zoom(double factor, CPoint anchor);
    void Pan(CSize pixels);

    // Draws what is missing.
    void Renew();
    // Empty, null, as long as there is no room for it.
    HDC Dc() const { return m_moving ? m_frame.Dc() : m_scene.Dc(); }

    // Whether the picture has moved along and is not exact yet.
    bool IsMoved() const { return m_moving; }
    // Goes on drawing the exact one for about that many milliseconds; true when it is shown by the next Dc.
    bool Settle(int milliseconds);

private:
    // A drawing in turns into a picture of its own.
    struct Turn {
        enum class Part { Drawing, Selection } part = Part::Drawing;
        uint32_t place = 0;
        bool begun = false;
        int spent = 0; // milliseconds
    };

    bool StartMoving(); // false: the picture does not move along
    void MoveFrame();
    void DrawGaps();

    void RenewPicture();
    void RenewScene();
    void Draw(HDC dc, GraphicStruct* graphic);
    bool DrawOn(HDC dc, GraphicStruct* graphic, uint32_t& place, int milliseconds);
    bool SettleSince(std::chrono::steady_clock::time_point start, int milliseconds);
    bool HasGlow() const { return m_document && m_document->Selected().Count() > 0; }

    Camera& m_camera;
    const int m_frameTime;
    Document* m_document = nullptr;
    COLORREF m_paper = 0;

    MemoryPicture m_picture; // the drawing
    MemoryPicture m_scene;   // with the selection
    Glow m_glow;
    bool m_spoiled = true; // all of the picture, and of the scene
    CRect m_spoiledScene;
    bool m_slow = false; // drawing it all has taken longer than a frame

    bool m_moving = false;     // what follows counts
    MemoryPicture m_frame;     // the scene, moved
    WorldBox m_sceneBox;       // what the scene shows
    bool m_stretch = false;    // the frame has to be made from the scene again
    std::vector<CRect> m_gaps; // of the frame
    MemoryPicture m_next;      // the next picture
    Turn m_turn;
};
