// Graphics: creation and ownership, members, property tables, drawing attributes.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Creates a graphic of the given type (kGraphicText, ...) without an owner. The caller frees it with GraphicDispose.
// Returns null on failure or if the host has no graphics of that type. reserved is 0, flags is 1.
// Called: for previews and samples, with the types kGraphicText, kGraphicVertices and kGraphicInsert.
// Stub: return null, for all types or for some. Lost: previews and samples of that type.
// Failure: null: the preview or sample is omitted.
DRAWCORE_API GraphicStruct* GraphicNewEx(int type, int reserved, int flags);

// Frees the graphic with its members and sets the pointer to null. The graphic must not have an owner.
// Called: when a preview, a sample or a rejected copy is no longer needed.
DRAWCORE_API void GraphicDispose(GraphicStruct** graphic);

// Creates a copy of the graphic and its members without an owner. A set is copied as a group. The caller frees the copy
// with GraphicDispose. Returns null on failure. reserved1 and reserved2 are 0, flags is 7.
// Called: when the user presses New in the style part, and for the preview of a page that is defined by a table of
// fields.
// Stub: return null. Lost: the New button of the style part, and previews of pages that are defined by tables.
// Failure: null: the style is not added; the page has no preview.
DRAWCORE_API GraphicStruct* GraphicCopyEx(GraphicStruct* graphic, int reserved1, int reserved2, int flags);

// Attaches a graphic and its members to the drawing in which its styles, layers and blocks are looked up; null detaches
// it.
// Called: for previews and samples.
DRAWCORE_API void GraphicAttach(GraphicStruct* graphic, DrawingStruct* drawing);
// Returns the drawing that the graphic is attached to, or null.
// Called: when a preview is drawn.
DRAWCORE_API DrawingStruct* GraphicGetDrawing(GraphicStruct* graphic);

// Adds child to the members of parent, which then owns it, and returns it. Returns null if child was rejected; the
// caller then still owns it.
// Called: for previews and samples.
// Failure: null: the preview or sample is omitted.
DRAWCORE_API GraphicStruct* GraphicAdd(GraphicStruct* parent, GraphicStruct* child);
// Removes child from the members of its owner. The caller then owns it.
// Called: when another page shows its preview.
DRAWCORE_API void GraphicDelete(GraphicStruct* owner, GraphicStruct* child);

// Iterate over the members of a set that pass the filter (kAllGraphics: all members). Return null at the end. position
// points to a 32-bit variable of the caller, which GraphicFirst initializes. It contains the whole state of the
// iteration, so that iterations can be nested. flags is 1.
// Called: for every property that a page reads or writes.
DRAWCORE_API GraphicStruct* GraphicFirst(GraphicStruct* set, void* position, int flags, uint32_t filter);
DRAWCORE_API GraphicStruct* GraphicNext(GraphicStruct* set, void* position, int flags, uint32_t filter);

// Returns non-zero if a graphic of the type kGraphicVertices is a group of other graphics.
// Called: by AddGraphicPropertyPage.
// Stub: return 0. Lost: nothing, if there are no groups; otherwise groups get the Pen and Brush pages.
DRAWCORE_API int GraphicGetIsGroup(GraphicStruct* graphic);

// Returns the graphic's property table, which the host owns, or null if the graphic has no properties.
// Called: for every property that a page reads or writes.
// Failure: null: the graphic is skipped.
DRAWCORE_API const PropertyTable* GraphicGetVtbl(GraphicStruct* graphic);

// Mark a graphic, or its extents, as changed. Extents are then computed again when they are needed.
// Called: after a preview or a sample has changed.
// Stub: do nothing. Lost: nothing, if extents are computed on demand.
DRAWCORE_API void GraphicSetDirty(GraphicStruct* graphic, int dirty);
DRAWCORE_API void GraphicSetExtentsDirty(GraphicStruct* graphic, int dirty);

// Sets the color of the pen: 0x00bbggrr, kColorByLayer or kColorByBlock.
// Called: for samples and previews.
// Stub: do nothing. Lost: nothing, if ViewportNewEx is a stub too.
DRAWCORE_API void GraphicSetPenColor(GraphicStruct* graphic, uint32_t color);
// Sets the style of the pen: an entry of kTableLineStyles, kLineStyleByLayer, kLineStyleByBlock or kLineStyleNone.
DRAWCORE_API void GraphicSetPenStyle(GraphicStruct* graphic, uint16_t style);
// Sets the scale factor of the dash pattern.
DRAWCORE_API void GraphicSetPenScale(GraphicStruct* graphic, double scale);
// Sets the unit of the pen width: kScaleWorld or kScalePaper.
DRAWCORE_API void GraphicSetScaleSystem(GraphicStruct* graphic, int system);
// Sets the width of the pen, in the unit of the scale system.
DRAWCORE_API void GraphicSetPenWidth(GraphicStruct* graphic, double width);
// Sets the style of the brush: an entry of kTableBrushStyles or kBrushStyleNone.
DRAWCORE_API void GraphicSetBrushStyle(GraphicStruct* graphic, uint16_t style);
// Sets the color of the brush: the values of GraphicSetPenColor, or kColorOfPen.
DRAWCORE_API void GraphicSetBrushColor(GraphicStruct* graphic, uint32_t color);
// Sets the scale factor of a vector pattern.
DRAWCORE_API void GraphicSetBrushScale(GraphicStruct* graphic, double scale);
