// Layers: flags, line style and color, in addition to orlo/host/layer.h. The layer "0" has the identifier 1.
#pragma once

#include "orlo/host/layer.h"

// Flags of a layer.
enum { kLayerOff = 1, kLayerFrozen = 2, kLayerLocked = 4 };

// Returns the flags of a layer, or 0 if there is no such layer.
DRAWCORE_API uint32_t LayerGetFlags(DrawingStruct*, uint16_t id);
// Returns the line style, an entry of kTableLineStyles; 0 is solid.
DRAWCORE_API uint16_t LayerGetLineStyle(DrawingStruct*, uint16_t id);
// Sets the attributes of a layer. Returns 0, and changes nothing, if there is no such layer or if the color is a
// marker.
DRAWCORE_API int LayerSet(DrawingStruct*, uint16_t id, uint32_t color, uint32_t flags, uint16_t lineStyle);
