// Graphics: making, walking, property tables, drawing attributes.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Makes a graphic of that type that belongs to nobody. reserved is 0, flags is 1. Null on failure.
DRAWCORE_API GraphicStruct* GraphicNewEx(int type, int reserved, int flags);

// Frees the graphic with its parts and clears the pointer. It must have left its owner.
DRAWCORE_API void GraphicDispose(GraphicStruct** graphic);

// A copy of the graphic with copies of its parts, that belongs to nobody; of a set, a group with copies of its members.
// reserved are 0, flags is 7. Null on failure.
DRAWCORE_API GraphicStruct* GraphicCopyEx(GraphicStruct*, int reserved1, int reserved2, int flags);

// Ties a graphic (with its parts) to a drawing for style look-ups; null unties it.
DRAWCORE_API void GraphicAttach(GraphicStruct*, DrawingStruct*);
DRAWCORE_API DrawingStruct* GraphicGetDrawing(GraphicStruct*);

// Makes child a part of parent, which then owns it; returns the child, or null if it was not accepted. GraphicDelete removes
// it again.
DRAWCORE_API GraphicStruct* GraphicAdd(GraphicStruct* parent, GraphicStruct* child);
DRAWCORE_API void GraphicDelete(GraphicStruct* owner, GraphicStruct* child);

// Walk over the members of a set that pass the filter (kAllGraphics: all). The position is one 32-bit word of the
// caller's, set by GraphicFirst. flags is 1. Null at the end.
DRAWCORE_API GraphicStruct* GraphicFirst(GraphicStruct* set, void* position, int flags, uint32_t filter);
DRAWCORE_API GraphicStruct* GraphicNext(GraphicStruct* set, void* position, int flags, uint32_t filter);

// Non-zero if this vertex graphic is a group of others.
DRAWCORE_API int GraphicGetIsGroup(GraphicStruct*);

// The graphic's property table, or null. The host's.
DRAWCORE_API const PropertyTable* GraphicGetVtbl(GraphicStruct*);

// Marks a graphic, or its extents, for rebuilding.
DRAWCORE_API void GraphicSetDirty(GraphicStruct*, int dirty);
DRAWCORE_API void GraphicSetExtentsDirty(GraphicStruct*, int dirty);

// Drawing attributes. A colour is 0x00bbggrr, kColorByLayer or kColorByBlock. A pen style is an entry of kTableLineStyles,
// kLineStyleByLayer, kLineStyleByBlock or kLineStyleNone: no line. The scale multiplies the dash pattern. The scale system says
// what the pen's width means. A brush style is an entry of kTableBrushStyles or kBrushStyleNone: no filling.
DRAWCORE_API void GraphicSetPenColor(GraphicStruct*, uint32_t color);
DRAWCORE_API void GraphicSetPenStyle(GraphicStruct*, uint16_t style);
DRAWCORE_API void GraphicSetPenScale(GraphicStruct*, double scale);
DRAWCORE_API void GraphicSetScaleSystem(GraphicStruct*, int system);
DRAWCORE_API void GraphicSetPenWidth(GraphicStruct*, double width);
DRAWCORE_API void GraphicSetBrushStyle(GraphicStruct*, uint16_t style);
// Also kColorOfPen.
DRAWCORE_API void GraphicSetBrushColor(GraphicStruct*, uint32_t color);
// Multiplies the spacing of a vector pattern.
DRAWCORE_API void GraphicSetBrushScale(GraphicStruct*, double scale);
