// What a check says when a promise is broken.

#include "promise.h"

#include <cstdarg>
#include <cstdio>

namespace {

const Host* disposing; // the one database of this process

void DisposeGraphic(GraphicStruct* graphic) {
    CALL(*disposing, GraphicDispose)(&graphic);
}
void DisposeVertex(VertexStruct* vertex) {
    CALL(*disposing, VertexDispose)(&vertex);
}
void DisposeViewport(ViewportStruct* viewport) {
    CALL(*disposing, ViewportDispose)(&viewport);
}
void DisposeMatrix(MatrixStruct* matrix) {
    CALL(*disposing, MatrixDispose)(&matrix);
}

constexpr const char* kFunctions[] = {
#include "functions.inc"
};

constexpr const char kIsExported[] = "is exported";

} // namespace

void Expect(bool kept, const char* format, ...) {
    if (kept) return;
    char text[256];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    throw Broken{text};
}

Subject::Subject(const Host& of, DrawingStruct* current) : host(of), drawing(current) {
    disposing = &of;
}

TableStruct* Subject::Table(const char* name) const {
    TableStruct* table = CALL(host, DrawingGetTable)(drawing, name);
    Expect(table, "the drawing has no table %s", name);
    return table;
}

Made<GraphicStruct> Subject::NewGraphic(int type) const {
    Made<GraphicStruct> graphic(CALL(host, GraphicNewEx)(type, 0, 1), DisposeGraphic);
    Expect(graphic != nullptr, "GraphicNewEx gave no graphic of type 0x%02X", type);
    return graphic;
}

Made<VertexStruct> Subject::NewVertex(double x, double y, double z) const {
    Made<VertexStruct> vertex(CALL(host, VertexNewEx)(x, y, z), DisposeVertex);
    Expect(vertex != nullptr, "VertexNewEx gave no vertex");
    return vertex;
}

Made<GraphicStruct> Subject::NewSquare(double size) const {
    Made<GraphicStruct> square = NewGraphic(kGraphicVertices);
    const double corners[][2] = {{0, 0}, {size, 0}, {size, size}, {0, size}, {0, 0}};
    for (const auto& [x, y] : corners)
        Expect(CALL(host, GraphicVertexAdd)(square.get(), NewVertex(x, y, 0).get()),
               "GraphicVertexAdd gave 0");
    CALL(host, GraphicAttach)(square.get(), drawing);
    return square;
}

Made<ViewportStruct> Subject::NewViewport() const {
    Made<ViewportStruct> viewport(CALL(host, ViewportNewEx)(), DisposeViewport);
    Expect(viewport != nullptr, "ViewportNewEx gave no viewport");
    return viewport;
}

Made<MatrixStruct> Subject::Own(MatrixStruct* matrix) const {
    Expect(matrix, "gave no matrix");
    return {matrix, DisposeMatrix};
}

std::vector<uint16_t> Subject::Entries(TableStruct* table) const {
    std::vector<uint16_t> entries;
    int cookie;
    for (uint16_t id = CALL(host, TableEntryFirst)(table, &cookie); id != 0;
         id = CALL(host, TableEntryNext)(table, &cookie)) {
        entries.push_back(id);
        Expect(entries.size() <= UINT16_MAX, "the walk has no end");
    }
    return entries;
}

std::vector<GraphicStruct*> Subject::Members(GraphicStruct* set, uint32_t filter) const {
    std::vector<GraphicStruct*> members;
    uint32_t place[2] = {0, 0xABABABAB};
    for (GraphicStruct* member = CALL(host, GraphicFirst)(set, place, 1, filter); member;
         member = CALL(host, GraphicNext)(set, place, 1, filter))
        members.push_back(member);
    Expect(place[1] == 0xABABABAB, "the position took more than its 32 bits");
    return members;
}

std::vector<VertexStruct*> Subject::Vertices(GraphicStruct* graphic) const {
    std::vector<VertexStruct*> vertices;
    int cookie;
    for (VertexStruct* vertex = CALL(host, GraphicVertexFirst)(graphic, &cookie, 0, 0xFFFF); vertex;
         vertex = CALL(host, GraphicVertexNext)(graphic, &cookie, 0, 0xFFFF))
        vertices.push_back(vertex);
    return vertices;
}

const std::vector<Promise>& AllPromises() {
    static const std::vector<Promise> all = [] {
        std::vector<Promise> promises;
        for (const char* function : kFunctions) // a check of null: being there is all
            promises.push_back({function, kIsExported, nullptr});
        for (const Topic& topic :
             {kApplicationPromises, kTablePromises, kUnitPromises, kGraphicPromises, kPropertyPromises,
              kVertexPromises, kMatrixPromises, kBlockPromises, kStylePromises, kViewPromises})
            promises.insert(promises.end(), topic.rows, topic.rows + topic.count);
        return promises;
    }();
    return all;
}
