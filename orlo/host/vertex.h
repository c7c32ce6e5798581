// Vertices: temporary points from which the library builds sample graphics, and the vertices of graphics.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Create a vertex, or a copy of one (null: at the origin). The caller frees it with VertexDispose. Return null on
// failure.
// Called: for previews and samples.
// Failure: null: that preview or sample is left out.
DRAWCORE_API VertexStruct* VertexNewEx(double x, double y, double z);
DRAWCORE_API VertexStruct* VertexNewFromEx(VertexStruct* from);
// Moves a vertex. If it belongs to a graphic, the graphic changes.
// Called: for samples and previews, and by the Block Insertion page for selected insertions.
DRAWCORE_API void VertexSet(VertexStruct* vertex, double x, double y, double z);
// Frees a vertex that does not belong to a graphic and sets the pointer to null.
// Called: for each vertex of VertexNewEx and VertexNewFromEx.
DRAWCORE_API void VertexDispose(VertexStruct** vertex);

// Appends a copy of the vertex, including kVertexDrawn. Returns non-zero on success.
// Called: for previews and samples.
// Failure: the result is ignored; the vertex is missing.
DRAWCORE_API int GraphicVertexAdd(GraphicStruct* graphic, VertexStruct* vertex);

// Iterate over the vertices of a vertex graphic or an insertion. They belong to the graphic and can be moved with
// VertexSet. Return null at the end. *cookie belongs to the caller and holds the whole state. from is 0, flags is
// 0xFFFF.
// Called: by the Block Insertion page, and for samples of brush styles.
DRAWCORE_API VertexStruct* GraphicVertexFirst(GraphicStruct* graphic, int* cookie, int from, int flags);
DRAWCORE_API VertexStruct* GraphicVertexNext(GraphicStruct* graphic, int* cookie, int from, int flags);
