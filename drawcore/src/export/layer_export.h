// Converts layers of a drawing for its file.
#pragma once

#include <utility>
#include <vector>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/dxf/document.h"

namespace drawcore {

// Sets color and state of the file's layer; its line type does not change.
void Describe(const Layer& layer, dxf::Layer& fileLayer);

// Returns the layers of the file whose state, color or line type has changed, with the new values.
std::vector<std::pair<dxf::LayerIndex, dxf::Layer>> ChangedLayers(const Drawing& drawing, const dxf::Document& known);

} // namespace drawcore
