// The C interface of the library, for programs in C and in any language that can call C functions.
//
//   if (OrloGetVersion() < ORLO_VERSION) ...             the library is older than this header
//   OrloSheet sheet = ORLO_INIT(OrloSheet);
//   sheet.filter = kOrloAllGraphics;
//   sheet.owner = window;
//   sheet.drawing = drawing;
//   sheet.selection = selection;
//   int32_t code;
//   if (OrloRunSheet(&sheet, &code) == kOrloOk) ...      1: OK, 2: Cancel
//
// Compatibility: within one ORLO_VERSION_MAJOR, functions keep their names, parameters and meaning, and constants keep
// their values. Records only grow at the end. Each record begins with its size in bytes, which the caller sets: a later
// library treats missing members as 0, and an earlier library rejects a record of an unknown size. The C++ classes in
// the other headers are not covered: they require the same compiler and the same version.
//
// Errors: functions of type OrloResult return kOrloOk or an error code; OrloGetErrorText returns a message. A function
// that fails changes nothing, and sets its output parameters to 0, except for a required buffer size. Exceptions never
// leave a function. Invalid arguments that can be detected are rejected.
//
// Strings are UTF-8, file names are UTF-16. Output parameters other than buffers must not be null.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "orlo/host/words.h"

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

// Initializes a record: its size is set, and all other members are 0.
//   OrloSheet sheet = ORLO_INIT(OrloSheet);
//   OrloField fields[] = {ORLO_INIT(OrloField), ORLO_INIT(OrloField)};
#ifdef __cplusplus
template <class Record>
Record OrloInitialized() {
    Record record = {};
    record.size = sizeof record;
    return record;
}
#define ORLO_INIT(Record) (OrloInitialized<Record>())
#else
#define ORLO_INIT(Record)                                                                                              \
    { .size = sizeof(Record) }
#endif

// Returns the version of the loaded library, in the format of ORLO_VERSION.
ORLO_C_API uint32_t ORLO_CALL OrloGetVersion(void);

typedef enum OrloResult {
    kOrloOk = 0,
    kOrloBadArgument = 1,    // null, a record of unknown size, or a number out of range
    kOrloBadHandle = 2,      // not a property set, or closed
    kOrloBadThread = 3,      // the window belongs to another thread, or the framework runs on another thread
    kOrloBufferTooSmall = 4, // the required size was stored
    kOrloNotFound = 5,       // the section, property, name, stream or file does not exist
    kOrloWrongType = 6,      // the property has another type, or its type cannot represent the value
    kOrloDamaged = 7,        // the bytes are not a property set, or the set is damaged
    kOrloNotEncodable = 8,   // the text cannot be represented in the code page of the section
    kOrloSystemError = 9,    // a system call failed: file, stream or window
    kOrloOutOfMemory = 10,
    kOrloFailed = 11,       // any other failure
    kOrloChanged = 12,      // the stream in the file has changed since the set was read
    kOrloInvalidInput = 13, // a field of the sheet is not valid; the user has been informed, and it has the focus
    kOrloBusy = 14          // called while a callback or a message box of a sheet is open
} OrloResult;

// Returns the name of a result, such as "kOrloBadHandle", or "unknown result". The text is static.
ORLO_C_API const char* ORLO_CALL OrloGetResultName(OrloResult result);

// Copies the error message of the function that failed last on this thread, at most size bytes including the NUL.
// Returns the buffer size that the whole message requires, including the NUL. buffer may be null.
ORLO_C_API size_t ORLO_CALL OrloGetErrorText(char* buffer, size_t size);

// ---- The sheet

struct HWND__; // the targets of the system's handles, so that windows.h is not required
struct HBITMAP__;
struct IStream;
struct DrawingStruct; // defined by the host; see orlo/host
struct GraphicStruct;
struct TableStruct;

// Selects the members of the selection that a sheet edits (OrloSheet::filter). The other bits are defined by the host;
// see GraphicFirst.
ORLO_CONSTANT uint32_t kOrloAllGraphics = 0xFFFFFFFFu;   // all graphics, without the style part of the General page
ORLO_CONSTANT uint32_t kOrloWithStylePart = 0xFFFFFFFBu; // all graphics, with the style part
enum { kOrloNoStylePart = kNoStylePart };

