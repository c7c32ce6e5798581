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
// Compatibility: within one ORLO_VERSION_MAJOR a function keeps its name, its parameters and its meaning, a number keeps its
// value, and a record only grows at its end. Each record begins with its size in bytes, which the caller sets: a later library
// takes missing members as 0, an earlier one refuses a record that it does not know. The C++ classes of the other
// headers promise nothing of the kind: they belong to one compiler and one version.
//
// Every function of type OrloResult returns kOrloOk or says why not, and OrloGetErrorText has the reason in words. On
// failure nothing has changed, and what the function would store is 0, except for a size that was asked for. No exception
// leaves a function, and arguments that can be recognised as wrong are never followed. Texts are UTF-8, file names UTF-16.
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
    kOrloBadHandle = 2,   // not a property set, or one that was closed
    kOrloBadThread = 3,   // the window belongs to another thread, or another thread runs the framework
    kOrloBufferTooSmall = 4,    // the buffer; the size that it needs is stored
    kOrloNotFound = 5,    // no such section, property, name, stream or file
    kOrloWrongType = 6,   // the property is of another type, or its type can't hold the value
    kOrloDamaged = 7,     // bytes that are not a property set, or not a sound one
    kOrloNotEncodable = 8,   // the code page of the section can't say the text
    kOrloSystemError = 9,      // the system refuses: a file, a stream, a window
    kOrloOutOfMemory = 10,
    kOrloFailed = 11 // anything else
} OrloResult;

// Why the last function of this thread that failed did so: at most size bytes with the NUL. Returns the bytes that the whole
// text needs.
ORLO_C_API size_t ORLO_CALL OrloGetErrorText(char* buffer, size_t size);

// ---- The sheet

struct HWND__; // what the system's handles point to, with or without windows.h
struct HBITMAP__;
struct IStream;
struct DrawingStruct; // the host's own, see orlo/host
struct GraphicStruct;
struct TableStruct;

// What a control of the sheet is filled with. The library fills the record in, and the host's callback may change it.
typedef struct OrloFill {
    uint32_t size;
    uint32_t kind;             // of the control: docs/host-guide.md has the list
    const char* tableName;     // which table that kind shows: "_Layers_", ...
    struct TableStruct* table; // that table of the drawing; null leaves the control empty
    uint32_t selected;         // entry or colour; only the style names use it, a page chooses for the others
    float height;              // font heights: above 0, the one that is chosen
    const char* face;          // font faces: not null, a face that joins the list; in the system's code page
} OrloFill;

// Called on the thread of OrloRunSheet, for each control that comes to life. Must not throw.
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

// Opens the sheet over the selection and returns when the user has closed it. code: 1 after OK, 2 after Cancel, -1 if the
// program ends meanwhile, or the code of a page (see style_end_code.h). A page that was left has written, whatever the code.
// To be called on the thread of the owner and of the host's drawing; the program need not use the framework.
ORLO_C_API OrloResult ORLO_CALL OrloRunSheet(const OrloSheet* sheet, int32_t* code);

// ---- Property sets and the summaries of documents

// A property set in memory. Closed ones are recognised. One thread at a time may use a set.
typedef struct OrloPropset__* OrloPropset;

// Laid out as the system's GUID.
typedef struct OrloGuid {
    uint32_t data1;
    uint16_t data2, data3;
    uint8_t data4[8];
} OrloGuid;

static const OrloGuid kOrloSummary = {
    0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};
static const OrloGuid kOrloDocumentSummary = {
    0xD5CDD502, 0x2E9C, 0x101B, {0x93, 0x97, 0x08, 0x00, 0x2B, 0x2C, 0xF9, 0xAE}};
static const OrloGuid kOrloUserDefined = {
    0xD5CDD505, 0x2E9C, 0x101B, {0x93, 0x97, 0x08, 0x00, 0x2B, 0x2C, 0xF9, 0xAE}};

// Properties of kOrloSummary.
enum {
    kOrloCodePage = 1, // of every section: the code page of its texts
    kOrloTitle = 2,
    kOrloSubject = 3,
    kOrloAuthor = 4,
    kOrloKeywords = 5,
    kOrloComments = 6,
    kOrloTemplate = 7,
    kOrloLastAuthor = 8,
    kOrloRevision = 9,
    kOrloEditTime = 10,
    kOrloPrinted = 11,
    kOrloCreated = 12,
    kOrloSaved = 13,
    kOrloPages = 14,
    kOrloWords = 15,
    kOrloCharacters = 16,
    kOrloThumbnail = 17,
    kOrloApplication = 18,
    kOrloSecurity = 19
};

