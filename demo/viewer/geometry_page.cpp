// The page with the geometry of the selected graphics.

#include "demo/viewer/geometry_page.h"

#include <cmath>
#include <utility>
#include <vector>

#include "orlo/host/vertex.h"
#include "orlo/host/walk.h"
#include "orlo/pages/field_page.h"

namespace {

constexpr unsigned kGeometryPage = 200;

std::vector<VertexStruct*> VerticesOf(GraphicStruct* graphic) {
    std::vector<VertexStruct*> vertices;
    for (VertexStruct* vertex : orlo::host::Vertices(graphic))
        vertices.push_back(vertex);
    return vertices;
}

double LengthOf(const std::vector<VertexStruct*>& vertices) {
    double length = 0.0;
    for (size_t i = 1; i < vertices.size(); ++i)
        length += std::hypot(vertices[i]->x - vertices[i - 1]->x, vertices[i]->y - vertices[i - 1]->y);
    return length;
}

double AreaOf(const std::vector<VertexStruct*>& vertices) {
    double twice = 0.0;
    for (size_t i = 0; i < vertices.size(); ++i) {
        const VertexStruct& a = *vertices[i];
        const VertexStruct& b = *vertices[(i + 1) % vertices.size()];
        twice += a.x * b.y - b.x * a.y;
    }
    return std::fabs(twice) / 2;
}

using Measure = double (*)(const std::vector<VertexStruct*>& vertices);

FieldRow Row(FieldKind kind, const char* label, const char* group, Measure measure) {
    FieldRow row(kind, label, "", group);
    row.readOnly = true;
    row.get = [measure](GraphicStruct* graphic, FieldValue& value) {
        const std::vector<VertexStruct*> vertices = VerticesOf(graphic);
        if (!vertices.empty()) value.number = measure(vertices);
        return !vertices.empty();
    };
    return row;
}

// A coordinate of the first vertex. Editing it moves only this vertex.
FieldRow FirstPoint(const char* label, double VertexStruct::*coordinate) {
    FieldRow row(FieldKind::Length, label, "", "First point");
    row.help = "Moves only the first vertex";
    row.get = [coordinate](GraphicStruct* graphic, FieldValue& value) {
        const std::vector<VertexStruct*> vertices = VerticesOf(graphic);
        if (!vertices.empty()) value.number = vertices[0]->*coordinate;
        return !vertices.empty();
    };
    row.set = [coordinate](GraphicStruct* graphic, const FieldValue& value) {
        VertexStruct* first = VerticesOf(graphic).at(0);
        VertexStruct moved = *first;
        moved.*coordinate = value.number;
        ::VertexSet(first, moved.x, moved.y, moved.z);
        return true;
    };
    return row;
}

} // namespace

void AddGeometryPage(CGraphicPropertySheet* sheet) {
    FieldTable table;
    table.caption = "Geometry";
    table.accepts = [](GraphicStruct* graphic) {
        return graphic->bType == kGraphicVertices && !VerticesOf(graphic).empty();
    };
    const auto count = [](const std::vector<VertexStruct*>& vertices) { return static_cast<double>(vertices.size()); };
    table.rows = {Row(FieldKind::Length, "Length:", "Measures", LengthOf),
                  Row(FieldKind::Number, "Area:", "Measures", AreaOf),
                  Row(FieldKind::Integer, "Vertices:", "Measures", count), FirstPoint("&X:", &VertexStruct::x),
                  FirstPoint("&Y:", &VertexStruct::y)};
    AddFieldPage(sheet, kGeometryPage, std::move(table));
}