// Kinds of controls (OrloFill::kind).
enum {
    kOrloControlFontFaces = kControlFontFaces,
    kOrloControlFontSizes = kControlFontSizes,
    kOrloControlLineStyleCombo = kControlLineStyleCombo,
    kOrloControlColors = kControlColors,
    kOrloControlBrushStyleCombo = kControlBrushStyleCombo,
    kOrloControlLayers = kControlLayers,
    kOrloControlStyleNames = kControlStyleNames,
    kOrloControlLineStyleList = kControlLineStyleList,
    kOrloControlBrushStyleList = kControlBrushStyleList
};

// The contents of one control of the sheet. The library fills the record in; the callback can change it.
typedef struct OrloFill {
    uint32_t size;             // set by the library
    uint32_t kind;             // such as kOrloControlLayers
    const char* tableName;     // name of the table that this kind shows, such as kTableLayers
    struct TableStruct* table; // that table of the drawing; null leaves the control empty
    uint32_t selected;         // entry or color to select; pages use it for kOrloControlStyleNames only
    float height;              // kOrloControlFontSizes: if above 0, the font height to select
    const char* face;          // kOrloControlFontFaces: if not null, a face to add; in the code page of the system
} OrloFill;

// Called on the thread of OrloRunSheet when a control has been created. context is OrloSheet::context. Must not throw.
typedef void(ORLO_CALL* OrloFillCallback)(void* context, OrloFill* fill);

// ---- Custom pages

// Kinds of fields. The value types are those of property tables (orlo/host/records.h); the third column is the
// member of OrloValue.
typedef enum OrloFieldKind {
    kOrloFieldText = 1,        // VT_BSTR  text    one line
    kOrloFieldLines = 2,       // VT_BSTR  text    several lines, separated by "\r\n"
    kOrloFieldInteger = 3,     // VT_I4    number
    kOrloFieldNumber = 4,      // VT_R8    number  up to 10 significant digits are shown
    kOrloFieldLength = 5,      // VT_R8    number  in drawing units; shown and read as the drawing writes lengths
    kOrloFieldAngle = 6,       // VT_R8    number  in radians; shown and read as the drawing writes angles
    kOrloFieldScale = 7,       // VT_R8    number  a factor
    kOrloFieldCheck = 8,       // VT_BOOL  number  0 or 1
    kOrloFieldChoice = 9,      // VT_I4    number  index in OrloField::choices: radio buttons up to three, else a list
    kOrloFieldDate = 10,       // VT_R8    number  days since 1899-12-30, as in VT_DATE
    kOrloFieldColor = 11,      // VT_UI4   number  a COLORREF or a marker such as kColorByLayer
    kOrloFieldLayer = 12,      // VT_UI4   number  entry of kTableLayers
    kOrloFieldLineStyle = 13,  // VT_UI4   number  entry of kTableLineStyles or a marker such as kLineStyleByLayer
    kOrloFieldBrushStyle = 14, // VT_UI4   number  entry of kTableBrushStyles or kBrushStyleNone
    kOrloFieldFontFace = 15,   // VT_BSTR  text    name of a face
    kOrloFieldFontHeight = 16, // VT_R8    number  in drawing units
    kOrloFieldButton = 17,     // no value: a push button; with the label "..." at the end of the previous field
    kOrloFieldNote = 18        // no value: the label is shown as text
} OrloFieldKind;

// Flags of a field.
enum {
    kOrloFieldReadOnly = 1,
    kOrloFieldInPreview = 2, // the page shows a copy of the first graphic as its preview, with this property as edited
    kOrloFieldByCallback = 4 // OrloPage::get and set replace the property table
};