// Types of values: the system's variant types. A list has 0x1000 added.
enum {
    kOrloTypeInt16 = 2,
    kOrloTypeInt32 = 3,
    kOrloTypeFloat = 4,
    kOrloTypeDouble = 5,
    kOrloTypeDate = 7,
    kOrloTypeBool = 11,
    kOrloTypeUInt8 = 17,
    kOrloTypeUInt16 = 18,
    kOrloTypeUInt32 = 19,
    kOrloTypeInt64 = 20,
    kOrloTypeUInt64 = 21,
    kOrloTypeText = 30, // in the code page of the section
    kOrloTypeWideText = 31,
    kOrloTypeFileTime = 64, // 100 ns since 1601, UTC; of kOrloEditTime a span
    kOrloTypeBlob = 65,
    kOrloTypeClipboard = 71
};

// An empty set.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetNew(OrloPropset* set);
// The bytes are copied. A set with damage opens as far as it can be read, and does not take changes.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetOpenMemory(const void* data, size_t size, OrloPropset* set);
// From the position of the stream, which stays the caller's, to its end.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetOpenStream(struct IStream* stream, OrloPropset* set);
// A stream of a compound file, read without the system, so that no damage hangs it. Null for the name: the summary,
// "\005SummaryInformation". The file is closed again.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetOpenFile(const wchar_t* path, const char* streamName,
                                                    OrloPropset* set);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetClose(OrloPropset set);

// size: the room in the buffer, then the bytes of the set. A null buffer only asks for these and returns kOrloOk.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSaveMemory(OrloPropset set, void* buffer, size_t* size);
// At the position of the stream.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSaveStream(OrloPropset set, struct IStream* stream);
// Into the stream of a compound file, in one step: in a copy of the file, which then takes its place. The file is made if
// there isn't one; a damaged one, and one that somebody else has open, is left alone.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSaveFile(OrloPropset set, const wchar_t* path,
                                                    const char* streamName);

typedef struct OrloSection {
    uint32_t size;
    OrloGuid format;
    uint32_t codePage;   // 0: the section names none
    uint32_t properties; // how many
} OrloSection;

typedef struct OrloProperty {
    uint32_t size;
    uint32_t id;
    uint32_t type;
    uint32_t isComplete; // 0: the value is damaged or of an unknown type; only its bytes are available
    size_t bytes;        // after the type code
} OrloProperty;

ORLO_C_API OrloResult ORLO_CALL OrloPropsetCountSections(OrloPropset set, uint32_t* count);
// By position, from 0; kOrloNotFound after the last one. The caller sets the record's size first.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetSection(OrloPropset set, uint32_t index, OrloSection* section);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetProperty(OrloPropset set, uint32_t section, uint32_t index,
                                                       OrloProperty* property);
// The name that the section's dictionary has for a property, and the other way round: A to Z count like a to z.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetName(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                   char* buffer, size_t* size);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetFindName(OrloPropset set, const OrloGuid* format, const char* name,
                                                    uint32_t* id);

// Values of the first section of that format. Buffers are as of OrloPropsetSaveMemory, a text's size counts its NUL.
// Integer: whole numbers, Booleans (0, 1) and file times. Real: float, double, dates. Bytes: of any type, after its code.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetInteger(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                      int64_t* value);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetReal(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                   double* value);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetText(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                   char* buffer, size_t* size);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetBytes(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                    void* buffer, size_t* size);

// Adds or replaces a property, with its section if there isn't one. A new section has the code page 65001, UTF-8; for another
// one its property kOrloCodePage is set first, which takes no later change. An existing property is replaced by one of its
// own type only. A value that its type can't hold gives kOrloWrongType; a float is rounded. Bytes are one value of their type.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSetInteger(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                      uint32_t type, int64_t value);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSetReal(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                   uint32_t type, double value);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSetText(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                   uint32_t type, const char* value);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSetBytes(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                    uint32_t type, const void* data, size_t size);
// Names a property in the dictionary of its section, which must exist. A name belongs to one property.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSetName(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                   const char* name);
// With its name. kOrloNotFound if there isn't one.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetRemove(OrloPropset set, const OrloGuid* format, uint32_t id);

// ---- The thumbnail of a summary

enum { kOrloBgra = 0, kOrloRgba = 1 }; // orders of pixels

// Width and height in pixels, 1 to 8192 on a side. With both 0 they become those of the picture itself; a metafile, which has
// none, gets 256 on its longer side.
//
// Pixels: four bytes each, row by row from the top, the fourth 255; a null buffer asks for the size alone.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetThumbnailPixels(OrloPropset set, uint32_t order,
                                                              uint32_t* width, uint32_t* height, void* buffer,
                                                              size_t* size);
// A bitmap of the system, which the caller deletes.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetThumbnailBitmap(OrloPropset set, uint32_t* width,
                                                              uint32_t* height, struct HBITMAP__** bitmap);
