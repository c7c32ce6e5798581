// What graphics have as their properties, as texts in the host's own reading.

#include "demo/property_snapshot.h"

#include <algorithm>
#include <cstdio>
#include <tuple>

#include <oleauto.h>

#include "orlo/host/drawing.h"
#include "orlo/host/graphic.h"
#include "orlo/host/memory.h"
#include "orlo/host/strings.h"
#include "orlo/host/table.h"
#include "orlo/host/units.h"

namespace {

constexpr double kMillimetresPerInch = 25.4;

// Reads the properties of one graphic.
class PropertyReader {
public:
    PropertyReader(DrawingStruct* drawing, GraphicStruct* graphic)
        : m_drawing(drawing), m_graphic(graphic), m_table(::GraphicGetVtbl(graphic)) {}

    // False: the graphic has no such property.
    template <class Value>
    bool Read(const char* name, int type, Value& value) const {
        int32_t number = 0;
        return m_table && m_table->PropLookup(m_graphic, &name, 1, 0, &number) &&
               m_table->PropGet(m_graphic, number, type, &value);
    }

    DrawingStruct* Drawing() const { return m_drawing; }

private:
    DrawingStruct* m_drawing;
    GraphicStruct* m_graphic;
    const PropertyTable* m_table;
};

std::string HostText(unsigned int id) {
    char text[128] = "";
    ::DrawCoreLoadString(id, text, sizeof text);
    return text;
}

std::string Number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

std::string EntryName(const PropertyReader& reader, const char* table, uint16_t id) {
    char name[128] = "";
    ::TableEntryGetName(::DrawingGetTable(reader.Drawing(), table), id, name, sizeof name);
    return name[0] ? name : "#" + std::to_string(id);
}

std::string ColorText(const PropertyReader& reader, uint32_t color) {
    switch (color) {
    case 0xFFFFFFFD:
        return HostText(kStringByLayer);
    case 0xFFFFFFFC:
        return HostText(kStringByBlock);
    case 0xFFFFFFFB:
        return HostText(kStringLastColor);
    }
    TableStruct* colors = ::DrawingGetTable(reader.Drawing(), "_Colors_");
    int cookie = 0;
    for (uint16_t id = ::TableEntryFirst(colors, &cookie); id; id = ::TableEntryNext(colors, &cookie)) {
        const auto* value = static_cast<const COLORREF*>(::TableEntryGetData(colors, id));
        if (value && *value == color) return EntryName(reader, "_Colors_", id);
    }
    return std::to_string(GetRValue(color)) + "," + std::to_string(GetGValue(color)) + "," +
           std::to_string(GetBValue(color));
}

std::string StyleText(const PropertyReader& reader, uint16_t style) {
    switch (style) {
    case 0:
        return "none";
    case 65534:
        return HostText(kStringByLayer);
    case 65533:
        return HostText(kStringByBlock);
    default:
        return EntryName(reader, "_LineStyles_", style);
    }
}

std::string WidthText(const PropertyReader& reader, double width) {
    uint8_t system = 2;
    reader.Read("ScaleSystem", VT_UI1, system);
    char text[64] = "";
    DrawingStruct* drawing = reader.Drawing();
    if (system == 0)
        ::DrawingStdNumericToText(drawing, width, text, sizeof text, 0);
    else
        ::UnitsNumericToTextEx(drawing->pUnits, 0, kUnitPenWidth, width * kMillimetresPerInch, text,
                               sizeof text, 0, 1);
    return text[0] ? text : Number(width);
}

// One row per property: reads it as a text, empty if the graphic has none.
struct PropertyRow {
    const char* name;
    std::string (*read)(const PropertyReader& reader, const char* name);
};

std::string ReadColor(const PropertyReader& reader, const char* name) {
    uint32_t color;
    return reader.Read(name, VT_UI4, color) ? ColorText(reader, color) : "";
}

std::string ReadStyle(const PropertyReader& reader, const char* name) {
    uint16_t style;
    return reader.Read(name, VT_UI2, style) ? StyleText(reader, style) : "";
}

std::string ReadWidth(const PropertyReader& reader, const char* name) {
    double width;
    return reader.Read(name, VT_R8, width) ? WidthText(reader, width) : "";
}

std::string ReadDouble(const PropertyReader& reader, const char* name) {
    double value;
    return reader.Read(name, VT_R8, value) ? Number(value) : "";
}

std::string ReadSwitch(const PropertyReader& reader, const char* name) {
    uint16_t value;
    return !reader.Read(name, VT_BOOL, value) ? "" : value ? "yes" : "no";
}

std::string ReadScaleSystem(const PropertyReader& reader, const char* name) {
    uint8_t system;
    if (!reader.Read(name, VT_UI1, system)) return "";
    return HostText(system == 0 ? kStringWorldScale : kStringPaperScale);
}

std::string ReadWhole(const PropertyReader& reader, const char* name) {
    uint16_t value;
    return reader.Read(name, VT_UI2, value) ? std::to_string(value) : "";
}

std::string ReadBrush(const PropertyReader& reader, const char* name) {
    uint16_t style;
    if (!reader.Read(name, VT_UI2, style)) return "";
    return style ? EntryName(reader, "_BrushStyles_", style) : HostText(kStringNoBrush);
}

std::string ReadStyleTree(const PropertyReader& reader, const char* name) {
    uint16_t style;
    if (!reader.Read(name, VT_UI2, style)) return "";
    return style ? EntryName(reader, "_Blocks_", style) : "none";
}

std::string ReadLayer(const PropertyReader& reader, const char* name) {
    uint16_t layer;
    return reader.Read(name, VT_UI2, layer) ? EntryName(reader, "_Layers_", layer) : "";
}

std::string ReadText(const PropertyReader& reader, const char* name) {
    char* text = nullptr;
    std::string result;
    if (reader.Read(name, VT_BSTR, text) && text) result = "\"" + std::string(text) + "\"";
    ::BStringNULL(&text);
    return result;
}

constexpr PropertyRow kProperties[] = {
    {"BrushAngle", ReadDouble},   {"BrushColor", ReadColor},
    {"BrushDrawMode", ReadWhole}, {"BrushScale", ReadDouble},
    {"BrushStyle", ReadBrush},    {"HatchCross", ReadSwitch},
    {"Info", ReadText},           {"Layer", ReadLayer},
    {"PenAlignment", ReadSwitch}, {"PenColor", ReadColor},
    {"PenScale", ReadDouble},     {"PenStyle", ReadStyle},
    {"PenWidth", ReadWidth},      {"ScaleSystem", ReadScaleSystem},
    {"StyleTree", ReadStyleTree}, {"TextFont", ReadText},
    {"TextFormat", ReadWhole},    {"TextSize", ReadDouble},
    {"TextStyle", ReadWhole},
};

} // namespace