// One field of a page. Unused members are 0. The strings and arrays must stay valid until the sheet is closed.
typedef struct OrloField {
    uint32_t size;        // sizeof(OrloField); all fields of a page have the same size
    uint32_t kind;        // an OrloFieldKind
    const char* label;    // required; an ampersand precedes the mnemonic, which is removed if it is taken
    const char* property; // name of the property; null for a button or a note, can be null with kOrloFieldByCallback
    const char* group;    // consecutive fields of one group share a box with this title
    const char* unit;     // shown after the field
    const char* help;     // tooltip, and passed to OrloPage::status
    const char* const* choices; // of kOrloFieldChoice
    uint32_t choiceCount;
    uint32_t flags; // kOrloFieldReadOnly and others
    double min;     // limits of a number, inclusive; equal limits mean none
    double max;     // for a text, the maximum number of bytes
} OrloField;

typedef struct OrloValue {
    uint32_t size; // set by the library
    double number;
    const char* text; // UTF-8; null is an empty text. If `get` stores it, it must stay valid until the next callback
} OrloValue;

// Callbacks of a page; context is OrloPage::context, field the index in OrloPage::fields. They are called on the thread
// of the sheet and must not throw.
//
// Get stores the value, Set changes it. They return 0 if the graphic has no such property or rejects the value. They
// must not keep the pointer to the graphic, which can be the copy in the preview. A graphic whose text the system's
// code page cannot represent is treated as if it had no such property, because an edit would damage the text. So is one
// whose number the kind cannot represent, such as 2.5 for kOrloFieldInteger.
typedef int32_t(ORLO_CALL* OrloGetField)(void* context, struct GraphicStruct* graphic, uint32_t field,
                                         OrloValue* value);
typedef int32_t(ORLO_CALL* OrloSetField)(void* context, struct GraphicStruct* graphic, uint32_t field,
                                         const OrloValue* value);
// Called with an edited value that is within the limits. If the value is not valid, returns 0 and stores a message for
// the user (UTF-8, at most size bytes including the NUL); an empty message is replaced by a general one.
typedef int32_t(ORLO_CALL* OrloCheckField)(void* context, uint32_t field, const OrloValue* value, char* message,
                                           size_t size);
// Called when a button is pressed. Returns non-zero if it has changed graphics; fields that are not edited are then
// reloaded.
typedef int32_t(ORLO_CALL* OrloPressField)(void* context, uint32_t field);
// Called with the help text of the field that gets the focus; empty if it has none.
typedef void(ORLO_CALL* OrloFieldStatus)(void* context, const char* help);
// Returns whether the page applies to a graphic. The values of other graphics are neither shown nor changed.
typedef int32_t(ORLO_CALL* OrloAcceptGraphic)(void* context, struct GraphicStruct* graphic);

// A page of the host, laid out by the library. It is added to the sheet if it applies to one of the selected graphics.
typedef struct OrloPage {
    uint32_t size;   // sizeof(OrloPage)
    uint32_t number; // identifies the page in its sheet: 1 to 28999, different for each page
    const char* caption;
    const OrloField* fields;
    uint32_t fieldCount; // 1 to 1000
    uint32_t typeCount;
    const uint8_t* types;      // types of graphics that the page is for (kGraphicPenBrush, ...); null: all
    OrloAcceptGraphic accepts; // null: all of these types
    OrloGetField get;          // required if a field has kOrloFieldByCallback
    OrloSetField set;          // required if such a field is not read-only
    OrloCheckField check;      // null: the limits are the only check
    OrloPressField press;      // required if a field is a button
    OrloFieldStatus status;    // can be null
    void* context;             // passed to the callbacks
} OrloPage;

// Called after a page has written. changed is the number of graphics that accepted a value, rejected that of graphics
// that rejected one.
typedef void(ORLO_CALL* OrloWrittenCallback)(void* context, uint32_t changed, uint32_t rejected);
// Called when the user has closed a modeless sheet, or has requested to undo the changes since the last Apply.
typedef void(ORLO_CALL* OrloSheetCallback)(void* context);

// Sent to the owner's window, with wParam and lParam 0, when the user presses the Help button. The window procedure
// returns non-zero if it has shown help.
enum { kOrloHelpMessage = 0x0365 };

