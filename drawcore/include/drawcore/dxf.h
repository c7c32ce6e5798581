// Opening DXF drawings (ASCII, R12 to 2018), for host programs.
//
//   char message[256];
//   DxfListener listener = {&bar, ShowProgress, nullptr};
//   DrawingStruct* drawing = DrawingOpenDxf(L"roof.dxf", &listener, message, sizeof message);
//   if (!drawing) ...                                  // message: "line 1234: group code 'x' is not a number"
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// What a program hears while a drawing opens; context is handed to both, and either may be null.
typedef struct DxfListener {
    void* context;
    void (*progress)(void* context, int permille);              // the share done, 0 to 1000, rising
    void (*finding)(void* context, int line, const char* text); // something was left out; line 0: no one line
} DxfListener;

// A new drawing, the caller's, with the model space of the file; it doesn't become the current one. Or null, with the reason
// in message (size bytes with the NUL): a file is opened as a whole or not at all. The listener may be null.
DRAWCORE_API DrawingStruct* DrawingOpenDxf(const wchar_t* path, const DxfListener*, char* message, int size);
