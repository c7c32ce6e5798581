// Functions of the host contract for vertices, both temporary ones and those of graphics.

#include <new>

#include "drawcore/src/graphics/graphic.h"
#include "drawcore/src/graphics/object_counts.h"
#include "drawcore/src/graphics/vertex.h"
#include "orlo/host/vertex.h"

using drawcore::ObjectCounts;
using drawcore::Vertex;

VertexStruct* VertexNewEx(double x, double y, double z) {
    Vertex* vertex = new (std::nothrow) Vertex({x, y, z});
    if (vertex) ++ObjectCounts::vertices;
    return vertex;
}

VertexStruct* VertexNewFromEx(VertexStruct* from) {
    VertexStruct* vertex = VertexNewEx(0, 0, 0);
    if (vertex && from) *Vertex::From(vertex) = *Vertex::From(from);
    return vertex;
}

void VertexSet(VertexStruct* vertex, double x, double y, double z) {
    if (!vertex) return;
    drawcore::Graphic* const graphic = Vertex::From(vertex)->Owner();
    if (graphic) graphic->ChangingShape();
    Vertex::From(vertex)->Set({x, y, z});
    if (graphic) graphic->ChangedShape();
}

void VertexDispose(VertexStruct** vertex) {
    if (!vertex || !*vertex) return;
    --ObjectCounts::vertices;
    delete Vertex::From(*vertex);
    *vertex = nullptr;
}
