// Requirements of vertices, both temporary ones and those of graphics, and of text graphics.

#include <cmath>

#include "requirement.h"

namespace {

// The other flags belong to the host.
bool IsDrawn(const VertexStruct& vertex) {
    return (vertex.wFlags & kVertexDrawn) != 0;
}

bool IsAt(const VertexStruct& vertex, double x, double y, double z) {
    return vertex.x == x && vertex.y == y && vertex.z == z;
}

void CreatesVertices(const Subject& s) {
    const auto vertex = s.NewVertex(1, 2, 3);
    Require(IsAt(*vertex, 1, 2, 3), "the vertex is at %g, %g, %g instead of 1, 2, 3", vertex->x, vertex->y, vertex->z);
    Require(IsDrawn(*vertex), "a new vertex does not have the flag kVertexDrawn");
}

void CopiesVertices(const Subject& s) {
    const auto from = s.NewVertex(1, 2, 3);
    from->wFlags &= static_cast<uint16_t>(~kVertexDrawn);
    const Owned<VertexStruct> copy(CALL(s.host, VertexNewFromEx)(from.get()), from.get_deleter());
    Require(copy && copy != from && IsAt(*copy, 1, 2, 3) && !IsDrawn(*copy), "the result is not a copy");
    const Owned<VertexStruct> origin(CALL(s.host, VertexNewFromEx)(nullptr), from.get_deleter());
    Require(origin && IsAt(*origin, 0, 0, 0), "did not return a vertex at the origin for null");
}

void MovesVertices(const Subject& s) {
    const auto vertex = s.NewVertex(1, 2, 3);
    vertex->wFlags &= static_cast<uint16_t>(~kVertexDrawn);
    CALL(s.host, VertexSet)(vertex.get(), 4, 5, 6);
    Require(IsAt(*vertex, 4, 5, 6), "the vertex is at %g, %g, %g instead of 4, 5, 6", vertex->x, vertex->y, vertex->z);
    Require(!IsDrawn(*vertex), "the flag kVertexDrawn was set");
}

void ClearsThePointer(const Subject& s) {
    VertexStruct* vertex = s.NewVertex(0, 0, 0).release();
    CALL(s.host, VertexDispose)(&vertex);
    Require(!vertex, "the pointer is %p afterward", static_cast<void*>(vertex));
}

void AppendsCopies(const Subject& s) {
    const auto list = s.NewGraphic(kGraphicVertices);
    const auto temporary = s.NewVertex(0, 0, 0);
    for (int i = 0; i < 4; ++i) {
        CALL(s.host, VertexSet)(temporary.get(), i, 2 * i, 3 * i);
        temporary->wFlags = static_cast<uint16_t>((temporary->wFlags & ~kVertexDrawn) | (i % 2 ? kVertexDrawn : 0));
        Require(CALL(s.host, GraphicVertexAdd)(list.get(), temporary.get()), "returned 0");
    }
    const auto vertices = s.Vertices(list.get());
    Require(vertices.size() == 4, "the iteration returned %zu of 4 vertices", vertices.size());
    for (int i = 0; i < 4; ++i) {
        Require(vertices[i] != temporary.get() && IsAt(*vertices[i], i, 2 * i, 3 * i),
                "vertex %d has a different position", i);
        Require(IsDrawn(*vertices[i]) == (i % 2 != 0), "the flag kVertexDrawn of vertex %d was not copied", i);
    }
}

void MovesVerticesOfGraphics(const Subject& s) {
    const auto square = s.NewSquare(1);
    for (size_t i = 0; i < 5; ++i) {
        CALL(s.host, VertexSet)(s.Vertices(square.get())[i], 9, 8, 7);
        Require(IsAt(*s.Vertices(square.get())[i], 9, 8, 7), "VertexSet did not move vertex %zu", i);
    }
}

void KeepsItsStateInTheCookie(const Subject& s) {
    const auto square = s.NewSquare(1), other = s.NewSquare(2);
    int cookies[2] = {0, 0x5A5A5A5A}, second = 0;
    CALL(s.host, GraphicVertexFirst)(square.get(), cookies, 0, 0xFFFF);
    CALL(s.host, GraphicVertexFirst)(other.get(), &second, 0, 0xFFFF);
    CALL(s.host, GraphicVertexNext)(other.get(), &second, 0, 0xFFFF);
    const VertexStruct* next = CALL(s.host, GraphicVertexNext)(square.get(), cookies, 0, 0xFFFF);
    Require(cookies[1] == 0x5A5A5A5A, "wrote more than an int to the cookie");
    Require(next == s.Vertices(square.get())[1], "two nested iterations affect each other");
}

double SizeOf(const Subject& s, GraphicStruct* text) {
    const char* name = kPropTextSize;
    const PropertyTable* table = CALL(s.host, GraphicGetVtbl)(text);
    int32_t number = 0;
    double size = 0;
    Require(table && table->PropLookup(text, &name, 1, 0, &number) && table->PropGet(text, number, VT_R8, &size),
            "a text graphic has no property %s", name);
    return size;
}

void SetsTexts(const Subject& s) {
    const auto text = s.NewGraphic(kGraphicText);
    const auto at = s.NewVertex(10, 20, 0);
    RequireNoStub(CALL(s.host, TextSetVWHAEx)(text.get(), at.get(), 0, 5, 0, "text"), "TextSetVWHAEx");
    Require(SizeOf(s, text.get()) == 5, "the height is %g instead of 5", SizeOf(s, text.get()));
    CALL(s.host, TextSetVWHAEx)(text.get(), at.get(), 0, 0, 0, "longer text");
    Require(SizeOf(s, text.get()) == 5, "height 0 changed the height to %g", SizeOf(s, text.get()));
    CALL(s.host, TextExternalJustify)(text.get(), 0);
    const ExtentsStruct* extents = CALL(s.host, GraphicGetExtentsSel)(text.get(), 0);
    const double left = CALL(s.host, ExtentsGetX1)(extents), right = CALL(s.host, ExtentsGetX2)(extents);
    Require(left > 5 && right > left + 5, "the extents of a text at 10 are %g to %g", left, right);
}

void RejectsNonFiniteNumbers(const Subject& s) {
    const auto text = s.NewGraphic(kGraphicText);
    const auto at = s.NewVertex(10, 20, 0);
    RequireNoStub(CALL(s.host, TextSetVWHAEx)(text.get(), at.get(), 0, 5, 0, "text"), "TextSetVWHAEx");
    constexpr const char* kNames[] = {"position", "width", "height", "angle"};
    Violations violations;
    for (const double wrong : {HUGE_VAL, std::nan("")})
        for (int place = 0; place < 4; ++place) {
            double numbers[4] = {10, 0, 5, 0}; // x, width, height, angle
            numbers[place] = wrong;
            // The host's own functions could reject such a vertex.
            at->x = numbers[0];
            const int accepted =
                CALL(s.host, TextSetVWHAEx)(text.get(), at.get(), numbers[1], numbers[2], numbers[3], "other");
            violations.Collect([&] {
                Require(!accepted, "returned non-zero for %g as the %s", wrong, kNames[place]);
                Require(SizeOf(s, text.get()) == 5, "rejected %g, but the height is %g", wrong, SizeOf(s, text.get()));
            });
        }
    violations.Report();
}

void SetsTextsOnly(const Subject& s) {
    const auto at = s.NewVertex(0, 0, 0);
    Require(!CALL(s.host, TextSetVWHAEx)(s.NewSquare(1).get(), at.get(), 0, 5, 0, "text"),
            "returned non-zero for a vertex list");
}

constexpr Requirement kRows[] = {
    {"VertexNewEx", "creates a vertex at the position, with the flag kVertexDrawn", CreatesVertices},
    {"VertexNewFromEx", "copies a vertex with its flags; null is the origin", CopiesVertices},
    {"VertexSet", "moves a vertex without changing its flags", MovesVertices},
    {"VertexDispose", "sets the pointer to null", ClearsThePointer},
    {"GraphicVertexAdd", "appends a copy with its flags", AppendsCopies},
    {"GraphicVertexFirst", "returns the vertices of the graphic, which VertexSet moves", MovesVerticesOfGraphics},
    {"GraphicVertexNext", "stores the position in the cookie only", KeepsItsStateInTheCookie},
    {"TextSetVWHAEx", "sets position, height and text; 0 keeps the height", SetsTexts},
    {"TextSetVWHAEx", "returns 0 if a number is not finite", RejectsNonFiniteNumbers},
    {"TextSetVWHAEx", "returns 0 if the graphic is not a text", SetsTextsOnly},
};

} // namespace

const Topic kVertexRequirements = TopicOf(kRows);
