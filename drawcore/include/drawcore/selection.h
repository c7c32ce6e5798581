// Selections: sets of graphics that belong to others. A selection is itself a graphic, which GraphicFirst and GraphicNext
// walk in the order of adding; GraphicDispose frees it and leaves its members alone.
//
//   GraphicStruct* selection = SelectionNew();
//   SelectionAdd(selection, picked);                       // picked stays the drawing's
//   InitGraphicPropertySheet(..., drawing, selection, 0xFFFFFFFF);
//
// A graphic has to leave the selections that hold it before it is freed.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Null if memory runs out.
DRAWCORE_API GraphicStruct* SelectionNew(void);
// 0 if it is in already (or, for SelectionRemove, is not), or if the first argument is not a selection.
DRAWCORE_API int SelectionAdd(GraphicStruct* selection, GraphicStruct*);
DRAWCORE_API int SelectionRemove(GraphicStruct* selection, GraphicStruct*);
DRAWCORE_API int SelectionContains(GraphicStruct* selection, GraphicStruct*);
DRAWCORE_API void SelectionClear(GraphicStruct* selection);
DRAWCORE_API int SelectionCount(GraphicStruct* selection);
