// Layers of a drawing, for host programs: what orlo/host/layer.h does not cover. The layer "0" has the identifier 1.
#pragma once

#include "orlo/host/layer.h"

enum : uint32_t { kLayerOff = 1, kLayerFrozen = 2, kLayerLocked = 4 };

DRAWCORE_API uint32_t LayerGetFlags(DrawingStruct*, uint16_t id);
// Entry of "_LineStyles_"; 0 is solid.
DRAWCORE_API uint16_t LayerGetLineStyle(DrawingStruct*, uint16_t id);
// 0, with nothing changed, if there is no such layer or the colour is a marker.
DRAWCORE_API int LayerSet(DrawingStruct*, uint16_t id, uint32_t color, uint32_t flags, uint16_t lineStyle);
