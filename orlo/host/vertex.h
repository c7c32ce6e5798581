// Vertices: the vertices of graphics, and temporary points from which the library builds graphics for previews and
// samples.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Create a vertex at a position, or as a copy of another (null: at the origin). The caller frees it with VertexDispose.
// Return null on failure.
// Called: for previews and samples, and by the Block Insertion page.
// Failure: null: the preview or sample is omitted, or the insertion is not changed.
DRAWCORE_API VertexStruct* VertexNewEx(double x, double y, double z);
DRAWCORE_API VertexStruct* VertexNewFromEx(VertexStruct* from);
// Moves a vertex, and so changes the graphic that it belongs to, if any. Coordinates are in drawing units.
// Called: for samples and previews, and by the Block Insertion page for selected insertions.
DRAWCORE_API void VertexSet(VertexStruct* vertex, double x, double y, double z);
// Frees a vertex that does not belong to a graphic and sets the pointer to null.
// Called: for each vertex that VertexNewEx or VertexNewFromEx has created.
DRAWCORE_API void VertexDispose(VertexStruct** vertex);

// Appends a copy of the vertex, including its flag kVertexDrawn, to the graphic. Returns non-zero on success.
// Called: for previews and samples.
// Failure: the result is ignored; the preview or sample lacks the vertex.
DRAWCORE_API int GraphicVertexAdd(GraphicStruct* graphic, VertexStruct* vertex);

// Iterate over the vertices of a vertex graphic or an insertion, which owns them; VertexSet can move them. Return null
// at the end. *cookie is a variable of the caller and contains the whole state of the iteration. from is 0, flags is
// 0xFFFF.
// Called: by the Block Insertion page, and for samples of brush styles.
DRAWCORE_API VertexStruct* GraphicVertexFirst(GraphicStruct* graphic, int* cookie, int from, int flags);
DRAWCORE_API VertexStruct* GraphicVertexNext(GraphicStruct* graphic, int* cookie, int from, int flags);
