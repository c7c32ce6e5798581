// Regen methods, for host programs: rules by which graphics are rebuilt, and their own property pages, as callbacks.
//
//   void* methods = RegenMethodsNew();
//   RegenMethod gear = {&plan, RebuildGear, AddGearPage};
//   RegenMethodRegister(methods, 7, &gear);     // graphics with wRegenMethod 7
//   InitGraphicPropertySheet(window, methods, drawing, selection, 0xFFFFFFFF);
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

struct RegenMethod {
    void* context;                                                          // handed to both; the program's
    void (*regen)(void* context, GraphicStruct* graphic);                   // may be null
    int (*getPropPage)(void* context, GraphicStruct* graphic, void* sheet); // may be null: 0
};

// An empty table, null if memory runs out. RegenMethodsDispose frees it and clears the pointer.
DRAWCORE_API void* RegenMethodsNew(void);
DRAWCORE_API void RegenMethodsDispose(void** methods);
// Copies the method under that number (not 0), in place of an older one.
DRAWCORE_API int RegenMethodRegister(void* methods, uint16_t number, const RegenMethod*);
