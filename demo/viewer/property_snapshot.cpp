// Reads the properties of graphics as text in the host's format.

#include "demo/viewer/property_snapshot.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <tuple>
#include <variant>

#include "orlo/host/drawing.h"
#include "orlo/host/layer.h"
#include "orlo/host/property.h"
#include "orlo/host/strings.h"
#include "orlo/host/units.h"
#include "orlo/host/walk.h"

namespace {

using orlo::host::ReadProperty;

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

} // namespace

std::string ColorText(DrawingStruct* drawing, uint32_t color) {
    switch (color) {
    case kColorByLayer:
        return HostText(kStringByLayer);
    case kColorByBlock:
        return HostText(kStringByBlock);
    case kColorOfPen:
        return HostText(kStringLastColor);
    }
    TableStruct* colors = ::DrawingGetTable(drawing, kTableColors);
    for (const uint16_t id : orlo::host::Entries(colors)) {
        const auto* value = static_cast<const COLORREF*>(::TableEntryGetData(colors, id));
        if (value && *value == color) return EntryName(drawing, kTableColors, id);
    }
    return std::to_string(GetRValue(color)) + "," + std::to_string(GetGValue(color)) + "," +
           std::to_string(GetBValue(color));
}

namespace {

std::string LineStyleText(DrawingStruct* drawing, uint16_t style) {
    switch (style) {
    case kLineStyleNone:
        return "none";
    case kLineStyleByLayer:
        return HostText(kStringByLayer);
    case kLineStyleByBlock:
        return HostText(kStringByBlock);
    default:
        return EntryName(drawing, kTableLineStyles, style);
    }
}

bool IsWorldScaled(GraphicStruct* graphic) {
    return ReadProperty<uint8_t>(graphic, kPropScaleSystem) == uint8_t{kScaleWorld};
}

std::string WidthText(DrawingStruct* drawing, GraphicStruct* graphic, double width) {
    char text[64] = "";
    if (IsWorldScaled(graphic))
        ::DrawingStdNumericToText(drawing, width, text, sizeof text, 0);
    else
        ::UnitsNumericToTextEx(drawing->pUnits, 0, kUnitPenWidth, width * kMillimetersPerInch, text, sizeof text, 0, 1);
    return text[0] ? text : Number(width);
}

std::string WholeText(DrawingStruct* drawing, PropertyMeaning meaning, uint32_t value) {
    const auto id = static_cast<uint16_t>(value);
    switch (meaning) {
    case PropertyMeaning::Switch:
        return value ? "yes" : "no";
    case PropertyMeaning::Color:
        return ColorText(drawing, value);
    case PropertyMeaning::LineStyle:
        return LineStyleText(drawing, id);
    case PropertyMeaning::BrushStyle:
        return id == kBrushStyleNone ? HostText(kStringNoBrush) : EntryName(drawing, kTableBrushStyles, id);
    case PropertyMeaning::Layer:
        return EntryName(drawing, kTableLayers, id);
    case PropertyMeaning::Block:
        return id ? EntryName(drawing, kTableBlocks, id) : "none";
    case PropertyMeaning::ScaleSystem:
        return HostText(id == kScaleWorld ? kStringWorldScale : kStringPaperScale);
    default:
        return std::to_string(value);
    }
}

// A value as it is compared: pen widths with their scale system, colors by layer with the layer's color.
using Value = std::tuple<std::variant<uint32_t, double, std::string>, uint32_t>;

struct Holders {
    GraphicStruct* example;
    int count;
};

std::optional<Value> ValueOf(DrawingStruct* drawing, GraphicStruct* graphic, const PropertyInfo& property,
                             uint32_t mask) {
    if (property.IsText()) {
        if (const auto text = ReadProperty<std::string>(graphic, property.name)) return Value{*text, 0};
    } else if (property.IsReal()) {
        if (const auto real = ReadProperty<double>(graphic, property.name))
            return Value{*real, property.meaning == PropertyMeaning::Width && IsWorldScaled(graphic)};
    } else if (const auto whole = ReadProperty<uint32_t>(graphic, property.name)) {
        const bool byLayer = property.meaning == PropertyMeaning::Color && *whole == kColorByLayer;
        const auto layer = ReadProperty<uint16_t>(graphic, kPropLayer).value_or(0);
        return Value{*whole & mask, byLayer ? ::LayerGetColor(drawing, layer) : 0};
    }
    return std::nullopt;
}

// Returns an empty string if the graphic has no such property.
std::string ValueText(DrawingStruct* drawing, GraphicStruct* graphic, const PropertyInfo& property) {
    if (property.IsText()) {
        if (const auto value = ReadProperty<std::string>(graphic, property.name)) return '"' + *value + '"';
    } else if (property.IsReal()) {
        if (const auto value = ReadProperty<double>(graphic, property.name))
            return property.meaning == PropertyMeaning::Width ? WidthText(drawing, graphic, *value) : Number(*value);
    } else if (const auto value = ReadProperty<uint32_t>(graphic, property.name)) {
        return WholeText(drawing, property.meaning, *value);
    }
    return "";
}

std::string ShownText(DrawingStruct* drawing, GraphicStruct* example, const PropertyInfo& property, const Value& value,
                      uint32_t mask) {
    if (property.meaning == PropertyMeaning::TextStyle) {
        const uint32_t bits = std::get<uint32_t>(std::get<0>(value));
        const bool isOne = (mask & (mask - 1)) == 0;
        return isOne ? (bits ? "yes" : "no") : std::to_string(bits);
    }
    char buffer[64] = "";
    const double* real = std::get_if<double>(&std::get<0>(value));
    if (real && property.meaning == PropertyMeaning::Length &&
        ::DrawingStdNumericToText(drawing, *real, buffer, sizeof buffer, 0))
        return buffer;
    if (real && property.meaning == PropertyMeaning::Angle &&
        ::DrawingStdAngleToText(drawing, *real, buffer, sizeof buffer, 0))
        return buffer;
    const std::string text = ValueText(drawing, example, property);
    const uint32_t layerColor = std::get<1>(value);
    if (property.meaning != PropertyMeaning::Color || std::get<0>(value) != decltype(std::get<0>(value))(kColorByLayer))
        return text;
    return text + " (" + ColorText(drawing, layerColor) + ")";
}

} // namespace

