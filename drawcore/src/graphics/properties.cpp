// The tables themselves: how each property is read and written.
#include "drawcore/src/graphics/properties.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include <windows.h>

#include <wtypes.h>

#include "drawcore/src/graphics/drawing_contents.h"
#include "drawcore/src/graphics/text_face.h"
#include "drawcore/src/graphics/text_graphic.h"
#include "orlo/host/memory.h"

namespace drawcore {

namespace {

// Which property tables have it.
enum : uint8_t { kOfShape = 1, kOfText = 2, kOfInsert = 4, kOfAll = 7 };

// How a value is read and written. accepts judges a value before anything changes.
struct WholeAccess {
    int64_t (*get)(const Graphic&);
    bool (*accepts)(const Graphic&, int64_t);
    void (*set)(Graphic&, int64_t);
};
struct RealAccess {
    double (*get)(const Graphic&);
    bool (*accepts)(double);
    void (*set)(Graphic&, double);
    double (*stored)(const Graphic&); // null: get
};
struct TextAccess {
    const char* (*get)(const Graphic&);
    void (*set)(Graphic&, const char*);
    const char* (*stored)(const Graphic&); // null: get
};

// One property: exactly one of the three accesses is set.
struct Property {
    const char* name;
    PropertyMeaning meaning;
    uint8_t owners;
    WholeAccess whole{};
    RealAccess real{};
    TextAccess text{};
    bool shapes = false; // a change moves the extents
};

// Places of values in a graphic.
template <class Place>
struct Assigned {
    template <class Value>
    static void Set(Graphic& graphic, Value value) {
        auto& place = Place::In(graphic);
        place = static_cast<std::decay_t<decltype(place)>>(value);
    }
};
template <auto field>
struct Own : Assigned<Own<field>> {
    template <class Of>
    static auto& In(Of& graphic) {
        return graphic.*field;
    }
};
template <auto field>
struct InPen : Assigned<InPen<field>> {
    template <class Of>
    static auto& In(Of& graphic) {
        return graphic.GetPen().*field;
    }
};
template <auto field>
struct InBrush {
    static const auto& In(const Graphic& graphic) { return graphic.GetBrush().*field; }
    template <class Value>
    static void Set(Graphic& graphic, Value value) {
        Brush brush = graphic.GetBrush();
        brush.*field = static_cast<std::decay_t<decltype(brush.*field)>>(value);
        graphic.SetBrush(brush);
    }
};
template <auto field>
struct InText : Assigned<InText<field>> {
    static const auto& In(const Graphic& graphic) { return static_cast<const TextGraphic&>(graphic).state.*field; }
    static auto& In(Graphic& graphic) { return static_cast<TextGraphic&>(graphic).state.*field; }
};

template <class Place, bool (*accepts)(const Graphic&, int64_t)>
constexpr Property Whole(const char* name, PropertyMeaning meaning, uint8_t owners, bool shapes = false) {
    return {name,
            meaning,
            owners,
            {[](const Graphic& g) { return static_cast<int64_t>(Place::In(g)); }, accepts, Place::template Set<int64_t>},
            {},
            {},
            shapes};
}

template <class Place, bool (*accepts)(double)>
constexpr Property Real(const char* name, PropertyMeaning meaning, uint8_t owners, bool shapes = false) {
    return {name,
            meaning,
            owners,
            {},
            {[](const Graphic& g) -> double { return Place::In(g); }, accepts, Place::template Set<double>, nullptr},
            {},
            shapes};
}

constexpr Property Text(const char* name, PropertyMeaning meaning, uint8_t owners, TextAccess access,
                        bool shapes = false) {
    return {name, meaning, owners, {}, {}, access, shapes};
}

// Limits.
template <int64_t low, int64_t high>
bool Within(const Graphic&, int64_t value) {
    return value >= low && value <= high;
}

bool IsPenColor(const Graphic&, int64_t value) {
    const Color color = static_cast<Color>(value);
    return IsPlainColor(color) || color == kColorByLayer || color == kColorByBlock;
}

bool IsBrushColor(const Graphic& graphic, int64_t value) {
    return IsPenColor(graphic, value) || static_cast<Color>(value) == kColorOfPen;
}

bool IsScaleSystem(const Graphic&, int64_t value) {
    return value == kScaleWorld || value == kScalePaper;
}

bool IsLayer(const Graphic& graphic, int64_t value) {
    if (value <= kNoId || value > kHighestId) return false;
    const DrawingContents* drawing = graphic.GetDrawing();
    const LayerTable* layers = drawing ? drawing->Layers() : nullptr;
    return !layers || layers->At(static_cast<Id>(value));
}

bool IsNumber(double value) {
    return std::isfinite(value);
}

bool IsNotNegative(double value) {
    return std::isfinite(value) && value >= 0;
}

bool IsPenWidth(double value) {
    return IsNotNegative(value) || value == kPenWidthByLayer || value == kPenWidthByBlock;
}

double GetStoredPenWidth(const Graphic& graphic) {
    return graphic.GetPen().width;
}

int64_t GetScaleSystem(const Graphic& graphic) {
    return graphic.GetPen().scaleSystem;
}

// A width that is inherited is one on paper.
void SetPenWidth(Graphic& graphic, double width) {
    graphic.GetPen().width = width;
    if (width < 0) graphic.GetPen().scaleSystem = kScalePaper;
}

// In drawing units a width has to be a number of its own.
void SetScaleSystem(Graphic& graphic, int64_t system) {
    if (system == kScaleWorld) graphic.GetPen().width = ShownPenWidth(graphic);
    graphic.GetPen().scaleSystem = static_cast<uint8_t>(system);
}

bool IsPositive(double value) {
    return std::isfinite(value) && value > 0;
}

const char* GetInfo(const Graphic& graphic) {
    return graphic.info ? graphic.info->c_str() : "";
}

void SetInfo(Graphic& graphic, const char* text) {
    graphic.info = *text ? std::make_unique<std::string>(text) : nullptr;
}

// A text in the default face names the face that is the default here.
const char* GetFont(const Graphic& graphic) {
    const std::string& font = InText<&TextState::font>::In(graphic);
    return font.empty() ? TextFace::Get(font, 0).Name().c_str() : font.c_str();
}

const char* GetStoredFont(const Graphic& graphic) {
    return InText<&TextState::font>::In(graphic).c_str();
}

constexpr auto kAnyStyle = Within<0, kLineStyleByLayer>;
constexpr auto kAnyEntry = Within<0, kHighestId>;
constexpr auto kYesOrNo = Within<0, 1>;

// In the order of their names: a look-up halves the range.
constexpr Property kProperties[] = {
    Real<InBrush<&Brush::angle>, IsNumber>(kPropBrushAngle, kMeansAngle, kOfShape),
    Whole<InBrush<&Brush::color>, IsBrushColor>(kPropBrushColor, kMeansColor, kOfShape),
    Whole<InBrush<&Brush::drawMode>, kYesOrNo>(kPropBrushDrawMode, kMeansNumber, kOfShape),
    Real<InBrush<&Brush::scale>, IsNotNegative>(kPropBrushScale, kMeansNumber, kOfShape),
    Whole<InBrush<&Brush::style>, kAnyEntry>(kPropBrushStyle, kMeansBrushStyle, kOfShape),
    Whole<InBrush<&Brush::cross>, kYesOrNo>(kPropHatchCross, kMeansSwitch, kOfShape),
    Text(kPropInfo, kMeansText, kOfAll, {GetInfo, SetInfo, nullptr}),
    Whole<Own<&Graphic::layer>, IsLayer>(kPropLayer, kMeansLayer, kOfAll),
    Whole<InPen<&Pen::alignment>, kYesOrNo>(kPropPenAlignment, kMeansSwitch, kOfShape),
    Whole<InPen<&Pen::color>, IsPenColor>(kPropPenColor, kMeansColor, kOfAll),
    Real<InPen<&Pen::scale>, IsNotNegative>(kPropPenScale, kMeansNumber, kOfShape),
    Whole<InPen<&Pen::style>, kAnyStyle>(kPropPenStyle, kMeansLineStyle, kOfShape | kOfInsert),
    {kPropPenWidth, kMeansWidth, kOfShape, {}, {ShownPenWidth, IsPenWidth, SetPenWidth, GetStoredPenWidth}},
    {kPropScaleSystem, kMeansScaleSystem, kOfShape, {GetScaleSystem, IsScaleSystem, SetScaleSystem}},
    Whole<Own<&Graphic::styleTree>, kAnyEntry>(kPropStyleTree, kMeansBlock, kOfAll),
    Text(kPropTextFont, kMeansText, kOfText,
         {GetFont, [](Graphic& g, const char* v) { InText<&TextState::font>::In(g) = v; }, GetStoredFont}, true),
    Whole<InText<&TextState::format>, Within<kTextLeft, kTextRight>>(kPropTextFormat, kMeansNumber, kOfText, true),
    Real<InText<&TextState::height>, IsPositive>(kPropTextSize, kMeansLength, kOfText, true),
    Whole<InText<&TextState::style>, Within<0, 0xFFFF>>(kPropTextStyle, kMeansBits, kOfText, true),
};

// Forms of whole numbers. A 32-bit form takes either reading of its top bit: colors come signed as well as unsigned.
bool GiveWhole(int vt, void* out, int64_t value) {
    switch (vt) {
    case VT_I4:
    case VT_UI4:
        *static_cast<uint32_t*>(out) = static_cast<uint32_t>(value);
        return true;
    case VT_BOOL:
    case VT_UI2:
        if (value < 0 || value > 0xFFFF) return false;
        *static_cast<uint16_t*>(out) = static_cast<uint16_t>(value);
        return true;
    case VT_UI1:
        if (value < 0 || value > 0xFF) return false;
        *static_cast<uint8_t*>(out) = static_cast<uint8_t>(value);
        return true;
    default:
        return false;
    }
}

bool TakeWhole(int vt, const void* in, int64_t& value) {
    switch (vt) {
    case VT_I4:
    case VT_UI4:
        value = *static_cast<const uint32_t*>(in);
        return true;
    case VT_BOOL:
        value = *static_cast<const int32_t*>(in) != 0;
        return true;
    case VT_UI2:
        value = *static_cast<const uint16_t*>(in);
        return true;
    case VT_UI1:
        value = *static_cast<const uint8_t*>(in);
        return true;
    default:
        return false;
    }
}

bool GiveReal(int vt, void* out, double value) {
    if (vt == VT_R8)
        *static_cast<double*>(out) = value;
    else if (vt == VT_R4 && std::fabs(value) <= std::numeric_limits<float>::max())
        *static_cast<float*>(out) = static_cast<float>(value);
    else
        return false;
    return true;
}

bool TakeReal(int vt, const void* in, double& value) {
    if (vt == VT_R8)
        value = *static_cast<const double*>(in);
    else if (vt == VT_R4)
        value = *static_cast<const float*>(in);
    else
        return false;
    return true;
}

bool GiveText(int vt, void* out, const char* text) {
    if (vt != VT_BSTR) return false;
    char** variable = static_cast<char**>(out);
    const size_t size = std::strlen(text) + 1;
    char* made = static_cast<char*>(DrawCoreNew(size));
    if (!made) return false;
    std::memcpy(made, text, size);
    BStringNULL(variable);
    *variable = made;
    return true;
}

// Sets the value through one of the accesses, as a change that the undo log sees.
template <class Access, class Value>
int Put(Graphic& graphic, const Property& property, const Access& access, const Value& value) {
    graphic.ChangingLook();
    access.set(graphic, value);
    if (property.shapes)
        graphic.ChangedShape();
    else
        graphic.ChangedLook();
    return 1;
}

const Property* PropertyAt(int32_t number, uint8_t owner) {
    if (number < 0 || static_cast<size_t>(number) >= std::size(kProperties)) return nullptr;
    return kProperties[number].owners & owner ? &kProperties[number] : nullptr;
}

int32_t NumberOf(const char* name, uint8_t owner) {
    const auto* found = std::lower_bound(std::begin(kProperties), std::end(kProperties), name,
                                         [](const Property& p, const char* n) { return std::strcmp(p.name, n) < 0; });
    const bool has = found != std::end(kProperties) && !std::strcmp(found->name, name) && (found->owners & owner);
    return has ? static_cast<int32_t>(found - kProperties) : -1;
}

template <uint8_t owner>
int Lookup(GraphicStruct*, const char* const* names, int count, int, int32_t* numbers) {
    for (int i = 0; i < count; ++i)
        if ((numbers[i] = NumberOf(names[i], owner)) < 0) return 0;
    return 1;
}

template <uint8_t owner>
int Get(GraphicStruct* record, int32_t number, int vt, void* out) {
    const Property* property = PropertyAt(number, owner);
    if (!record || !property || !out) return 0;
    const Graphic& graphic = *Graphic::From(record);
    if (property->whole.get) return GiveWhole(vt, out, property->whole.get(graphic));
    if (property->real.get) return GiveReal(vt, out, property->real.get(graphic));
    return GiveText(vt, out, property->text.get(graphic));
}

template <uint8_t owner>
int Set(GraphicStruct* record, int32_t number, int vt, const void* in) {
    const Property* property = PropertyAt(number, owner);
    if (!record || !property || !in) return 0;
    Graphic& graphic = *Graphic::From(record);
    if (property->whole.get) {
        int64_t value;
        if (!TakeWhole(vt, in, value) || !property->whole.accepts(graphic, value)) return 0;
        return Put(graphic, *property, property->whole, value);
    }
    if (property->real.get) {
        double value;
        if (!TakeReal(vt, in, value) || !property->real.accepts(value)) return 0;
        return Put(graphic, *property, property->real, value);
    }
    return vt == VT_BSTR ? Put(graphic, *property, property->text, static_cast<const char*>(in)) : 0;
}

} // namespace

StoredProperty GetStored(const Graphic& graphic, size_t place) {
    const Property& property = kProperties[place];
    const uint8_t owner = graphic.GetKind() == Kind::Text     ? kOfText
                          : graphic.GetKind() == Kind::Insert ? kOfInsert
                                                              : kOfShape;
    if (!(property.owners & (kOfShape | owner))) return {}; // every graphic has a pen and a brush
    if (property.whole.get) return property.whole.get(graphic);
    if (property.real.get) return property.real.stored ? property.real.stored(graphic) : property.real.get(graphic);
    return std::string(property.text.stored ? property.text.stored(graphic) : property.text.get(graphic));
}

const PropertyTable kShapeProperties = {nullptr, Lookup<kOfShape>, Get<kOfShape>, Set<kOfShape>};
const PropertyTable kTextProperties = {nullptr, Lookup<kOfText>, Get<kOfText>, Set<kOfText>};
const PropertyTable kInsertProperties = {nullptr, Lookup<kOfInsert>, Get<kOfInsert>, Set<kOfInsert>};

} // namespace drawcore

const PropertyInfo* DrawCoreGetProperties(int* count) {
    static const std::vector<PropertyInfo> schema = [] {
        std::vector<PropertyInfo> infos;
        for (const drawcore::Property& property : drawcore::kProperties) {
            const PropertyForm form = property.whole.get ? kFormWhole : property.real.get ? kFormReal : kFormText;
            infos.push_back({property.name, form, property.meaning});
        }
        return infos;
    }();
    if (count) *count = static_cast<int>(schema.size());
    return schema.data();
}
