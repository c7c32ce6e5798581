// Selections: sets that do not own their graphics. A selection is itself a graphic: GraphicFirst and GraphicNext
// iterate over its members in the order in which they were added, and GraphicDispose frees it without its members.
//
//   GraphicStruct* selection = SelectionNew();
//   SelectionAdd(selection, picked);                       // picked is still owned by the drawing
//   InitGraphicPropertySheet(..., drawing, selection, 0xFFFFFFFF);
//
// A graphic must be removed from all selections before it is freed.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Creates an empty selection. Returns null if memory runs out.
DRAWCORE_API GraphicStruct* SelectionNew(void);
// Add or remove a graphic. Return 0 if the selection already contains the graphic (SelectionAdd) or does not contain it
// (SelectionRemove), or if the first argument is not a selection.
DRAWCORE_API int SelectionAdd(GraphicStruct* selection, GraphicStruct*);
DRAWCORE_API int SelectionRemove(GraphicStruct* selection, GraphicStruct*);
// Returns non-zero if the graphic is in the selection.
DRAWCORE_API int SelectionContains(GraphicStruct* selection, GraphicStruct*);
// Removes all graphics.
DRAWCORE_API void SelectionClear(GraphicStruct* selection);
// Returns the number of graphics.
DRAWCORE_API int SelectionCount(GraphicStruct* selection);