std::string EntryName(DrawingStruct* drawing, const char* table, uint16_t id) {
    char name[128] = "";
    ::TableEntryGetName(::DrawingGetTable(drawing, table), id, name, sizeof name);
    return name[0] ? name : "#" + std::to_string(id);
}

std::vector<ValueCount> CountValues(DrawingStruct* drawing, const std::vector<GraphicStruct*>& graphics,
                                    const char* name, uint32_t mask) {
    const PropertyInfo* property = FindPropertyInfo(name);
    std::map<Value, Holders> values; // formatted only for the few different values
    for (GraphicStruct* graphic : graphics) {
        const std::optional<Value> value = ValueOf(drawing, graphic, *property, mask);
        if (value) ++values.insert({*value, {graphic, 0}}).first->second.count;
    }
    std::vector<ValueCount> counts;
    for (const auto& [value, holders] : values)
        counts.push_back({ShownText(drawing, holders.example, *property, value, mask), holders.count});
    std::stable_sort(counts.begin(), counts.end(),
                     [](const ValueCount& a, const ValueCount& b) { return a.count > b.count; });
    return counts;
}

PropertySnapshot::PropertySnapshot(DrawingStruct* drawing, const std::vector<GraphicStruct*>& graphics) {
    m_values.reserve(graphics.size());
    for (GraphicStruct* graphic : graphics) {
        Values_& values = m_values.emplace_back();
        for (const PropertyInfo& property : kPropertyList) {
            std::string text = ValueText(drawing, graphic, property);
            if (!text.empty()) values.emplace(property.name, std::move(text));
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
