// Regen methods: host-defined rules that rebuild graphics and can add property pages. `methods` is the host's table of
// methods, and `method` is GraphicStruct::wRegenMethod.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Lets the method add its pages to `sheet`, a CGraphicPropertySheet*. AddGraphicPropertyPage returns the result.
// Returns 0 for an unknown method.
// Called: by AddGraphicPropertyPage, if the graphic has a regen method.
// Stub: return 0. Lost: custom pages that regen methods add.
DRAWCORE_API int RegenMethodGetPropPage(void* methods, uint16_t method, GraphicStruct* graphic, void* sheet);
// Rebuilds the graphic. Ignores an unknown method.
// Called: after a preview with a regen method has changed.
// Stub: do nothing. Lost: previews that regen methods rebuild.
DRAWCORE_API void RegenMethodRegen(void* methods, uint16_t method, GraphicStruct* graphic);
