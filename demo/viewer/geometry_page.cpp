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

std::vector<VertexStruct*> CornersOf(GraphicStruct* graphic) {
    std::vector<VertexStruct*> corners;
    for (VertexStruct* vertex : orlo::host::Vertices(graphic))
        corners.push_back(vertex);
    return corners;
}

double LengthOf(const std::vector<VertexStruct*>& corners) {
    double length = 0.0;
    for (size_t i = 1; i < corners.size(); ++i)
        length += std::hypot(corners[i]->x - corners[i - 1]->x, corners[i]->y - corners[i - 1]->y);
    return length;
}

double AreaOf(const std::vector<VertexStruct*>& corners) {
    double twice = 0.0;
    for (size_t i = 0; i < corners.size(); ++i) {
        const VertexStruct& a = *corners[i];
        const VertexStruct& b = *corners[(i + 1) % corners.size()];
        twice += a.x * b.y - b.x * a.y;
    }
    return std::fabs(twice) / 2;
}

using Measure = double (*)(const std::vector<VertexStruct*>& corners);

FieldRow Row(FieldKind kind, const char* label, const char* group, Measure measure) {
    FieldRow row(kind, label, "", group);
    row.readOnly = true;
    row.get = [measure](GraphicStruct* graphic, FieldValue& value) {
        const std::vector<VertexStruct*> corners = CornersOf(graphic);
        if (!corners.empty()) value.number = measure(corners);
        return !corners.empty();
    };
    return row;
}

// A coordinate of the first corner, which moves with it.
FieldRow FirstPoint(const char* label, double VertexStruct::*coordinate) {
    FieldRow row(FieldKind::Length, label, "", "First point");
    row.help = "Moves the first corner; the others stay";
    row.get = [coordinate](GraphicStruct* graphic, FieldValue& value) {
        const std::vector<VertexStruct*> corners = CornersOf(graphic);
        if (!corners.empty()) value.number = corners[0]->*coordinate;
        return !corners.empty();
    };
    row.set = [coordinate](GraphicStruct* graphic, const FieldValue& value) {
        VertexStruct* first = CornersOf(graphic).at(0);
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
        return graphic->bType == kGraphicVertices && !CornersOf(graphic).empty();
    };
    const auto count = [](const std::vector<VertexStruct*>& corners) { return static_cast<double>(corners.size()); };
    table.rows = {Row(FieldKind::Length, "Length:", "Measures", LengthOf),
                  Row(FieldKind::Number, "Area:", "Measures", AreaOf),
                  Row(FieldKind::Integer, "Corners:", "Measures", count), FirstPoint("&X:", &VertexStruct::x),
                  FirstPoint("&Y:", &VertexStruct::y)};
    AddFieldPage(sheet, kGeometryPage, std::move(table));
}