typedef struct OrloSheet {
    uint32_t size;                   // sizeof(OrloSheet)
    uint32_t filter;                 // which members of the selection to edit, such as kOrloAllGraphics
    struct HWND__* owner;            // disabled while the sheet is open; null for none
    struct DrawingStruct* drawing;   // must be the host's current drawing; must not be null
    struct GraphicStruct* selection; // the graphic whose members are edited; null: the sheet edits nothing
    void* regenMethods;              // passed to RegenMethodGetPropPage; may be null
    OrloFillCallback fill;           // null: every control shows its table of the drawing
    void* context;                   // passed to the callbacks
    const OrloPage* pages;           // pages of the host, after those of the library; can be null
    uint32_t pageCount;              // all records have the same size
    OrloWrittenCallback written;     // can be null
    OrloSheetCallback closed, reset; // of OrloOpenSheet; can be null
} OrloSheet;

// Opens the sheet and returns when the user has closed it. *code is 1 after OK, 2 after Cancel, a StyleEndCode, or -1
// if the program ended in the meantime. A page writes its values when the user leaves it, so values may have been
// written regardless of the code.
//
// Must be called on the thread of the owner and of the host's drawing. The program does not have to use the framework.
// Fails with kOrloBadThread on another thread, and with kOrloBadArgument if owner is not a window or a page is not
// valid; the message then names the page and the field.
ORLO_C_API OrloResult ORLO_CALL OrloRunSheet(const OrloSheet* sheet, int32_t* code);

// ---- Modeless sheets

// A modeless sheet in its own window, owned by OrloSheet::owner, with the buttons Apply, Reset, Close and Help. A page
// writes its values when the user presses Apply or selects another page. OrloSheetFollow, OrloSheetApply,
// OrloSheetReset and OrloSheetClose fail with kOrloBusy while a callback or a message box of a sheet is open.
typedef struct OrloSheetWindow__* OrloSheetHandle;
struct tagMSG;

// Opens a modeless sheet. The caller closes it with OrloSheetClose. The drawing and the records of pages must stay
// valid until then, the selection until OrloSheetFollow has replaced it. Fails like OrloRunSheet.
ORLO_C_API OrloResult ORLO_CALL OrloOpenSheet(const OrloSheet* sheet, OrloSheetHandle* handle);
// Handles keys and other messages of this thread's modeless sheets. Call it in the message loop, before
// TranslateMessage. Returns 1 if the message was handled and must not be dispatched, else 0.
ORLO_C_API int32_t ORLO_CALL OrloSheetTakesMessage(struct tagMSG* message);
// Stores the window of the sheet, for example so that the program can move it.
ORLO_C_API OrloResult ORLO_CALL OrloSheetGetWindow(OrloSheetHandle handle, struct HWND__** window);
// Writes typed values, then shows the properties of another selection, or of the same one after its graphics have
// changed; null means that nothing is selected. Shows the window again if the user has closed it. Fails with
// kOrloInvalidInput if a field is not valid; the sheet then keeps the previous selection, which must stay valid.
ORLO_C_API OrloResult ORLO_CALL OrloSheetFollow(OrloSheetHandle handle, struct GraphicStruct* selection);
// Writes typed values. Fails with kOrloInvalidInput if a field is not valid.
ORLO_C_API OrloResult ORLO_CALL OrloSheetApply(OrloSheetHandle handle);
// Discards typed values and shows the values of the graphics.
ORLO_C_API OrloResult ORLO_CALL OrloSheetReset(OrloSheetHandle handle);
// Closes the sheet without writing.
ORLO_C_API OrloResult ORLO_CALL OrloSheetClose(OrloSheetHandle handle);

// ---- Controls of the library in dialogs of the program

// A window of the class "QXComboBox" or "QXListBox" in a dialog template shows a table of the drawing. Its identifier
// determines which one; orlo/resources/control_ids.h, which resource scripts can also include, defines them.

// Fills and draws the controls of the library in a dialog. Call it in WM_INITDIALOG, and again to show another drawing.
// fill can be null; otherwise, it can set OrloFill::selected to the entry or color to select. The dialog must be
// destroyed before the drawing is deleted. Fails with kOrloBadArgument if dialog is not a window or drawing is not the
// current one, and with kOrloBadThread on a thread other than the dialog's.
ORLO_C_API OrloResult ORLO_CALL OrloFillControls(struct HWND__* dialog, struct DrawingStruct* drawing,
                                                 OrloFillCallback fill, void* context);
