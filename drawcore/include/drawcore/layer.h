// Layers of a drawing: the entries of its table "_Layers_". The layer "0" has the identifier 1.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

enum : uint32_t { kLayerOff = 1, kLayerFrozen = 2, kLayerLocked = 4 };

// Colour as a COLORREF; 0xFFFFFFFE if there is no such layer.
DRAWCORE_API uint32_t LayerGetColor(DrawingStruct*, uint16_t id);
// Non-zero if the layer is neither off nor frozen; what is on it is drawn and can be picked.
DRAWCORE_API int LayerGetVisible(DrawingStruct*, uint16_t id);
// Non-zero if the layer is locked: what is on it is drawn, and not picked.
DRAWCORE_API int LayerGetReadOnly(DrawingStruct*, uint16_t id);
DRAWCORE_API uint32_t LayerGetFlags(DrawingStruct*, uint16_t id);
// Entry of "_LineStyles_"; 0 is solid.
DRAWCORE_API uint16_t LayerGetLineStyle(DrawingStruct*, uint16_t id);
// 0, with nothing changed, if there is no such layer or the colour is a marker.
DRAWCORE_API int LayerSet(DrawingStruct*, uint16_t id, uint32_t color, uint32_t flags, uint16_t lineStyle);
