// Opening and saving DXF drawings (ASCII, R12 to 2018), for host programs.
//
//   char message[256];
//   DxfListener listener = {&bar, ShowProgress, nullptr}; // int ShowProgress(void* bar, int permille)
//   DrawingStruct* drawing = DrawingOpenDxf(L"roof.dxf", &listener, message, sizeof message);
//   if (!drawing) ...                                  // message: "line 1234: group code 'x' is not a number"
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// What a program learns while a drawing opens or is saved, on the thread that has called; context is handed to both, and
// either may be null.
typedef struct DxfListener {
    void* context;
    int (*progress)(void* context, int permille); // the share done, 0 to 1000, rising; 0 cancels
    void (*finding)(void* context, int line, const char* text); // something was left out; line 0: no one line
} DxfListener;

// A new drawing, the caller's, with the model space of the file; it doesn't become the current one. Or null, with the reason
// in message (size bytes with the NUL): a file is opened completely or not at all. The listener may be null. When it cancels,
// the message is "cancelled".
DRAWCORE_API DrawingStruct* DrawingOpenDxf(const wchar_t* path, const DxfListener*, char* message, int size);

// Results of DrawingSaveDxf.
enum { kSaveFailed = 0, kSaveDone = 1, kSaveFileChanged = 2, kSaveCancelled = 3 };
// Flag: a file that another program has changed since the drawing was opened is overwritten anyway.
enum { kSaveOverChanged = 1 };

// Writes the drawing into a file, which may be the one that it was opened from: that file's text, in which only the groups
// that carry a change differ. What the format has no group for is kept in extended data under the application name ORLO. The
// file is written beside the old one, compared with the drawing, and then takes its place in one step.
//
// kSaveDone: the drawing belongs to that file from then on. kSaveFileChanged: it is the file that the drawing was opened
// from, and another program has changed it since; nothing was written. kSaveFailed: message (size bytes with the NUL) says
// why, and no file was changed: the drawing comes from no file, the version of the file has no such entity, the disk is full,
// another program holds the file ...
// kSaveCancelled: the listener, which may be null, has cancelled, and no file was changed.
// Saved are properties of graphics, the places of insertions, vertices that were moved, what was added or removed (graphics,
// and blocks with theirs), and the layers of the file: their states, colours and line types.
DRAWCORE_API int DrawingSaveDxf(DrawingStruct*, const wchar_t* path, uint32_t flags, const DxfListener*,
                                char* message, int size);

// Whether the drawing has become another than its file holds, by steps of its undo log, by graphics or blocks that were added
// or removed, or by changes within blocks and of layers; undo and redo can come back to what is saved. 0 for a drawing that comes from no
// file.
DRAWCORE_API int DrawingIsModified(DrawingStruct*);
