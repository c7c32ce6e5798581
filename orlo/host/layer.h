// Layers of a drawing: the entries of its table kTableLayers.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Returns the layer's color as a COLORREF, or kColorNone if there is no such layer.
DRAWCORE_API uint32_t LayerGetColor(DrawingStruct* drawing, uint16_t id);
// Returns non-zero if the layer is neither off nor frozen. Graphics on it are then drawn and can be picked.
DRAWCORE_API int LayerGetVisible(DrawingStruct* drawing, uint16_t id);
// Returns non-zero if the layer is locked. Graphics on it are drawn, but cannot be picked.
DRAWCORE_API int LayerGetReadOnly(DrawingStruct* drawing, uint16_t id);
