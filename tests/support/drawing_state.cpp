// Records the contents of a drawing.

#include "support/drawing_state.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <tuple>
#include <utility>

#include "drawcore/drawing.h"
#include "drawcore/layer.h"
#include "drawcore/property_text.h"
#include "drawcore/units.h"
#include "drawcore/view.h"
#include "orlo/host/block.h"
#include "orlo/host/drawing.h"
#include "orlo/host/property.h"
#include "orlo/host/style.h"
#include "orlo/host/units.h"
#include "orlo/host/viewport.h"
#include "orlo/host/walk.h"

namespace {

using orlo::host::ReadProperty;

constexpr const char* kTables[] = {kTableLayers, kTableLineStyles, kTableBrushStyles, kTableColors, kTableBlocks};
constexpr uint16_t kUnitNames[] = {kUnitDrawing, kUnitMillimeter, kUnitTextSize, kUnitPenWidth, kUnitFontName};
constexpr uint16_t kUnitNumbers[] = {kUnitLinearSystem, kUnitLinearDigits, kUnitAngularSystem, kUnitAngularDigits};

std::string Exact(double value) {
    char text[40];
    std::snprintf(text, sizeof text, "%.17g", value);
    return text;
}

// Returns nothing if the graphic has no such property.
std::optional<std::string> Read(GraphicStruct* graphic, const PropertyInfo& property) {
    char text[1024] = "";
    if (!::GraphicGetPropertyText(graphic, property.name, text, sizeof text)) return std::nullopt;
    const auto real = property.IsReal() ? ReadProperty<double>(graphic, property.name) : std::nullopt;
    return real ? text + (" (" + Exact(*real) + ")") : text;
}

std::string Vertices(GraphicStruct* graphic) {
    std::string text;
    for (const VertexStruct* v : orlo::host::Vertices(graphic)) {
        text += "(" + Exact(v->x) + " " + Exact(v->y) + " " + Exact(v->z) + " " + std::to_string(v->wFlags) + ")";
    }
    return text;
}

std::string Box(GraphicStruct* graphic) {
    double box[4] = {};
    if (!::ExtentsGetBox(::GraphicGetExtentsSel(graphic, 0), box)) return "empty";
    return Exact(box[0]) + " " + Exact(box[1]) + " " + Exact(box[2]) + " " + Exact(box[3]);
}

std::string LinePattern(TableStruct* table, uint16_t id) {
    double items[8] = {};
    std::string text;
    if (!::LineStyleGetPattern(table, id, items)) return text;
    for (int i = 0; i < ::LineStyleGetDLItems(table, id); ++i)
        text += Exact(items[i]) + " ";
    return text;
}

std::string BrushPattern(TableStruct* table, uint16_t id) {
    std::string text = std::to_string(::BrushStyleGetFlags(table, id)) + ":";
    int cookie = 0;
    for (const BrushPatternStruct* line = ::BrushStyleGetFirstPattern(table, id, &cookie); line;
         line = ::BrushStyleGetNextPattern(table, id, &cookie)) {
        double angle = 0, x = 0, y = 0, along = 0, spacing = 0, dashes[8] = {};
        int count = 0;
        ::BrushPatternGetData(line, &angle, &x, &y, &along, &spacing, &count, dashes);
        for (const double value : {angle, x, y, along, spacing})
            text += Exact(value) + " ";
        for (int i = 0; i < count; ++i)
            text += Exact(dashes[i]) + " ";
    }
    return text;
}

std::string LayerText(DrawingStruct* drawing, uint16_t id) {
    return std::to_string(::LayerGetColor(drawing, id)) + " " + std::to_string(::LayerGetFlags(drawing, id)) + " " +
           std::to_string(::LayerGetLineStyle(drawing, id));
}

} // namespace

DrawingState::DrawingState(DrawingStruct* drawing) {
    AddTables(drawing);
    AddGraphics("graphic", ::DrawingGetRoot(drawing));
}

DrawingState::DrawingState(const std::vector<GraphicStruct*>& graphics) {
    int index = 0;
    for (GraphicStruct* graphic : graphics)
        AddGraphic("graphic " + std::to_string(++index), graphic);
}

void DrawingState::AddTables(DrawingStruct* drawing) {
    RecordedObject units = {kTableUnits, {}};
    for (const uint16_t variable : kUnitNames) {
        char text[256] = "";
        ::TableGetStringVar(drawing->pUnits, variable, text, sizeof text);
        units.values.emplace_back(std::to_string(variable), text);
    }
    for (const uint16_t variable : kUnitNumbers) {
        long value = 0;
        ::TableGetIntVar(drawing->pUnits, variable, &value);
        units.values.emplace_back(std::to_string(variable), std::to_string(value));
    }
    m_things.push_back(std::move(units));
    for (const char* name : kTables) {
        TableStruct* table = ::DrawingGetTable(drawing, name);
        for (const uint16_t id : orlo::host::Entries(table))
            AddEntry(table, name, id);
    }
}

