// The library's interface for programs in C, and in every language and compiler that can call C.
//
//   if (OrloGetVersion() < ORLO_VERSION) ...             older than this header
//   OrloSheet sheet = {sizeof sheet};                    the rest is 0
//   sheet.filter = kAllGraphics;
//   sheet.owner = window;
//   sheet.drawing = drawing;
//   sheet.selection = selection;
//   int32_t code;
//   if (OrloRunSheet(&sheet, &code) == kOrloOk) ...      1: OK, 2: Cancel
//
// The promise: within one ORLO_VERSION_MAJOR a function keeps its name, its parameters and its meaning, a number keeps its
// value, and a record only grows at its end. Each record begins with its size in bytes, which the caller sets: a later library
// takes members that are missing for 0, an earlier one refuses a record that it does not know. The C++ classes of the other
// headers promise nothing of the kind: they belong to one compiler and one version.
//
// Every function of type OrloResult gives kOrloOk or says why not, and OrloGetErrorText has the reason in words. On failure
// nothing has changed, and what the function would store is 0, but for a size that was asked for. No exception leaves a
// function, and no argument is followed that could be known to be wrong. Texts are UTF-8, names of files UTF-16.
#pragma once

#include <stddef.h>
#include <stdint.h>

#define ORLO_VERSION_MAJOR 1
#define ORLO_VERSION_MINOR 0
#define ORLO_VERSION_PATCH 0
#define ORLO_VERSION (ORLO_VERSION_MAJOR * 0x1000000 + ORLO_VERSION_MINOR * 0x10000 + ORLO_VERSION_PATCH)

#ifdef __cplusplus
#define ORLO_C_LINKAGE extern "C"
#else
#define ORLO_C_LINKAGE extern
#endif
#ifdef ORLO_BUILD
#define ORLO_C_API ORLO_C_LINKAGE __declspec(dllexport)
#else
#define ORLO_C_API ORLO_C_LINKAGE __declspec(dllimport)
#endif
#define ORLO_CALL __cdecl

// The version of the library that is loaded, as ORLO_VERSION has it.
ORLO_C_API uint32_t ORLO_CALL OrloGetVersion(void);

typedef enum OrloResult {
    kOrloOk = 0,
    kOrloBadArgument = 1, // a null, a record of unknown size, a number out of its range
    kOrloBadHandle = 2,   // no property set, or one that was closed
    kOrloBadThread = 3,   // the window belongs to another thread, or another thread runs the framework
    kOrloTooSmall = 4,    // the buffer; the size that it needs is stored
    kOrloNotFound = 5,    // no such section, property, name, stream or file
    kOrloWrongType = 6,   // the property is of another type, or its type can't hold the value
    kOrloDamaged = 7,     // bytes that are no property set, or no sound one
    kOrloUnsayable = 8,   // the code page of the section can't say the text
    kOrloSystem = 9,      // the system refuses: a file, a stream, a window
    kOrloNoMemory = 10,
    kOrloFailed = 11 // anything else
} OrloResult;

// Why the last function of this thread that failed did so: at most size bytes with the NUL. Gives the bytes that the whole text
// needs.
ORLO_C_API size_t ORLO_CALL OrloGetErrorText(char* buffer, size_t size);

// ---- The sheet

struct HWND__; // what the system's handles point to, whether windows.h is there or not
struct HBITMAP__;
struct IStream;
struct DrawingStruct; // the host's own, see orlo/host
struct GraphicStruct;
struct TableStruct;

// What a control of the sheet is filled with. The library fills the record in, and the host's callback may change it.
typedef struct OrloFill {
    uint32_t size;
    uint32_t kind;             // of the control: 0x7D00 font faces, ...; docs/host-guide.md has the list
    const char* tableName;     // which table that kind shows: "_Layers_", ...
    struct TableStruct* table; // that table of the drawing; null leaves the control empty
    uint32_t selected;         // entry or colour; only the style names mind it, a page chooses for the others
    float height;              // font heights: above 0, the one that is chosen
    const char* face;          // font faces: not null, a face that joins the list; in the system's code page
} OrloFill;

// Called on the thread of OrloRunSheet, for each control that comes to life. It throws nothing.
typedef void(ORLO_CALL* OrloFillCallback)(void* context, OrloFill* fill);

typedef struct OrloSheet {
    uint32_t size;
    uint32_t filter;                 // which members of the selection: see GraphicFirst
    struct HWND__* owner;            // disabled while the sheet is open; null for none
    struct DrawingStruct* drawing;   // it is also the host's current one
    struct GraphicStruct* selection; // a graphic whose members are edited
    void* regenMethods;              // handed to RegenMethodGetPropPage; may be null
    OrloFillCallback fill;           // null: every control shows its table of the drawing
    void* context;                   // handed to fill
} OrloSheet;

// Opens the sheet over the selection and comes back when the user has closed it. code: 1 after OK, 2 after Cancel, -1 if the
// program ends meanwhile, or the code of a page (see style_end_code.h). A page that was left has written, whatever the code.
// To be called on the thread of the owner and of the host's drawing; the program needs nothing of the framework.
ORLO_C_API OrloResult ORLO_CALL OrloRunSheet(const OrloSheet* sheet, int32_t* code);
