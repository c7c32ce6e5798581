// Vertices: the record shared by host and library, which is sufficient for most of them.
#pragma once

#include <cstring>

#include "drawcore/src/geometry/matrix.h"
#include "orlo/host/records.h"

namespace drawcore {

class Graphic;

// The segment from a vertex to the next. Most segments are straight and as wide as the pen.
struct Segment {
    double bulge = 0;                    // tangent of a quarter of the arc's angle; positive is counterclockwise
    double startWidth = 0, endWidth = 0; // in drawing units

    bool IsPlain() const { return bulge == 0 && startWidth == 0 && endWidth == 0; }
};

class Vertex : public VertexStruct {
public:
    Vertex() : Vertex(Vec3{}) {}
    explicit Vertex(const Vec3& p, bool drawn = true) : VertexStruct{} {
        wFlags = drawn ? kVertexDrawn : 0;
        Set(p);
    }
    Vertex(const Vertex& other) : Vertex() { *this = other; }
    Vertex(Vertex&& other) noexcept : VertexStruct(other) { other.SetHostPart({}); }
    Vertex& operator=(const Vertex& other);
    ~Vertex() { delete GetHostPart().segment; }

    static Vertex* From(VertexStruct* vertex) { return static_cast<Vertex*>(vertex); }

    Vec3 Position() const { return {x, y, z}; }
    void Set(const Vec3& p) {
        x = p.x;
        y = p.y;
        z = p.z;
    }

    Segment Next() const { return GetHostPart().segment ? *GetHostPart().segment : Segment{}; }
    void SetNext(const Segment& segment);

    // Returns the graphic that the vertex belongs to, set when the vertex is passed to a caller: writing to it then
    // changes the graphic. Copies belong to none.
    Graphic* Owner() const { return GetHostPart().owner; }
    void SetOwner(Graphic* owner) { SetHostPart({GetHostPart().segment, owner}); }

private:
    // Stored in the record's bytes that belong to the host.
    struct HostPart {
        const Segment* segment = nullptr; // owned; null for a plain segment
        Graphic* owner = nullptr;
    };
    static_assert(sizeof(HostPart) <= sizeof VertexStruct::host6);

    HostPart GetHostPart() const {
        HostPart part;
        std::memcpy(&part, host6, sizeof part);
        return part;
    }
    void SetHostPart(const HostPart& part) { std::memcpy(host6, &part, sizeof part); }
};

static_assert(sizeof(Vertex) == sizeof(VertexStruct));

bool operator==(const Vertex& a, const Vertex& b);

} // namespace drawcore
