// Regen methods as callbacks, which rebuild graphics and can add property pages.
//
//   void* methods = RegenMethodsNew();
//   RegenMethod gear = {&plan, RebuildGear, AddGearPage};
//   RegenMethodRegister(methods, 7, &gear);     // graphics with wRegenMethod 7
//   InitGraphicPropertySheet(window, methods, drawing, selection, 0xFFFFFFFF);
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

typedef struct RegenMethod {
    void* context;                                                          // passed to both callbacks
    void (*regen)(void* context, GraphicStruct* graphic);                   // may be null
    int (*getPropPage)(void* context, GraphicStruct* graphic, void* sheet); // may be null
} RegenMethod;

// Creates an empty table of methods. The caller frees it with RegenMethodsDispose, which sets the pointer to null.
// Returns null if memory runs out.
DRAWCORE_API void* RegenMethodsNew(void);
DRAWCORE_API void RegenMethodsDispose(void** methods);
// Registers a copy of the method under a number other than 0, replacing a previous one. Returns non-zero on success.
DRAWCORE_API int RegenMethodRegister(void* methods, uint16_t number, const RegenMethod*);
