// Support for the checks: creates objects of the database, reports violations and stubs.

#include "requirement.h"

#include <cstdarg>
#include <cstdio>

namespace {

const Host* disposing; // the only database of this process; deleters of smart pointers cannot have state

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

} // namespace

void Require(bool condition, const char* format, ...) {
    if (condition) return;
    char text[256];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    throw Violation{text};
}

void RequireNoStub(bool condition, const char* function) {
    if (condition) return;
    if (LostByStub(function)) throw StubFound{function};
    throw Violation{std::string(function) + " returned 0"};
}

Subject::Subject(const Host& of, DrawingStruct* current) : host(of), drawing_(current) {
    disposing = &of;
}

DrawingStruct* Subject::Drawing() const {
    Require(drawing_, "there is no current drawing");
    return drawing_;
}

TableStruct* Subject::Table(const char* name) const {
    TableStruct* table = CALL(host, DrawingGetTable)(Drawing(), name);
    Require(table, "the drawing has no table %s", name);
    return table;
}

Owned<GraphicStruct> Subject::NewGraphic(int type) const {
    Owned<GraphicStruct> graphic(CALL(host, GraphicNewEx)(type, 0, 1), DisposeGraphic);
    RequireNoStub(graphic != nullptr, "GraphicNewEx");
    return graphic;
}

Owned<VertexStruct> Subject::NewVertex(double x, double y, double z) const {
    Owned<VertexStruct> vertex(CALL(host, VertexNewEx)(x, y, z), DisposeVertex);
    Require(vertex != nullptr, "VertexNewEx returned null");
    return vertex;
}

Owned<GraphicStruct> Subject::NewRectangle(double width, double height) const {
    Owned<GraphicStruct> rectangle = NewGraphic(kGraphicVertices);
    const double corners[][2] = {{0, 0}, {width, 0}, {width, height}, {0, height}, {0, 0}};
    for (const auto& [x, y] : corners)
        Require(CALL(host, GraphicVertexAdd)(rectangle.get(), NewVertex(x, y, 0).get()), "GraphicVertexAdd returned 0");
    CALL(host, GraphicAttach)(rectangle.get(), Drawing());
    return rectangle;
}

Owned<ViewportStruct> Subject::NewViewport() const {
    Owned<ViewportStruct> viewport(CALL(host, ViewportNewEx)(), DisposeViewport);
    RequireNoStub(viewport != nullptr, "ViewportNewEx");
    return viewport;
}

Owned<MatrixStruct> Subject::Own(MatrixStruct* matrix, const char* function) const {
    RequireNoStub(matrix, function);
    return {matrix, DisposeMatrix};
}

std::vector<uint16_t> Subject::Entries(TableStruct* table) const {
    std::vector<uint16_t> entries;
    int cookie;
    for (uint16_t id = CALL(host, TableEntryFirst)(table, &cookie); id != 0;
         id = CALL(host, TableEntryNext)(table, &cookie)) {
        entries.push_back(id);
        Require(entries.size() <= UINT16_MAX, "the iteration does not end");
    }
    return entries;
}

std::vector<GraphicStruct*> Subject::Members(GraphicStruct* set, uint32_t filter) const {
    std::vector<GraphicStruct*> members;
    uint32_t place[2] = {0, 0xABABABAB};
    for (GraphicStruct* member = CALL(host, GraphicFirst)(set, place, 1, filter); member;
         member = CALL(host, GraphicNext)(set, place, 1, filter))
        members.push_back(member);
    Require(place[1] == 0xABABABAB, "wrote more than 32 bits to the position");
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

const std::vector<Requirement>& AllRequirements() {
    static const std::vector<Requirement> all = [] {
        std::vector<Requirement> requirements;
        for (const Topic& topic :
             {kApplicationRequirements, kTableRequirements, kUnitRequirements, kGraphicRequirements,
              kPropertyRequirements, kVertexRequirements, kMatrixRequirements, kBlockRequirements, kStyleRequirements,
              kViewRequirements, kLeakRequirements})
            requirements.insert(requirements.end(), topic.rows, topic.rows + topic.count);
        return requirements;
    }();
    return all;
}

const std::vector<ContractFunction>& AllFunctions() {
    static const std::vector<ContractFunction> all = {
#include "functions.inc"
    };
    return all;
}

const char* LostByStub(const std::string& function) {
    for (const ContractFunction& row : AllFunctions())
        if (function == row.name) return row.lost;
    return nullptr;
}