// Store and set the selection of a control: an identifier of its table, a color, or a marker such as kColorByLayer.
// Fail with kOrloBadArgument if the window is not such a control, with kOrloWrongType for font faces and heights, whose
// texts GetWindowText returns, and with kOrloNotFound if nothing is selected or the control does not list the value.
ORLO_C_API OrloResult ORLO_CALL OrloGetSelected(struct HWND__* control, uint32_t* value);
ORLO_C_API OrloResult ORLO_CALL OrloSetSelected(struct HWND__* control, uint32_t value);

// ---- Property sets and summaries of documents

// A property set in memory. Calls with a closed handle fail with kOrloBadHandle. A set must not be used by two threads
// at the same time. Different threads can use different sets.
typedef struct OrloPropset__* OrloPropset;

// Has the layout of the system's GUID.
typedef struct OrloGuid {
    uint32_t data1;
    uint16_t data2, data3;
    uint8_t data4[8];
} OrloGuid;

// Formats of sections. The last two are sections of the stream "\005DocumentSummaryInformation".
static const OrloGuid kOrloSummary = {0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};
static const OrloGuid kOrloDocumentSummary = {
    0xD5CDD502, 0x2E9C, 0x101B, {0x93, 0x97, 0x08, 0x00, 0x2B, 0x2C, 0xF9, 0xAE}};
static const OrloGuid kOrloUserDefined = {0xD5CDD505, 0x2E9C, 0x101B, {0x93, 0x97, 0x08, 0x00, 0x2B, 0x2C, 0xF9, 0xAE}};

