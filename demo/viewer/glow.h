// The look of a selection: a bright rim around what is drawn, which keeps its own colours.
#pragma once

#include <functional>
#include <vector>

#include "demo/viewer/memory_picture.h"

class Glow {
public:
    static constexpr int kRadius = 2; // pixels by which the rim surrounds a line

    // Puts the rim around all that `draw` draws into the device context it gets, within the area of the scene.
    // Draw's context is clipped to what is needed.
    void Put(MemoryPicture& scene, CRect area, const std::function<void(HDC)>& draw);

private:
    void Spread(const CRect& area);

    MemoryPicture m_mask;
    std::vector<uint8_t> m_drawn;  // of the area and its surroundings: 1 where something is drawn
    std::vector<uint8_t> m_spread; // the same, spread along the rows
};
