// Regen methods: rules of the host by which graphics are rebuilt, and which can add property pages. `methods` is the
// host's table of methods, and `method` is GraphicStruct::wRegenMethod.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Lets the method add its pages to the sheet (a CGraphicPropertySheet*). The result is returned by
// AddGraphicPropertyPage. Returns 0 for an unknown method.
// Called: by AddGraphicPropertyPage, if the graphic has a method.
// Stub: return 0. Lost: custom pages from regen methods.
DRAWCORE_API int RegenMethodGetPropPage(void* methods, uint16_t method, GraphicStruct* graphic, void* sheet);
// Rebuilds the graphic. Ignores an unknown method.
// Called: after a preview with a method has changed.
// Stub: do nothing. Lost: previews that methods rebuild.
DRAWCORE_API void RegenMethodRegen(void* methods, uint16_t method, GraphicStruct* graphic);
