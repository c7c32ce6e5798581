// The highlight of a selection: a bright outline around the selected graphics, which keep their own colors.
#pragma once

#include <vector>

#include "demo/viewer/memory_picture.h"

class SelectionHighlight {
public:
    static constexpr int kRadius = 2; // width of the outline in pixels

    // Prepares Dc for drawing the selection, as far as that area of a scene of that size needs it. Call DrawInto
    // afterward. Returns false if there is not enough memory, and no highlight is drawn.
    bool Begin(CSize scene, CRect area);
    HDC Dc() const { return m_mask.Dc(); }
    // Takes the selection from a picture of it instead of drawing it.
    void TakeFrom(const MemoryPicture& picture, COLORREF background);
    void DrawInto(MemoryPicture& scene);

private:
    void Spread();

    CRect m_area;   // area of the scene
    CRect m_around; // the part of the selection that can affect the area
    MemoryPicture m_mask;
    std::vector<uint8_t> m_drawn;  // area and surroundings: 1 where something is drawn
    std::vector<uint8_t> m_spread; // the same, dilated along rows
};
