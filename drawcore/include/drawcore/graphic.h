// Graphics, for host programs: kinds, filters, property tables of one's own.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Kinds of graphic, one bit each; a filter of GraphicFirst and GraphicNext passes the kinds whose bits it has, or all if it
// has none of them. Bit 2 (value 4) is not a kind: the library reads it (the General page is without its style part).
enum : uint32_t {
    kKindVertices = 1,  // lines, polylines, outlines, points (type 0x0B)
    kKindCurve = 2,     // circles, arcs, ellipses, splines (type 2)
    kKindText = 8,      // type 6
    kKindInsert = 0x10, // type 0x11
    kKindGroup = 0x20,  // type 0x0B
    kFilterKinds = 0x3B,
};

DRAWCORE_API uint32_t GraphicGetKind(GraphicStruct*);

// Puts a property table of the caller's in place of the graphic's own, for kinds of graphic that drawcore doesn't know; it
// has to outlive the graphic. Null: the graphic has no properties.
DRAWCORE_API void GraphicSetVtbl(GraphicStruct*, const PropertyTable*);

// Whether the graphic has changed since it was drawn last.
DRAWCORE_API int GraphicIsDirty(GraphicStruct*);

// Names the style tree that the contents of a block belong to (pszStyleName), copied; null or "" removes it from all. Copies
// of the graphic belong to the same one.
DRAWCORE_API void GraphicSetStyleName(GraphicStruct*, const char* name);
