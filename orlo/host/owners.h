// Smart pointers for objects that the host created. C++ only.
//
//   const orlo::host::OwnedVertex vertex(::VertexNewEx(0, 0, 0));
//   if (!vertex || !::GraphicVertexAdd(graphic, vertex.get())) ...
//
//   orlo::host::String text;
//   table->PropGet(graphic, number, VT_BSTR, text.Variable());
#pragma once

#include <memory>

#include "orlo/host/graphic.h"
#include "orlo/host/matrix.h"
#include "orlo/host/owned_string.h"
#include "orlo/host/vertex.h"
#include "orlo/host/viewport.h"

namespace orlo::host {

struct Disposer {
    void operator()(GraphicStruct* graphic) const { ::GraphicDispose(&graphic); }
    void operator()(VertexStruct* vertex) const { ::VertexDispose(&vertex); }
    void operator()(ViewportStruct* viewport) const { ::ViewportDispose(&viewport); }
    void operator()(MatrixStruct* matrix) const { ::MatrixDispose(&matrix); }
};

using OwnedGraphic = std::unique_ptr<GraphicStruct, Disposer>; // a graphic without another owner
using OwnedVertex = std::unique_ptr<VertexStruct, Disposer>;
using OwnedViewport = std::unique_ptr<ViewportStruct, Disposer>;
using OwnedMatrix = std::unique_ptr<MatrixStruct, Disposer>;

} // namespace orlo::host