// Properties of kOrloSummary.
enum {
    kOrloCodePage = 1, // in every section: the code page of its texts
    kOrloTitle = 2,
    kOrloSubject = 3,
    kOrloAuthor = 4,
    kOrloKeywords = 5,
    kOrloComments = 6,
    kOrloTemplate = 7,
    kOrloLastAuthor = 8,
    kOrloRevision = 9,
    kOrloEditTime = 10, // a duration
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

// Properties of kOrloDocumentSummary.
enum {
    kOrloCategory = 2,
    kOrloPresentationTarget = 3,
    kOrloBytes = 4,
    kOrloLines = 5,
    kOrloParagraphs = 6,
    kOrloSlides = 7,
    kOrloNotes = 8,
    kOrloHiddenSlides = 9,
    kOrloMediaClips = 10,
    kOrloScaleCrop = 11,
    kOrloHeadingPairs = 12, // a list of texts, each followed by a number
    kOrloPartTitles = 13,   // a list of texts
    kOrloManager = 14,
    kOrloCompany = 15,
    kOrloLinksDirty = 16,
    kOrloCharactersWithSpaces = 17,
    kOrloSharedDocument = 19,
    kOrloHyperlinksChanged = 22,
    kOrloApplicationVersion = 23,
    kOrloContentType = 26,
    kOrloContentStatus = 27,
    kOrloLanguage = 28,
    kOrloDocumentVersion = 29
};

// Value types, with the numbers of the system's variant types.
enum {
    kOrloTypeInt16 = 2,      // VT_I2
    kOrloTypeInt32 = 3,      // VT_I4
    kOrloTypeFloat = 4,      // VT_R4
    kOrloTypeDouble = 5,     // VT_R8
    kOrloTypeDate = 7,       // VT_DATE: days since 1899-12-30
    kOrloTypeBool = 11,      // VT_BOOL
    kOrloTypeUInt8 = 17,     // VT_UI1
    kOrloTypeUInt16 = 18,    // VT_UI2
    kOrloTypeUInt32 = 19,    // VT_UI4
    kOrloTypeInt64 = 20,     // VT_I8
    kOrloTypeUInt64 = 21,    // VT_UI8
    kOrloTypeText = 30,      // VT_LPSTR: in the code page of the section
    kOrloTypeWideText = 31,  // VT_LPWSTR
    kOrloTypeFileTime = 64,  // VT_FILETIME: 100 ns since 1601-01-01 UTC; kOrloEditTime: a duration in 100 ns
    kOrloTypeBlob = 65,      // VT_BLOB
    kOrloTypeClipboard = 71, // VT_CF
    kOrloTypeList = 0x1000   // VT_VECTOR: added to the type of the items, or to 12 (VT_VARIANT) if their types differ
};

// Creates an empty set. The caller closes it, like the sets of the following functions, with OrloPropsetClose.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetNew(OrloPropset* set);
// Reads a set from memory; the bytes are copied. Fails with kOrloDamaged if they are not a property set. A damaged set
// is opened as far as it can be read; changing or saving it then fails with kOrloDamaged.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetOpenMemory(const void* data, size_t size, OrloPropset* set);
// Reads a set from the current position of the stream to its end. The caller keeps ownership of the stream.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetOpenStream(struct IStream* stream, OrloPropset* set);
// Reads a set from a stream of a compound file and closes the file. If streamName is null, the stream is
// "\005SummaryInformation". The library uses its own reader, because the system's could hang on a damaged file. Other
// programs may have the file open for writing.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetOpenFile(const wchar_t* path, const char* streamName, OrloPropset* set);
// Closes a set and frees it.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetClose(OrloPropset set);

// Saves the set to memory. For this and all other buffers: *size is the size of the buffer in bytes and, on return, the
// size of the data. If buffer is null, only that size is stored, and the function returns kOrloOk. Fails with
// kOrloBufferTooSmall if the data does not fit.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSaveMemory(OrloPropset set, void* buffer, size_t* size);
// Saves the set to a stream, replacing its whole contents.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSaveStream(OrloPropset set, struct IStream* stream);
// Writes the set to a stream of a compound file (null: "\005SummaryInformation"), which is created if it does not
// exist. The change is made in a copy that then replaces the file in one step. A file that is damaged or open elsewhere
// is not changed. Fails with kOrloChanged if the set was read from this stream, or last saved to it, and the stream has
// changed since then.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSaveFile(OrloPropset set, const wchar_t* path, const char* streamName);

typedef struct OrloSection {
    uint32_t size; // sizeof(OrloSection)
    OrloGuid format;
    uint32_t codePage;   // 0 if the section has no kOrloCodePage
    uint32_t properties; // their number
} OrloSection;

typedef struct OrloProperty {
    uint32_t size; // sizeof(OrloProperty)
    uint32_t id;
    uint32_t type;       // kOrloType..., or any other type in the set
    uint32_t isComplete; // 0 if the value is damaged or of an unknown type: only its bytes are available
    size_t bytes;        // size of the value without its type code
} OrloProperty;

// An irregularity of the bytes that a set was read from.
typedef struct OrloFinding {
    uint32_t size;     // sizeof(OrloFinding)
    uint32_t severity; // kOrloFindingNote and others
    uint32_t code;     // the number by which the guide of property sets lists it
    uint64_t offset;   // in the stream
} OrloFinding;

enum {
    kOrloFindingNote = 0,      // unusual, but accepted by all readers
    kOrloFindingIrregular = 1, // readers differ, or it deserves attention
    kOrloFindingDamaged = 2    // cannot be read: the set cannot be changed or saved
};

// Stores 1 if a set is damaged, else 0.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetIsDamaged(OrloPropset set, uint32_t* isDamaged);
// Stores a finding by index, and its text. Fails with kOrloNotFound if the index is out of range. The caller sets the
// record's size first; for the buffer see OrloPropsetSaveMemory.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetFinding(OrloPropset set, uint32_t index, OrloFinding* finding,
                                                      char* buffer, size_t* size);

// Stores the number of sections.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetCountSections(OrloPropset set, uint32_t* count);
// Store a section, and a property of a section, by index. Fail with kOrloNotFound if the index is out of range, which
// ends a loop. The caller sets the record's size first.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetSection(OrloPropset set, uint32_t index, OrloSection* section);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetProperty(OrloPropset set, uint32_t section, uint32_t index,
                                                       OrloProperty* property);
