// Functions of drawcore/include for property values as text.

#include "drawcore/include/drawcore/property_text.h"
#include "drawcore/src/database/drawing.h"
#include "drawcore/src/units/number_text.h"
#include "drawcore/src/units/property_words.h"
#include "orlo/host/drawing.h"
#include "orlo/host/property.h"
#include "orlo/host/units.h"

using namespace drawcore;
using orlo::host::ReadProperty;

namespace {

const char* TableOf(PropertyMeaning meaning) {
    switch (meaning) {
    case PropertyMeaning::LineStyle:
        return kTableLineStyles;
    case PropertyMeaning::BrushStyle:
        return kTableBrushStyles;
    case PropertyMeaning::Layer:
        return kTableLayers;
    case PropertyMeaning::Block:
        return kTableBlocks;
    default:
        return nullptr;
    }
}

std::string ValueText(const Drawing* drawing, const PropertyInfo& info, uint32_t value) {
    const char* name = TableOf(info.meaning);
    if (!name || WordOf(info.meaning, value)) return IntegerText(info, value);
    if (info.meaning == PropertyMeaning::Block && value == kNoId) return "";
    const Table* table = drawing ? drawing->FindTable(name) : nullptr;
    const TableEntry* entry = table ? table->At(static_cast<Id>(value)) : nullptr;
    return entry ? entry->name : "#" + std::to_string(value);
}

// Formats a plain number if there is no drawing or its units are invalid.
std::string RealText(DrawingStruct* drawing, GraphicStruct* graphic, const PropertyInfo& info, double value) {
    const bool isOnPaper = info.meaning == PropertyMeaning::Width &&
                           ReadProperty<uint8_t>(graphic, kPropScaleSystem) == uint8_t{kScalePaper};
    char text[64] = "";
    if (info.meaning == PropertyMeaning::Angle)
        DrawingStdAngleToText(drawing, value, text, sizeof text, 0);
    else if (isOnPaper && drawing)
        UnitsNumericToTextEx(drawing->pUnits, 0, kUnitPenWidth, value * kMillimetersPerInch, text, sizeof text, 0, 1);
    else if (info.meaning == PropertyMeaning::Width || info.meaning == PropertyMeaning::Length)
        DrawingStdNumericToText(drawing, value, text, sizeof text, 0);
    constexpr int kDigits = 6;
    return text[0] ? text : DecimalText(value, kDigits);
}

// Returns an empty string if the graphic has no such property.
std::string TextOf(GraphicStruct* graphic, const PropertyInfo& info) {
    DrawingStruct* drawing = GraphicGetDrawing(graphic);
    if (info.IsText()) return ReadProperty<std::string>(graphic, info.name).value_or("");
    if (info.IsReal()) {
        const auto value = ReadProperty<double>(graphic, info.name);
        return value ? RealText(drawing, graphic, info, *value) : "";
    }
    const auto value = ReadProperty<uint32_t>(graphic, info.name);
    return value ? ValueText(Drawing::Find(drawing), info, *value) : "";
}

} // namespace

int GraphicGetPropertyText(GraphicStruct* graphic, const char* property, char* buffer, int size) {
    CopyText("", buffer, size);
    const PropertyInfo* info = property ? FindPropertyInfo(property) : nullptr;
    if (!graphic || !info || !orlo::host::FindProperty(graphic, property)) return 0;
    CopyText(TextOf(graphic, *info), buffer, size);
    return 1;
}

int PropertyGetValueText(DrawingStruct* drawing, const char* property, uint32_t value, char* buffer, int size) {
    CopyText("", buffer, size);
    const PropertyInfo* info = property ? FindPropertyInfo(property) : nullptr;
    if (!info || info->IsText() || info->IsReal()) return 0;
    CopyText(ValueText(Drawing::Find(drawing), *info, value), buffer, size);
    return 1;
}
