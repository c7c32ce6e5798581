// Layers of a drawing in the terms of its file.
#pragma once

#include <utility>
#include <vector>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/dxf/document.h"

namespace drawcore {

// Gives the file's layer the color and the state of the drawing's; its line type stays.
void Describe(const Layer& layer, dxf::Layer& made);

// The layers of the file whose state, color or line type is another in the drawing, as they are to be.
std::vector<std::pair<dxf::LayerIndex, dxf::Layer>> ChangedLayers(const Drawing& drawing, const dxf::Document& known);

} // namespace drawcore
