// Values of properties, counted.

#include "demo/viewer/value_counts.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>
#include <variant>

#include "drawcore/property_text.h"
#include "orlo/host/layer.h"
#include "orlo/host/property.h"

namespace {

using orlo::host::ReadProperty;

// A value that several graphics can share: a pen width with its scale system, a color by layer with the layer's color.
using Value = std::pair<std::variant<uint32_t, double, std::string>, uint32_t>;

struct Holders {
    GraphicStruct* example;
    int count;
};

std::optional<Value> ValueOf(DrawingStruct* drawing, GraphicStruct* graphic, const PropertyInfo& property,
                             uint32_t mask) {
    if (property.IsText()) {
        if (const auto text = ReadProperty<std::string>(graphic, property.name)) return Value{*text, 0};
    } else if (property.IsReal()) {
        const auto system = ReadProperty<uint8_t>(graphic, kPropScaleSystem).value_or(0);
        if (const auto real = ReadProperty<double>(graphic, property.name))
            return Value{*real, property.meaning == PropertyMeaning::Width ? system : 0};
    } else if (const auto whole = ReadProperty<uint32_t>(graphic, property.name)) {
        const bool byLayer = property.meaning == PropertyMeaning::Color && *whole == kColorByLayer;
        return Value{*whole & mask, byLayer ? ::LayerGetColor(drawing, LayerOf(graphic)) : 0};
    }
    return std::nullopt;
}

std::string ShownText(DrawingStruct* drawing, GraphicStruct* example, const PropertyInfo& property, const Value& value,
                      uint32_t mask) {
    if (property.IsText()) return '"' + std::get<std::string>(value.first) + '"';
    const uint32_t* whole = std::get_if<uint32_t>(&value.first);
    if (property.meaning == PropertyMeaning::TextStyle) {
        const bool isOne = (mask & (mask - 1)) == 0;
        return isOne ? ValueText(drawing, kPropHatchCross, *whole != 0) : ValueText(drawing, property.name, *whole);
    }
    const std::string text = PropertyText(example, property.name);
    const bool byLayer = property.meaning == PropertyMeaning::Color && *whole == kColorByLayer;
    return byLayer ? text + " (" + ValueText(drawing, property.name, value.second) + ")" : text;
}

} // namespace

std::string PropertyText(GraphicStruct* graphic, const char* property) {
    char text[256] = "";
    return ::GraphicGetPropertyText(graphic, property, text, sizeof text) ? text : "-";
}

std::string ValueText(DrawingStruct* drawing, const char* property, uint32_t value) {
    char text[256] = "";
    ::PropertyGetValueText(drawing, property, value, text, sizeof text);
    return text;
}

uint16_t LayerOf(GraphicStruct* graphic) {
    return ReadProperty<uint16_t>(graphic, kPropLayer).value_or(0);
}

std::vector<ValueCount> CountValues(DrawingStruct* drawing, const std::vector<GraphicStruct*>& graphics,
                                    const char* name, uint32_t mask) {
    const PropertyInfo& property = *FindPropertyInfo(name);
    std::map<Value, Holders> values; // only the few distinct values are formatted
    for (GraphicStruct* graphic : graphics) {
        const std::optional<Value> value = ValueOf(drawing, graphic, property, mask);
        if (value) ++values.insert({*value, {graphic, 0}}).first->second.count;
    }
    std::vector<ValueCount> counts;
    for (const auto& [value, holders] : values)
        counts.push_back({ShownText(drawing, holders.example, property, value, mask), holders.count});
    std::stable_sort(counts.begin(), counts.end(),
                     [](const ValueCount& a, const ValueCount& b) { return a.count > b.count; });
    return counts;
}
