// Vertices: the record that host and library share, followed by bulge and widths.
#pragma once

#include "drawcore/src/geometry/matrix.h"
#include "orlo/host/records.h"

namespace drawcore {

class Graphic;

// The graphic that the vertex belongs to, from the moment that it is handed to someone outside: writing to the vertex then
// changes the graphic. A copy of the vertex belongs to none.
struct VertexOwner {
    VertexOwner() = default;
    VertexOwner(const VertexOwner&) {}
    VertexOwner& operator=(const VertexOwner&) { return *this; }

    Graphic* graphic = nullptr;
};

struct Vertex : VertexStruct {
    Vertex() : Vertex(Vec3{}) {}
    explicit Vertex(const Vec3& p, bool drawn = true) : VertexStruct{} {
        wFlags = drawn ? kVertexDrawn : 0;
        Set(p);
    }

    static Vertex* From(VertexStruct* vertex) { return static_cast<Vertex*>(vertex); }

    Vec3 Position() const { return {x, y, z}; }
    void Set(const Vec3& p) {
        x = p.x;
        y = p.y;
        z = p.z;
    }

    // Of the segment from this vertex to the next. bulge: tangent of a quarter of the arc's angle, positive to the left;
    // widths in drawing units.
    double bulge = 0;
    double startWidth = 0;
    double endWidth = 0;

    VertexOwner owner;
};

bool operator==(const Vertex& a, const Vertex& b);

} // namespace drawcore
