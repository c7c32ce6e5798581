// Graphics: kinds and filters, custom property tables, style names.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Kinds of graphics, one bit each. A filter of GraphicFirst and GraphicNext selects the kinds whose bits are set, or
// all kinds if none is set. The bit kNoStylePart is not a kind; the library uses it.
enum {
    kKindVertices = 1,  // lines, polylines, outlines, points (kGraphicVertices)
    kKindCurve = 2,     // circles, arcs, ellipses, splines (kGraphicPenBrush)
    kKindText = 8,      // kGraphicText
    kKindInsert = 0x10, // kGraphicInsert
    kKindGroup = 0x20,  // groups (kGraphicVertices)
    kFilterKinds = 0x3B,
};

// Returns the kind of a graphic.
DRAWCORE_API uint32_t GraphicGetKind(GraphicStruct*);

// Replaces the property table of a graphic, for custom kinds of graphics; with null, the graphic has no properties. The
// caller owns the table, which must outlive the graphic.
DRAWCORE_API void GraphicSetVtbl(GraphicStruct*, const PropertyTable*);

// Returns non-zero if the graphic has changed since it was last drawn.
DRAWCORE_API int GraphicIsDirty(GraphicStruct*);

// Sets the name of the style tree that the contents of a block belong to (GraphicStruct::pszStyleName). The name is
// copied; null or "" means none. Copies of the graphic belong to the same style tree.
DRAWCORE_API void GraphicSetStyleName(GraphicStruct*, const char* name);
