// Vertices: scratch points from which the library builds its sample graphics, and those of graphics.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Null on failure. VertexNewFromEx(0) makes one at the origin.
DRAWCORE_API VertexStruct* VertexNewEx(double x, double y, double z);
DRAWCORE_API VertexStruct* VertexNewFromEx(VertexStruct* from);
DRAWCORE_API void VertexSet(VertexStruct*, double x, double y, double z);
DRAWCORE_API void VertexDispose(VertexStruct** vertex);

// Appends a copy of the vertex, flag word included.
DRAWCORE_API int GraphicVertexAdd(GraphicStruct*, VertexStruct*);

// Walk over the vertices of a vertex graphic or an insertion; they are the graphic's own, and VertexSet moves them. The cookie
// is the caller's. from is 0, flags 0xFFFF. Null at the end.
DRAWCORE_API VertexStruct* GraphicVertexFirst(GraphicStruct*, int* cookie, int from, int flags);
DRAWCORE_API VertexStruct* GraphicVertexNext(GraphicStruct*, int* cookie, int from, int flags);