void DrawingState::AddEntry(TableStruct* table, const std::string& name, uint16_t id) {
    RecordedObject entry = {name + " " + std::to_string(id), {}};
    char text[256] = "";
    ::TableEntryGetName(table, id, text, sizeof text);
    entry.values.emplace_back("name", text);
    if (name == kTableLayers) entry.values.emplace_back("look", LayerText(::TableGetOwner(table), id));
    if (name == kTableLineStyles) entry.values.emplace_back("pattern", LinePattern(table, id));
    if (name == kTableBrushStyles) entry.values.emplace_back("pattern", BrushPattern(table, id));
    if (name == kTableColors) {
        const auto* color = static_cast<const COLORREF*>(::TableEntryGetData(table, id));
        entry.values.emplace_back("color", color ? std::to_string(*color) : "none");
    }
    const std::string place = entry.name;
    m_things.push_back(std::move(entry));
    if (name == kTableBlocks) AddGraphic(place, ::BlockGetGraphic(table, id));
}

void DrawingState::AddGraphics(const std::string& place, GraphicStruct* set) {
    int index = 0;
    for (GraphicStruct* g : orlo::host::Members(set))
        AddGraphic(place + " " + std::to_string(++index), g);
}

void DrawingState::AddGraphic(const std::string& place, GraphicStruct* graphic) {
    RecordedObject object = {place, {{"type", std::to_string(graphic->bType)}}};
    for (const PropertyInfo& property : kPropertyList)
        if (const auto value = Read(graphic, property)) object.values.emplace_back(property.name, *value);
    object.values.emplace_back("style tree", graphic->pszStyleName ? graphic->pszStyleName : "");
    object.values.emplace_back("outline", std::to_string(graphic->dwOneOutline));
    object.values.emplace_back("vertices", Vertices(graphic));
    object.values.emplace_back("box", Box(graphic));
    m_things.push_back(std::move(object));
    AddGraphics(place, graphic);
}

std::vector<std::string> DrawingState::DifferencesTo(const DrawingState& later, size_t most) const {
    std::vector<std::string> lines;
    if (m_things.size() != later.m_things.size()) {
        lines.push_back(std::to_string(m_things.size()) + " objects before, " + std::to_string(later.m_things.size()) +
                        " now");
    }
    const size_t common = std::min(m_things.size(), later.m_things.size());
    for (size_t i = 0; i < common && lines.size() < most; ++i) {
        const RecordedObject &a = m_things[i], &b = later.m_things[i];
        if (a.name != b.name || a.values.size() != b.values.size()) {
            lines.push_back(a.name + " is now " + b.name);
            continue;
        }
        for (size_t v = 0; v < a.values.size() && lines.size() < most; ++v) {
            if (a.values[v] == b.values[v]) continue;
            lines.push_back(a.name + ", " + a.values[v].first + ": " + a.values[v].second + " is now " +
                            b.values[v].second);
        }
    }
    return lines;
}

std::vector<std::string> DrawingState::Lines() const {
    std::vector<std::string> lines;
    for (const RecordedObject& object : m_things)
        for (const auto& [name, value] : object.values)
            lines.push_back(object.name + ", " + name + ": " + value);
    return lines;
}

bool DrawingState::Differs(const DrawingState& later, const std::string& name) const {
    for (size_t i = 0; i < std::min(m_things.size(), later.m_things.size()); ++i) {
        const auto &a = m_things[i].values, &b = later.m_things[i].values;
        for (size_t v = 0; v < std::min(a.size(), b.size()); ++v) {
            if (a[v].first == name && a[v] != b[v]) return true;
        }
    }
    return false;
}

std::vector<PropertyChange> DrawingState::ChangesTo(const DrawingState& later) const {
    std::map<std::tuple<std::string, std::string, std::string>, int> counts;
    for (size_t i = 0; i < std::min(m_things.size(), later.m_things.size()); ++i) {
        const auto &a = m_things[i].values, &b = later.m_things[i].values;
        for (size_t v = 0; v < std::min(a.size(), b.size()); ++v)
            if (FindPropertyInfo(a[v].first) && a[v] != b[v]) ++counts[{a[v].first, a[v].second, b[v].second}];
    }
    std::vector<PropertyChange> changes;
    for (const auto& [key, count] : counts)
        changes.push_back({std::get<0>(key), std::get<1>(key), std::get<2>(key), count});
    std::stable_sort(changes.begin(), changes.end(), [](const PropertyChange& a, const PropertyChange& b) {
        return a.property != b.property ? a.property < b.property : a.graphics > b.graphics;
    });
    return changes;
}

std::map<std::string, int> DrawingState::Values(const std::string& name) const {
    std::map<std::string, int> counts;
    for (const RecordedObject& object : m_things)
        for (const auto& value : object.values)
            if (value.first == name) ++counts[value.second];
    return counts;
}
