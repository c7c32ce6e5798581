// Undo and redo of changes to the graphics of a drawing. One step contains everything that a sheet has written.
//
//   DrawingBeginUndo(drawing);
//   ... run the sheet ...
//   DrawingEndUndo(drawing);        // 12 graphics changed
//   DrawingUndo(drawing);           // all 12 have their previous values
//   DrawingRedo(drawing);           // and the new ones again
//
// If the steps exceed their memory limit, the oldest ones are dropped; DrawingCountDroppedUndo returns their number.
//
// Properties, attributes and vertices of the graphics that belong to the drawing are recorded; previews and samples are
// not.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Begins a step. Returns 0 if a step is already open.
DRAWCORE_API int DrawingBeginUndo(DrawingStruct*);
// Ends the step and returns the number of graphics that have changed. If it is 0, the step is discarded. Otherwise the
// steps that could be redone are discarded.
DRAWCORE_API int DrawingEndUndo(DrawingStruct*);
// Ends the step, undoes all of its changes and discards it. Steps that can be undone or redone are not affected.
// Returns the number of graphics that were restored.
DRAWCORE_API int DrawingCancelUndo(DrawingStruct*);
// Returns the number of old steps that the last DrawingEndUndo has dropped because of the memory limit.
DRAWCORE_API int DrawingCountDroppedUndo(DrawingStruct*);
// Sets the memory limit for all steps in bytes (default: 256 MB). The next step to undo and the next one to redo are
// kept even if they exceed it.
DRAWCORE_API void DrawingSetUndoLimit(DrawingStruct*, size_t bytes);
// Undoes the last step. Returns the number of graphics that were restored, or 0 if there is no step or one is open.
DRAWCORE_API int DrawingUndo(DrawingStruct*);
// Redoes the step that was undone last. Returns the number of graphics that were changed, or 0 if there is no step or
// one is open.
DRAWCORE_API int DrawingRedo(DrawingStruct*);
// Return the number of steps that can be undone or redone.
DRAWCORE_API int DrawingCountUndo(DrawingStruct*);
DRAWCORE_API int DrawingCountRedo(DrawingStruct*);
// Returns a number that identifies the state of the drawing: undo and redo return to the same number, and different
// states have different numbers. If it differs from the number at the last save, the drawing has unsaved changes.
DRAWCORE_API uint32_t DrawingGetUndoMark(DrawingStruct*);

// A listener that is called before graphics change, in an open step or when a step is undone or redone. Because it is
// called often, it should only set a flag, for example that a view needs repainting.
typedef struct ChangeListener {
    void* context;
    void (*changing)(void* context);
} ChangeListener;
// Sets the listener, which is copied; null removes it.
DRAWCORE_API void DrawingSetChangeListener(DrawingStruct*, const ChangeListener*);
