// Layers of a drawing: the entries of its table kTableLayers.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Returns the layer's color as a COLORREF, or kColorNone if there is no such layer.
// Called: when a row of a list of layers is drawn.
// Stub: return kColorNone. Lost: the colors in the list of layers.
DRAWCORE_API uint32_t LayerGetColor(DrawingStruct* drawing, uint16_t id);
// Returns non-zero if the layer is neither off nor frozen. Graphics on it are then drawn and can be picked.
// Called: when a row of a list of layers is drawn or read by a screen reader.
// Stub: return 0. Lost: the icons in the list of layers; all layers are shown as hidden.
DRAWCORE_API int LayerGetVisible(DrawingStruct* drawing, uint16_t id);
// Returns non-zero if the layer is locked. Graphics on it are drawn, but cannot be picked.
// Called: when a row of a list of layers is drawn or read by a screen reader.
// Stub: return 0. Lost: the icons of locked layers.
DRAWCORE_API int LayerGetReadOnly(DrawingStruct* drawing, uint16_t id);