// Store the name of a property in the dictionary of the section, or the identifier of the property with a name. Names
// are compared ignoring the case of the letters A to Z. Fail with kOrloNotFound if there is no such name.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetName(OrloPropset set, const OrloGuid* format, uint32_t id, char* buffer,
                                                   size_t* size);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetFindName(OrloPropset set, const OrloGuid* format, const char* name,
                                                    uint32_t* id);

// Stores an entry of the dictionary of a section by index: the property and its name, which is empty if it is not text
// in the code page of the section. Fails with kOrloNotFound if the index is out of range.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetNameAt(OrloPropset set, uint32_t section, uint32_t index, uint32_t* id,
                                                     char* buffer, size_t* size);

// Store a value of the first section of that format. For buffers see OrloPropsetSaveMemory; the size of a text includes
// its NUL. Fail with kOrloNotFound if the section or the property does not exist and with kOrloWrongType for another
// type:
//   Integer  integer types, Booleans (0 or 1), file times
//   Real     float, double, dates
//   Text     text and wide text
//   Bytes    any type: the bytes after the type code
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetInteger(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                      int64_t* value);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetReal(OrloPropset set, const OrloGuid* format, uint32_t id, double* value);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetText(OrloPropset set, const OrloGuid* format, uint32_t id, char* buffer,
                                                   size_t* size);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetBytes(OrloPropset set, const OrloGuid* format, uint32_t id, void* buffer,
                                                    size_t* size);

// Do the same for an item of a list. Fail with kOrloWrongType if the property is not a list, and with kOrloNotFound if
// the index is out of range.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetCountItems(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                      uint32_t* count);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetItemType(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                       uint32_t index, uint32_t* type);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetItemInteger(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                          uint32_t index, int64_t* value);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetItemReal(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                       uint32_t index, double* value);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetItemText(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                       uint32_t index, char* buffer, size_t* size);

// Add or replace a property; its section is created if it does not exist. A new section has the code page 65001
// (UTF-8). For another code page, set kOrloCodePage first; it cannot be changed later. An existing property can only be
// replaced by a value of the same type. Fail with kOrloWrongType if the type cannot represent the value; a double is
// rounded to a float. The data of OrloPropsetSetBytes must be exactly one value of the type.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSetInteger(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                      uint32_t type, int64_t value);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSetReal(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t type,
                                                   double value);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSetText(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t type,
                                                   const char* value);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSetBytes(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t type,
                                                    const void* data, size_t size);
// Do the same for a list; type is the type of its items, without kOrloTypeList. values can be null if count is 0.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSetIntegers(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                       uint32_t type, const int64_t* values, uint32_t count);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSetReals(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t type,
                                                    const double* values, uint32_t count);
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSetTexts(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t type,
                                                    const char* const* values, uint32_t count);
// Sets the name of a property in the dictionary of its section, which must exist. Two properties cannot have the same
// name.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetSetName(OrloPropset set, const OrloGuid* format, uint32_t id,
                                                   const char* name);
// Removes a property and its name. Fails with kOrloNotFound if it does not exist.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetRemove(OrloPropset set, const OrloGuid* format, uint32_t id);

// ---- The thumbnail of a summary

enum { kOrloBgra = 0, kOrloRgba = 1 }; // byte order of a pixel

// *width and *height are the size of the result in pixels, 1 to 8192 each. If both are 0, the size of the picture is
// used and stored; the longer side of a metafile is then 256 pixels.

// Stores the pixels of the thumbnail: four bytes each (alpha is 255), row by row from the top. For the buffer see
// OrloPropsetSaveMemory.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetThumbnailPixels(OrloPropset set, uint32_t order, uint32_t* width,
                                                              uint32_t* height, void* buffer, size_t* size);
// Creates a bitmap of the thumbnail. The caller deletes it with DeleteObject.
ORLO_C_API OrloResult ORLO_CALL OrloPropsetGetThumbnailBitmap(OrloPropset set, uint32_t* width, uint32_t* height,
                                                              struct HBITMAP__** bitmap);
