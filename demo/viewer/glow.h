// The look of a selection: a bright rim around what is drawn, which keeps its own colors.
#pragma once

#include <vector>

#include "demo/viewer/memory_picture.h"

class Glow {
public:
    static constexpr int kRadius = 2; // pixels by which the rim surrounds a line

    // What is selected is drawn into Dc next, as far as that area of a scene of that size needs it, then Put is called.
    // False: there is no room, and no rim is put.
    bool Begin(CSize scene, CRect area);
    HDC Dc() const { return m_mask.Dc(); }
    void Put(MemoryPicture& scene);

private:
    void Spread();

    CRect m_area;   // of the scene
    CRect m_around; // what of the selection may show there
    MemoryPicture m_mask;
    std::vector<uint8_t> m_drawn;  // of the area and its surroundings: 1 where something is drawn
    std::vector<uint8_t> m_spread; // the same, spread along the rows
};
