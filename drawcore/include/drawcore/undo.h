// Undo and redo of changes to the graphics of a drawing, step by step; one step holds whatever one sheet has written.
//
//   DrawingBeginUndo(drawing);
//   ... the sheet runs and writes ...
//   DrawingEndUndo(drawing);        // 12 graphics changed
//   DrawingUndo(drawing);           // all 12 are as they were
//   DrawingRedo(drawing);           // and changed again
//
// The oldest steps are dropped when all together exceed their room: what can no longer be undone is reported.
//
// Properties, attributes and vertices of the drawing's own graphics are recorded; previews and samples are not.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Opens a step. 0 if one is open already.
DRAWCORE_API int DrawingBeginUndo(DrawingStruct*);
// Closes the step. The number of graphics that are different now: with 0 no step is kept, else what was taken back before
// can't be made again any more.
DRAWCORE_API int DrawingEndUndo(DrawingStruct*);
// Closes the step and takes back all that it has changed: the steps before it, and those taken back, stay as they were. The
// number of graphics changed back.
DRAWCORE_API int DrawingCancelUndo(DrawingStruct*);
// How many of the oldest steps the last DrawingEndUndo has dropped for lack of room.
DRAWCORE_API int DrawingCountForgotten(DrawingStruct*);
// Room for all steps, done and taken back, in bytes (256 MB unless set); the next one either way is kept whatever it takes.
DRAWCORE_API void DrawingSetUndoRoom(DrawingStruct*, size_t bytes);
// Undoes the last step. The number of graphics that it changed back; 0 if there isn't one, or one is still open.
DRAWCORE_API int DrawingUndo(DrawingStruct*);
// Makes the step again that was undone last. The number of graphics that it changed; 0 if there isn't one, or one is open.
DRAWCORE_API int DrawingRedo(DrawingStruct*);
// Number of steps that can be undone, and made again.
DRAWCORE_API int DrawingCountUndo(DrawingStruct*);
DRAWCORE_API int DrawingCountRedo(DrawingStruct*);
// A number for what the steps have made of the drawing: the same again when undo or redo comes back to it, and no other state
// has it. Compared with that of the last saving, it says whether something is unsaved.
DRAWCORE_API uint32_t DrawingGetUndoMark(DrawingStruct*);

// Who hears that graphics are about to change, one of them within an open step or those of a step that goes back or forth: a
// view that shows the drawing behind a sheet. It is called often, and only takes note.
struct ChangeListener {
    void* context;
    void (*changing)(void* context);
};
// Copied; null: nobody hears.
DRAWCORE_API void DrawingSetChangeListener(DrawingStruct*, const ChangeListener*);
