// Undo of changes to the graphics of a drawing, step by step; one step holds whatever one sheet has written.
//
//   DrawingBeginUndo(drawing);
//   ... the sheet runs and writes ...
//   DrawingEndUndo(drawing);        // 12 graphics changed
//   DrawingUndo(drawing);           // all 12 are as they were
//
// The oldest steps are dropped when all together exceed their room: what can no longer be undone is reported.
//
// Properties, attributes and vertices of the drawing's own graphics are recorded; previews and samples are not.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Opens a step. 0 if one is open already.
DRAWCORE_API int DrawingBeginUndo(DrawingStruct*);
// Closes the step. The number of graphics that are different now; with 0 no step is kept.
DRAWCORE_API int DrawingEndUndo(DrawingStruct*);
// How many of the oldest steps the last DrawingEndUndo has dropped for lack of room.
DRAWCORE_API int DrawingCountForgotten(DrawingStruct*);
// Room for all steps, in bytes (256 MB unless set); the last step is kept whatever it takes.
DRAWCORE_API void DrawingSetUndoRoom(DrawingStruct*, size_t bytes);
// Undoes the last step. The number of graphics that it changed back; 0 if there isn't one, or one is still open.
DRAWCORE_API int DrawingUndo(DrawingStruct*);
// Number of steps that can be undone.
DRAWCORE_API int DrawingCountUndo(DrawingStruct*);
