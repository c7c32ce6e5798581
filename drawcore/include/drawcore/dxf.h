// Opens and saves DXF drawings (ASCII, R12 to 2018).
//
//   char message[256];
//   DxfListener listener = {&bar, ShowProgress, nullptr}; // int ShowProgress(void* bar, int permille)
//   DrawingStruct* drawing = DrawingOpenDxf(L"roof.dxf", &listener, message, sizeof message);
//   if (!drawing) ...                                  // message: "line 1234: group code 'x' is not a number"
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Progress and warnings while a drawing is opened or saved, as callbacks on the calling thread. context is passed to
// both; either may be null.
typedef struct DxfListener {
    void* context;
    // permille increases from 0 to 1000. Return 0 to cancel.
    int (*progress)(void* context, int permille);
    // Called for each part that is omitted. line is 0 if the warning does not refer to a single line.
    void (*warning)(void* context, int line, const char* text);
} DxfListener;

// Creates a drawing from the model space of the file. It does not become the current drawing. The caller frees it with
// DrawingDispose. If the file cannot be opened, or is damaged or truncated, returns null and stores an error message
// (at most size bytes, including the NUL); if the listener canceled, the message is "canceled". The listener may be
// null.
DRAWCORE_API DrawingStruct* DrawingOpenDxf(const wchar_t* path, const DxfListener*, char* message, int size);

// Results of DrawingSaveDxf.
enum { kSaveFailed = 0, kSaveDone = 1, kSaveFileChanged = 2, kSaveCanceled = 3, kSaveDoneInPart = 4 };
// Flags of DrawingSaveDxf.
enum {
    kSaveOverChanged = 1, // overwrite the file even if another program has changed it since the drawing was opened
    kSaveRest = 2         // omit what the file cannot contain and save the rest
};

// Saves the drawing to a file, which may be the one that it was opened from. The text of the original file is copied,
// and only the groups with changes differ. Values without a DXF group are stored in extended data (XDATA) of the
// application ORLO. The file is written under a temporary name, compared with the drawing, and then replaces the old
// file in one step.
//
//   kSaveDone         saved; from now on the drawing belongs to that file
//   kSaveFileChanged  another program has changed the file since the drawing was opened from it; nothing was written
//   kSaveCanceled     the listener canceled; no file was changed
//   kSaveFailed       no file was changed; message (at most size bytes, including the NUL) contains the reason, for
//                     example: the drawing was not opened from a file, the version of the file has no such entity, the
//                     disk is full, the file is open in another program
//   kSaveDoneInPart   with kSaveRest only: saved except for the parts that were reported to the listener's `warning`,
//                     with the entity's kind, handle and line if it has them. The file still contains the previous
//                     state of an omitted entity, and does not contain an omitted new one; the drawing still counts
//                     as modified
//
// After the file has been written, `warning` is also called, with line 0, for each property that is stored in extended
// data, where other programs do not show it.
//
// The function saves the properties of graphics, the positions of insertions, moved vertices, added and removed
// graphics, layers and blocks, the style trees of blocks, and the states, colors and line types of layers. Unchanged
// values keep their form in the file. The listener may be null.
DRAWCORE_API int DrawingSaveDxf(DrawingStruct*, const wchar_t* path, uint32_t flags, const DxfListener*, char* message,
                                int size);

// Returns non-zero if the drawing differs from its file: by undoable steps, added or removed graphics or blocks, or
// changes in blocks and layers. Undo and redo can return to the saved state. Returns 0 if the drawing was not opened
// from a file.
DRAWCORE_API int DrawingIsModified(DrawingStruct*);

// Stores the extended data (XDATA) of a graphic's record in its file as text: a line "code value" for each group,
// separated by "\r\n". The data of each application follows its name (code 1001). At most size bytes are stored,
// including the NUL. Returns the size of the whole text, including the NUL. If the graphic has no extended data,
// returns 0 and stores an empty text.
DRAWCORE_API int GraphicGetExtendedData(GraphicStruct*, char* buffer, int size);
