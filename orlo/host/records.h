// Records that library and host share byte for byte, for 32-bit and 64-bit programs.
//
// The host can use members named host... freely. It derives its own records from these, or declares records with the
// same layout.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "orlo/host/words.h"

#if defined(_WIN32)
#include <windows.h>
#else
typedef struct HPALETTE__* HPALETTE;
#endif

typedef struct AppStruct AppStruct;
typedef struct DrawingStruct DrawingStruct;
typedef struct GraphicStruct GraphicStruct;
typedef struct VertexStruct VertexStruct;
typedef struct PropertyTable PropertyTable;

// Defined by the host; the library only uses pointers to them.
typedef struct TableStruct TableStruct;
typedef struct ExtentsStruct ExtentsStruct;
typedef struct ViewportStruct ViewportStruct;

#pragma pack(push, 4)

struct GraphicStruct {
    uint8_t host0[4];
    uint32_t dwFlags; // kFlag...
    uint8_t host8[0x18];
    uint8_t bType; // kGraphic...
    uint8_t host21;
    uint16_t wRegenMethod; // number of the regen method, 0 for none
    // 0, or 1 in samples and previews of brushes, where the library sets it: the brush then fills the whole vertex list
    // as one outline, including undrawn segments.
    uint32_t dwOneOutline;
    uint8_t host28[0x34];
    GraphicStruct* pParent; // not valid if kFlagNoParent is set
    uint8_t host5C[0x68 - 0x5C - sizeof(void*)];
    const char* pszStyleName; // name of the style tree that the contents of a block belong to, or null
    uint8_t host68[0x8C - 0x68 - sizeof(void*)];
    uint16_t wLastPage; // template number of the page that last wrote to this graphic; set by the library
};

struct DrawingStruct {
    uint8_t host0[0x18];
    AppStruct* pApplication;
    uint8_t host18[0x30 - 0x18 - sizeof(void*)];
    TableStruct* pUnits; // the drawing's table kTableUnits
};

struct AppStruct {
    uint8_t host0[0x24];
    DrawingStruct* pCurrentDrawing; // null if there is none
    uint8_t host24[0x48 - 0x24 - sizeof(void*)];
    TableStruct* pVariables; // kVar...
#if UINTPTR_MAX == 0xFFFFFFFF
    uint8_t host48[4];
#endif
    HPALETTE hPalette; // used if IsPaletteSupported returns non-zero; may be null
};

struct VertexStruct {
    uint8_t host0[4];
    uint16_t wFlags; // kVertexDrawn
    uint8_t host6[0x12];
    double x, y, z; // drawing units
};

#pragma pack(pop)

#ifdef ORLO_CPP17
static_assert(offsetof(GraphicStruct, dwFlags) == 4);
static_assert(offsetof(GraphicStruct, bType) == 0x20);
static_assert(offsetof(GraphicStruct, wRegenMethod) == 0x22);
static_assert(offsetof(GraphicStruct, dwOneOutline) == 0x24);
static_assert(offsetof(GraphicStruct, pParent) == 0x5C);
static_assert(offsetof(GraphicStruct, pszStyleName) == 0x68);
static_assert(offsetof(GraphicStruct, wLastPage) == 0x8C);
static_assert(offsetof(DrawingStruct, pApplication) == 0x18);
static_assert(offsetof(DrawingStruct, pUnits) == 0x30);
static_assert(offsetof(AppStruct, pCurrentDrawing) == 0x24);
static_assert(offsetof(AppStruct, pVariables) == 0x48);
static_assert(offsetof(AppStruct, hPalette) == 0x50);
static_assert(offsetof(VertexStruct, wFlags) == 4);
static_assert(offsetof(VertexStruct, x) == 0x18);
static_assert(offsetof(VertexStruct, y) == 0x20);
static_assert(offsetof(VertexStruct, z) == 0x28);
#endif

// The property table of a graphic. Value types (vt) are the variant type numbers of <wtypes.h>:
//
//   VT_I4, VT_UI4   32 bits
//   VT_UI1, VT_UI2  8 or 16 bits
//   VT_R4, VT_R8    float or double
//   VT_BOOL         PropGet stores 16 bits, 0 for false; PropSet receives a 32-bit 0 or 1
//   VT_BSTR         PropGet frees the string that the char* variable points to, if any, and stores a new 8-bit string,
//                   which the caller frees with BStringNULL. PropSet receives the characters, which the host copies
struct PropertyTable {
    void* slot0; // not used by the library
    // Stores the number of the property named *ppszName, which is valid for this graphic only. Names are
    // case-sensitive. Returns 0 if the graphic has no such property. count is 1, reserved is 0.
    int (*PropLookup)(GraphicStruct*, const char* const* ppszName, int count, int reserved, int32_t* pNumber);
    // Stores the value in *pValue and returns non-zero. Pages set the variable to 0 beforehand and ignore the result.
    int (*PropGet)(GraphicStruct*, int32_t number, int vt, void* pValue);
    // Sets the value to *pValue. Returns 0 if the graphic rejects it; the user is then told how many graphics could not
    // be changed.
    int (*PropSet)(GraphicStruct*, int32_t number, int vt, const void* pValue);
};
