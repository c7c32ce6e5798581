// Vertices, scratch ones and those of graphics, and texts, which stand at one.

#include "promise.h"

namespace {

bool IsAt(const VertexStruct& vertex, double x, double y, double z) {
    return vertex.x == x && vertex.y == y && vertex.z == z;
}

void MakesVertices(const Subject& s) {
    const auto vertex = s.NewVertex(1, 2, 3);
    Expect(IsAt(*vertex, 1, 2, 3), "is at %g, %g, %g for 1, 2, 3", vertex->x, vertex->y, vertex->z);
    Expect(vertex->wFlags & kVertexDrawn, "a new vertex has not the flag kVertexDrawn");
}

void CopiesVertices(const Subject& s) {
    const auto from = s.NewVertex(1, 2, 3);
    from->wFlags &= static_cast<uint16_t>(~kVertexDrawn);
    const Made<VertexStruct> copy(CALL(s.host, VertexNewFromEx)(from.get()), from.get_deleter());
    Expect(copy && copy != from && IsAt(*copy, 1, 2, 3) && copy->wFlags == from->wFlags, "is no copy");
    const Made<VertexStruct> origin(CALL(s.host, VertexNewFromEx)(nullptr), from.get_deleter());
    Expect(origin && IsAt(*origin, 0, 0, 0), "gave none at the origin for null");
}

void MovesVertices(const Subject& s) {
    const auto vertex = s.NewVertex(1, 2, 3);
    vertex->wFlags = 0;
    CALL(s.host, VertexSet)(vertex.get(), 4, 5, 6);
    Expect(IsAt(*vertex, 4, 5, 6) && vertex->wFlags == 0,
           "is at %g, %g, %g, with flags %u, for 4, 5, 6 and none", vertex->x, vertex->y, vertex->z,
           vertex->wFlags);
}

void ClearsThePointer(const Subject& s) {
    VertexStruct* vertex = s.NewVertex(0, 0, 0).release();
    CALL(s.host, VertexDispose)(&vertex);
    Expect(!vertex, "left %p", static_cast<void*>(vertex));
}

void AppendsCopies(const Subject& s) {
    const auto list = s.NewGraphic(kGraphicVertices);
    const auto scratch = s.NewVertex(0, 0, 0);
    for (int i = 0; i < 4; ++i) {
        CALL(s.host, VertexSet)(scratch.get(), i, 2 * i, 3 * i);
        scratch->wFlags = static_cast<uint16_t>(i % 2 ? kVertexDrawn : 0);
        Expect(CALL(s.host, GraphicVertexAdd)(list.get(), scratch.get()), "gave 0");
    }
    const auto vertices = s.Vertices(list.get());
    Expect(vertices.size() == 4, "the walk gave %zu of 4 vertices", vertices.size());
    for (int i = 0; i < 4; ++i) {
        Expect(vertices[i] != scratch.get() && IsAt(*vertices[i], i, 2 * i, 3 * i), "vertex %d is elsewhere",
               i);
        Expect((vertices[i]->wFlags & kVertexDrawn) == (i % 2 ? kVertexDrawn : 0),
               "vertex %d has lost its flag", i);
    }
}

void MovesThoseOfGraphics(const Subject& s) {
    const auto square = s.NewSquare(1);
    for (size_t i = 0; i < 5; ++i) {
        CALL(s.host, VertexSet)(s.Vertices(square.get())[i], 9, 8, 7);
        Expect(IsAt(*s.Vertices(square.get())[i], 9, 8, 7), "vertex %zu, moved by VertexSet, is where it was",
               i);
    }
}

void KeepsItsPlaceInTheCookie(const Subject& s) {
    const auto square = s.NewSquare(1), other = s.NewSquare(2);
    int cookies[2] = {0, 0x5A5A5A5A}, second = 0;
    CALL(s.host, GraphicVertexFirst)(square.get(), cookies, 0, 0xFFFF);
    CALL(s.host, GraphicVertexFirst)(other.get(), &second, 0, 0xFFFF);
    CALL(s.host, GraphicVertexNext)(other.get(), &second, 0, 0xFFFF);
    const VertexStruct* next = CALL(s.host, GraphicVertexNext)(square.get(), cookies, 0, 0xFFFF);
    Expect(cookies[1] == 0x5A5A5A5A, "the cookie took more than an int");
    Expect(next == s.Vertices(square.get())[1], "two walks at a time disturb each other");
}

void InsertionsHaveFour(const Subject& s) {
    const auto insertion = s.NewGraphic(kGraphicInsert);
    CALL(s.host, GraphicAttach)(insertion.get(), s.drawing);
    const size_t count = s.Vertices(insertion.get()).size();
    Expect(count == 4, "an insertion has %zu vertices, not 4", count);
}

double SizeOf(const Subject& s, GraphicStruct* text) {
    const char* name = kPropTextSize;
    const PropertyTable* table = CALL(s.host, GraphicGetVtbl)(text);
    int32_t number = 0;
    double size = 0;
    Expect(table && table->PropLookup(text, &name, 1, 0, &number) &&
               table->PropGet(text, number, VT_R8, &size),
           "a text has no %s", name);
    return size;
}

void SetsTexts(const Subject& s) {
    const auto text = s.NewGraphic(kGraphicText);
    const auto at = s.NewVertex(10, 20, 0);
    Expect(CALL(s.host, TextSetVWHAEx)(text.get(), at.get(), 0, 5, 0, "text"), "gave 0");
    Expect(SizeOf(s, text.get()) == 5, "the height is %g for 5", SizeOf(s, text.get()));
    CALL(s.host, TextSetVWHAEx)(text.get(), at.get(), 0, 0, 0, "longer text");
    Expect(SizeOf(s, text.get()) == 5, "a height of 0 has made it %g", SizeOf(s, text.get()));
    CALL(s.host, TextExternalJustify)(text.get(), 0);
    const ExtentsStruct* extents = CALL(s.host, GraphicGetExtentsSel)(text.get(), 0);
    const double left = CALL(s.host, ExtentsGetX1)(extents), right = CALL(s.host, ExtentsGetX2)(extents);
    Expect(left > 5 && right > left + 5, "the extents of a text at 10 go from %g to %g", left, right);
}

void SetsTextsOnly(const Subject& s) {
    const auto at = s.NewVertex(0, 0, 0);
    Expect(!CALL(s.host, TextSetVWHAEx)(s.NewSquare(1).get(), at.get(), 0, 5, 0, "text"),
           "took a list of vertices");
}

constexpr Promise kRows[] = {
    {"VertexNewEx", "makes a vertex there, to which is drawn", MakesVertices},
    {"VertexNewFromEx", "copies a vertex with its flags, and makes one at the origin of null",
     CopiesVertices},
    {"VertexSet", "moves a vertex and leaves its flags", MovesVertices},
    {"VertexDispose", "clears the pointer", ClearsThePointer},
    {"GraphicVertexAdd", "appends a copy, flags included", AppendsCopies},
    {"GraphicVertexFirst", "gives the graphic's own vertices, which VertexSet moves", MovesThoseOfGraphics},
    {"GraphicVertexNext", "keeps its place in the cookie", KeepsItsPlaceInTheCookie},
    {"GraphicVertexNext", "gives the four vertices of an insertion", InsertionsHaveFour},
    {"TextSetVWHAEx", "sets place, height and text; a height of 0 leaves the height", SetsTexts},
    {"TextSetVWHAEx", "gives 0 for what is no text", SetsTextsOnly},
};

} // namespace

const Topic kVertexPromises = TopicOf(kRows);
