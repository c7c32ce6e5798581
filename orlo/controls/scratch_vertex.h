// A vertex of nobody's, for handing points to the host.
//
//   const ScratchVertex vertex(::VertexNewEx(0, 0, 0)); // null if the host has no memory
#pragma once

#include <memory>

#include "orlo/host/vertex.h"

struct DisposeVertex {
    void operator()(VertexStruct* vertex) const { ::VertexDispose(&vertex); }
};
using ScratchVertex = std::unique_ptr<VertexStruct, DisposeVertex>;
