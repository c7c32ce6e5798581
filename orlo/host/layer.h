// Layers of a drawing: the entries of its table kTableLayers.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Colour as a COLORREF; kColorNone if there is no such layer.
DRAWCORE_API uint32_t LayerGetColor(DrawingStruct*, uint16_t id);
// Non-zero if the layer is neither off nor frozen; what is on it is drawn and can be picked.
DRAWCORE_API int LayerGetVisible(DrawingStruct*, uint16_t id);
// Non-zero if the layer is locked: what is on it is drawn, but can't be picked.
DRAWCORE_API int LayerGetReadOnly(DrawingStruct*, uint16_t id);
