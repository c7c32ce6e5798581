// Regen methods: the host's rules by which a graphic is rebuilt, and its own property pages.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Lets the method add pages of its own to the sheet (a CGraphicPropertySheet*). Its result goes to the caller.
DRAWCORE_API int RegenMethodGetPropPage(void* methods, uint16_t method, GraphicStruct*, void* sheet);
// Rebuilds the graphic.
DRAWCORE_API void RegenMethodRegen(void* methods, uint16_t method, GraphicStruct*);