PropertySnapshot::PropertySnapshot(DrawingStruct* drawing, const std::vector<GraphicStruct*>& graphics) {
    m_values.reserve(graphics.size());
    for (GraphicStruct* graphic : graphics) {
        const PropertyReader reader(drawing, graphic);
        Values_& values = m_values.emplace_back();
        for (const PropertyRow& row : kProperties) {
            std::string text = row.read(reader, row.name);
            if (!text.empty()) values.emplace(row.name, std::move(text));
        }
    }
}

std::vector<PropertyChange> PropertySnapshot::ChangesTo(const PropertySnapshot& later) const {
    std::map<std::tuple<std::string, std::string, std::string>, int> counts;
    for (size_t i = 0; i < m_values.size(); ++i) {
        for (const auto& [property, value] : m_values[i]) {
            const auto after = later.m_values[i].find(property);
            const std::string& now = after == later.m_values[i].end() ? "" : after->second;
            if (now != value) ++counts[{property, value, now}];
        }
    }
    std::vector<PropertyChange> changes;
    for (const auto& [key, count] : counts)
        changes.push_back({std::get<0>(key), std::get<1>(key), std::get<2>(key), count});
    std::stable_sort(changes.begin(), changes.end(), [](const PropertyChange& a, const PropertyChange& b) {
        return a.property != b.property ? a.property < b.property : a.graphics > b.graphics;
    });
    return changes;
}

std::map<std::string, int> PropertySnapshot::Values(const std::string& property) const {
    std::map<std::string, int> counts;
    for (const Values_& values : m_values) {
        const auto found = values.find(property);
        if (found != values.end()) ++counts[found->second];
    }
    return counts;
}
