// Graphics: creation and ownership, members, property tables, drawing attributes.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Creates a graphic of the given type (kGraphicText, ...) without an owner. The caller frees it with GraphicDispose.
// Returns null on failure. reserved is 0, flags is 1.
DRAWCORE_API GraphicStruct* GraphicNewEx(int type, int reserved, int flags);

// Frees the graphic with its members and sets the pointer to null. The graphic must not have an owner.
DRAWCORE_API void GraphicDispose(GraphicStruct** graphic);

// Creates a copy of the graphic with copies of its members, without an owner. The copy of a set is a group. Returns
// null on failure. reserved1 and reserved2 are 0, flags is 7.
DRAWCORE_API GraphicStruct* GraphicCopyEx(GraphicStruct* graphic, int reserved1, int reserved2, int flags);

// Attaches a graphic and its members to the drawing in which its styles, layers and blocks are looked up; null detaches
// it.
DRAWCORE_API void GraphicAttach(GraphicStruct* graphic, DrawingStruct* drawing);
// Returns the drawing that the graphic is attached to, or null.
DRAWCORE_API DrawingStruct* GraphicGetDrawing(GraphicStruct* graphic);

// Adds child to the members of parent, which then owns it. Returns the child, or null if it was rejected.
DRAWCORE_API GraphicStruct* GraphicAdd(GraphicStruct* parent, GraphicStruct* child);
// Removes child from the members of its owner. The caller then owns it.
DRAWCORE_API void GraphicDelete(GraphicStruct* owner, GraphicStruct* child);

// Iterate over the members of a set that pass the filter (kAllGraphics: all members). Return null at the end. position
// points to a 32-bit word of the caller that GraphicFirst initializes and that holds the whole state: iterations can be
// nested. flags is 1.
DRAWCORE_API GraphicStruct* GraphicFirst(GraphicStruct* set, void* position, int flags, uint32_t filter);
DRAWCORE_API GraphicStruct* GraphicNext(GraphicStruct* set, void* position, int flags, uint32_t filter);

// Returns non-zero if a graphic of the type kGraphicVertices is a group of other graphics.
DRAWCORE_API int GraphicGetIsGroup(GraphicStruct* graphic);

// Returns the graphic's property table, or null if it has no properties. It belongs to the host.
DRAWCORE_API const PropertyTable* GraphicGetVtbl(GraphicStruct* graphic);

// Mark a graphic, or its extents, as changed, to be computed again.
DRAWCORE_API void GraphicSetDirty(GraphicStruct* graphic, int dirty);
DRAWCORE_API void GraphicSetExtentsDirty(GraphicStruct* graphic, int dirty);

// Set a drawing attribute. The library uses them for samples and previews only.
// color: 0x00bbggrr, kColorByLayer or kColorByBlock.
DRAWCORE_API void GraphicSetPenColor(GraphicStruct* graphic, uint32_t color);
// style: an entry of kTableLineStyles, kLineStyleByLayer, kLineStyleByBlock or kLineStyleNone.
DRAWCORE_API void GraphicSetPenStyle(GraphicStruct* graphic, uint16_t style);
// scale: factor of the dash pattern.
DRAWCORE_API void GraphicSetPenScale(GraphicStruct* graphic, double scale);
// system: kScaleWorld or kScalePaper; the unit of the pen width.
DRAWCORE_API void GraphicSetScaleSystem(GraphicStruct* graphic, int system);
DRAWCORE_API void GraphicSetPenWidth(GraphicStruct* graphic, double width);
// style: an entry of kTableBrushStyles or kBrushStyleNone.
DRAWCORE_API void GraphicSetBrushStyle(GraphicStruct* graphic, uint16_t style);
// color: as for pens, also kColorOfPen.
DRAWCORE_API void GraphicSetBrushColor(GraphicStruct* graphic, uint32_t color);
// scale: factor of the distances in a vector pattern.
DRAWCORE_API void GraphicSetBrushScale(GraphicStruct* graphic, double scale);
