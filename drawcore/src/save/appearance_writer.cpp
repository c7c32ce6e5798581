// Writes layer, color, line and the extended data of an entity.
#include "drawcore/src/save/appearance_writer.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "drawcore/include/drawcore/dxf_document.h"
#include "drawcore/src/dxf/color_numbers.h"

namespace dxf {

namespace {

// The line weights defined by the file format, in hundredths of a millimeter.
constexpr int kWeights[] = {0,  5,  9,  13, 15, 18,  20,  25,  30,  35,  40,  50,
                            53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};

constexpr int kThrough = 128; // flag of a polyline: dashes continue around corners

} // namespace

int NearestWeight(double inches) {
    const double weight = inches * kWeightsPerInch;
    return *std::min_element(std::begin(kWeights), std::end(kWeights),
                             [&](int a, int b) { return std::fabs(a - weight) < std::fabs(b - weight); });
}

AppearanceWriter::AppearanceWriter(DrawingPatch& drawing, size_t offset)
    : drawing_(drawing), offset_(offset), stored_(drawing.EntityAt(offset)), entity_(drawing.EntityAt(offset)),
      record_(drawing.patch_, drawing.in_.tags, offset) {
    if (!entity_.extended) entity_.extended = std::make_unique<ExtendedData>();
}

void AppearanceWriter::Write(const Appearance& wanted) {
    if (!(Now() == wanted)) {
        WriteLayer(wanted);
        WriteText(wanted); // before the color, which may be set within the text
        WriteColor(wanted);
        WriteBrush(wanted);
        WriteLineType(wanted);
        WriteLineScale(wanted);
        WriteWidth(wanted);
        WriteDashes(wanted);
        WriteExtended(wanted);
    }
    if (const auto* text = As<Text>(entity_)) PutText(*text);
    if (const auto* text = As<MText>(entity_)) PutText(*text);
    WriteExtendedValue();
}

void AppearanceWriter::WriteExtended(const Appearance& wanted) {
    for (const PropertyInfo& property : kPropertyList) {
        const ExtendedValue* value = FindExtended(wanted.extended, property.name);
        if (value) ExtendedText(property.name, value->text, value->numbers);
        if (!value && !property.hasDxfGroup) RemoveExtended(property.name);
    }
}

void AppearanceWriter::ExtendedText(const char* name, std::string text, std::vector<double> numbers) {
    for (ExtendedValue& value : *entity_.extended)
        if (value.name == name) {
            value.text = std::move(text);
            value.numbers = std::move(numbers);
            return;
        }
    entity_.extended->push_back({name, std::move(text), std::move(numbers)});
}

void AppearanceWriter::RemoveExtended(std::string_view name) {
    const auto isNamed = [&](const ExtendedValue& extended) { return extended.name == name; };
    entity_.extended->erase(std::remove_if(entity_.extended->begin(), entity_.extended->end(), isNamed),
                            entity_.extended->end());
}

void AppearanceWriter::WriteExtendedValue() {
    if (*entity_.extended == (stored_.extended ? *stored_.extended : ExtendedData())) return;
    for (const ExtendedValue& value : *entity_.extended) {
        const ExtendedValue* was = FindExtended(stored_, value.name);
        const bool isNew = !was || !(*was == value);
        if (isNew && exact_.count(value.name) == 0) ++drawing_.onlyExtended_[value.name];
    }
    const std::vector<RecordPatch::Value> values = ExtendedValues(*entity_.extended, drawing_.in_.decoder);
    constexpr size_t kMax = 16383; // maximum number of bytes of extended data per entity
    size_t size = 0;
    for (const RecordPatch::Value& value : values)
        size += value.code == kExtendedReal ? sizeof(double) : value.text.size() + 1;
    if (size > kMax) throw SaveError("an attribute text is longer than the file format allows");
    if (!values.empty()) drawing_.tables_.AddApplication(kApplication);
    record_.SetExtended(kApplication, values);
}

void AppearanceWriter::WriteLayer(const Appearance& wanted) {
    if (wanted.layer == entity_.layer) return;
    drawing_.EnsureRecord(wanted.layer);
    record_.SetCommon(8, drawing_.in_.layers.Stored(drawing_.Known().At(wanted.layer)));
    entity_.layer = wanted.layer;
}

bool AppearanceWriter::CanStoreColor(uint32_t color) const {
    const bool plain = color >> 24 == 0;
    return !plain || ColorOfIndex(NearestIndex(color)) == color || IsNewer("AC1018") || record_.HasCommon(420);
}

void AppearanceWriter::PutColor(uint32_t color) {
    entity_.trueColor = -1;
    record_.RemoveCommon(430); // the name of the previous color
    if (color == kColorByLayer || color == kColorByBlock) {
        entity_.color = color == kColorByLayer ? kIndexByLayer : kIndexByBlock;
    } else {
        entity_.color = static_cast<int16_t>(NearestIndex(color));
        const bool exact = ColorOfIndex(entity_.color) == color;
        if (!exact && CanStoreColor(color)) entity_.trueColor = TrueColorOf(color);
    }
    if (entity_.color == kIndexByLayer)
        record_.RemoveCommon(62);
    else
        record_.SetCommon(62, std::to_string(entity_.color));
    if (entity_.trueColor >= 0)
        record_.SetCommon(420, std::to_string(entity_.trueColor));
    else
        record_.RemoveCommon(420);
}

void AppearanceWriter::WriteColor(const Appearance& wanted) {
    const Appearance now = Now();
    if (now.color == wanted.color && now.brush.color == wanted.brush.color) return;
    const bool isHatch = As<Hatch>(entity_) != nullptr;
    const uint32_t brush = wanted.brush.color;
    RemoveExtended(kPropPenColor);
    RemoveExtended(kPropBrushColor);
    // Other programs only see the brush of a hatch.
    if (isHatch && brush != kColorOfPen && CanStoreColor(brush)) {
        exact_.insert(kPropBrushColor);
        PutColor(brush);
        ExtendedNumbers(kPropBrushColor, {static_cast<double>(brush), static_cast<double>(wanted.color)});
        return;
    }
    if (AppearanceByGroups(drawing_.Known(), entity_).color != wanted.color) PutColor(wanted.color);
    if (!CanStoreColor(wanted.color))
        ExtendedNumbers(kPropPenColor, {static_cast<double>(wanted.color), static_cast<double>(entity_.color)});
    if (brush != kColorOfPen) ExtendedNumbers(kPropBrushColor, {static_cast<double>(brush)});
}

void AppearanceWriter::WriteLineType(const Appearance& wanted) {
    const LineTypeIndex type = wanted.lineType;
    if (Now().lineType == type) return;
    const bool named = type < LineTypeIndex::none;
    if (named) drawing_.EnsureRecord(type);
    const std::string name = type == LineTypeIndex::none      ? ""
                             : type == LineTypeIndex::byLayer ? kByLayerName
                             : type == LineTypeIndex::byBlock ? kByBlockName
                                                              : drawing_.Known().At(type).name;
    RemoveExtended(kPropPenStyle);
    const bool outlined = AppearanceByGroups(drawing_.Known(), entity_).lineType != LineTypeIndex::none;
    if (type == LineTypeIndex::none || !outlined) {
        if (outlined || type != LineTypeIndex::none) ExtendedText(kPropPenStyle, ToDisplayText(name));
        return;
    }
    entity_.lineType = type;
    if (type == LineTypeIndex::byLayer)
        record_.RemoveCommon(6);
    else
        record_.SetCommon(6, named ? drawing_.in_.lineTypes.Stored(drawing_.Known().At(type)) : name);
}

void AppearanceWriter::WriteLineScale(const Appearance& wanted) {
    if (Now().lineScale == wanted.lineScale) return;
    RemoveExtended(kPropPenScale);
    const bool hasGroup = wanted.lineScale > 0 && (IsNewer("AC1012") || record_.HasCommon(48));
    if (!hasGroup) return ExtendedNumbers(kPropPenScale, {wanted.lineScale});
    entity_.lineTypeScale = wanted.lineScale;
    record_.SetCommon(48, RealText(wanted.lineScale));
}

namespace {

// Markers are stored as the line weights that mean the same.
double ExtendedWidth(double width) {
    return width == kPenWidthByLayer ? kLineWeightByLayer : width == kPenWidthByBlock ? kLineWeightByBlock : width;
}

} // namespace

void AppearanceWriter::WriteWidth(const Appearance& wanted) {
    const auto isWritten = [&] {
        const Appearance now = Now();
        return now.width == wanted.width && now.worldWidth == wanted.worldWidth;
    };
    if (isWritten()) return;
    RemoveExtended(kPropPenWidth);
    auto* polyline = std::get_if<Polyline>(&entity_.shape);
    const bool storesWidth = polyline && polyline->kind == Polyline::Kind::flat && HasOneWidth(*polyline);
    if (wanted.worldWidth && wanted.width > 0 && storesWidth) return PutPolylineWidth(*polyline, wanted.width);
    if (!wanted.worldWidth) {
        if (AppearanceByGroups(drawing_.Known(), entity_).worldWidth) PutPolylineWidth(*polyline, 0);
        WritePaperWidth(wanted);
    }
    if (isWritten()) return;
    if (Near(Now().width, wanted.width) && Now().worldWidth == wanted.worldWidth) exact_.insert(kPropPenWidth);
    ExtendedNumbers(kPropPenWidth, {ExtendedWidth(wanted.width), wanted.worldWidth ? 1.0 : 0.0,
                                    static_cast<double>(entity_.lineWeight)});
}

void AppearanceWriter::WritePaperWidth(const Appearance& wanted) {
    const bool byLayer = wanted.width == kPenWidthByLayer;
    if (!byLayer && !IsNewer("AC1015") && !record_.HasCommon(370)) return;
    if (Now().width == wanted.width) return;
    entity_.lineWeight = byLayer                            ? kLineWeightByLayer
                         : wanted.width == kPenWidthByBlock ? kLineWeightByBlock
                                                            : static_cast<int16_t>(NearestWeight(wanted.width));
    byLayer ? record_.RemoveCommon(370) : record_.SetCommon(370, std::to_string(entity_.lineWeight));
}

void AppearanceWriter::PutPolylineWidth(const Polyline& polyline, double width) {
    const bool isLight = record_.Groups()[0].value.find("LW") != std::string_view::npos;
    if (isLight) {
        record_.Remove(40);
        record_.Remove(41);
        width > 0 ? record_.Set(43, RealText(width), {70, 90}) : record_.Remove(43);
    } else {
        for (const int code : {40, 41})
            width > 0 ? record_.Set(code, RealText(width), {70, 40}) : record_.Remove(code);
        RemoveVertexWidths();
    }
    Polyline put = polyline;
    for (Polyline::Vertex& vertex : put.vertices)
        vertex.startWidth = vertex.endWidth = width;
    entity_.shape = std::move(put);
}

// Widths of vertex records override that of the polyline.
void AppearanceWriter::RemoveVertexWidths() {
    TagReader& tags = drawing_.in_.tags;
    for (size_t at = record_.End(); tags.Seek(at).Is(0, "VERTEX");) {
        RecordPatch vertex(drawing_.patch_, tags, at);
        vertex.Remove(40);
        vertex.Remove(41);
        at = vertex.End();
    }
}

void AppearanceWriter::WriteDashes(const Appearance& wanted) {
    if (Now().dashesFitted == wanted.dashesFitted) return;
    RemoveExtended(kPropPenAlignment);
    auto* polyline = std::get_if<Polyline>(&entity_.shape);
    if (!polyline) {
        if (!wanted.dashesFitted) ExtendedNumbers(kPropPenAlignment, {0});
        return;
    }
    polyline->dashesThrough = !wanted.dashesFitted;
    const int flags = record_.Integer(70);
    record_.Set(70, std::to_string(wanted.dashesFitted ? flags & ~kThrough : flags | kThrough), {90, 66, 30});
}

} // namespace dxf
