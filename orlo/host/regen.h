// Regen methods: rules of the host by which graphics are rebuilt, and which can add property pages. `methods` is the
// host's table of methods, and `method` is GraphicStruct::wRegenMethod.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Lets the method add its pages to the sheet (a CGraphicPropertySheet*). The result is returned by
// AddGraphicPropertyPage.
DRAWCORE_API int RegenMethodGetPropPage(void* methods, uint16_t method, GraphicStruct* graphic, void* sheet);
// Rebuilds the graphic.
DRAWCORE_API void RegenMethodRegen(void* methods, uint16_t method, GraphicStruct* graphic);
