// A vertex of nobody's, for handing points to the host.
#pragma once

#include "orlo/host/vertex.h"

class ScratchVertex {
public:
    ScratchVertex() : m_vertex(::VertexNewEx(0, 0, 0)) {}
    ~ScratchVertex() {
        if (m_vertex != nullptr) ::VertexDispose(&m_vertex);
    }
    ScratchVertex(const ScratchVertex&) = delete;
    ScratchVertex& operator=(const ScratchVertex&) = delete;

    VertexStruct* get() const { return m_vertex; } // null if the host has no memory

private:
    VertexStruct* m_vertex;
};
