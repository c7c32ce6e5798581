// Records whose byte offsets are a contract between library and host. A pointer has its natural width.
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

// The host's own.
typedef struct TableStruct TableStruct;
typedef struct ExtentsStruct ExtentsStruct;
typedef struct ViewportStruct ViewportStruct;

#pragma pack(push, 4)

struct GraphicStruct {
    uint8_t host0[4];
    uint32_t dwFlags;
    uint8_t host8[0x18];
    uint8_t bType;
    uint8_t host21;
    uint16_t wRegenMethod; // 0 for none
    uint32_t
        dwOneOutline; // 1: the brush takes the whole vertex list as one outline, undrawn segments included
    uint8_t host28[0x34];
    GraphicStruct* pParent;
    uint8_t host5C[0x68 - 0x5C - sizeof(void*)];
    const char* pszStyleName; // null or NUL-terminated
    uint8_t host68[0x8C - 0x68 - sizeof(void*)];
    uint16_t wLastPage; // template number of the page that last wrote this graphic
};

struct DrawingStruct {
    uint8_t host0[0x18];
    AppStruct* pApplication;
    uint8_t host18[0x30 - 0x18 - sizeof(void*)];
    TableStruct* pUnits;
};

struct AppStruct {
    uint8_t host0[0x24];
    DrawingStruct* pCurrentDrawing;
    uint8_t host24[0x48 - 0x24 - sizeof(void*)];
    TableStruct* pVariables;
#if UINTPTR_MAX == 0xFFFFFFFF
    uint8_t host48[4];
#endif
    HPALETTE hPalette;
};

struct VertexStruct {
    uint8_t host0[4];
    uint16_t wFlags;
    uint8_t host6[0x12];
    double x, y, z; // drawing units
};

#pragma pack(pop)

#ifdef __cplusplus
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

// Slots of a graphic's property table. The number that PropLookup gives is valid for that graphic only. PropSet gives 0 if the
// graphic does not take the value; the user is then told how many graphics could not be changed.
//
// Value types are the OLE Automation variant type numbers. PropGet fills, and PropSet gets a pointer to:
//   3, 0x13     32 bits
//   4, 5        float, double
//   0x0B        PropGet 16 bits, PropSet a 32-bit 0 or 1
//   0x11, 0x12  8, 16 bits
//   8           PropGet a char* variable with a string of the host's making, given back by BStringNULL; PropSet gets the
//               text itself
struct PropertyTable {
    void* slot0; // not used by the library
    int (*PropLookup)(GraphicStruct*, const char* const* ppszName, int count, int reserved, int32_t* pNumber);
    int (*PropGet)(GraphicStruct*, int32_t number, int vt, void* pValue);
    int (*PropSet)(GraphicStruct*, int32_t number, int vt, const void* pValue);
};
