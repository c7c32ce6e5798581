// The property tables: how each property is read and written.
#include "drawcore/src/graphics/properties.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>
#include <string_view>

#include <windows.h>

#include <wtypes.h>

#include "drawcore/src/graphics/drawing_contents.h"
#include "drawcore/src/graphics/text_face.h"
#include "drawcore/src/graphics/text_graphic.h"
#include "orlo/host/memory.h"

namespace drawcore {

namespace {

// Access to an integer value.
struct IntegerAccess {
    int64_t (*get)(const Graphic&);
    void (*set)(Graphic&, int64_t);
};
struct RealAccess {
    double (*get)(const Graphic&);
    void (*set)(Graphic&, double);
    double (*stored)(const Graphic&); // null to use get
};
struct TextAccess {
    const char* (*get)(const Graphic&);
    void (*set)(Graphic&, const char*);
    const char* (*stored)(const Graphic&); // null to use get
};

// A property: exactly one of the three accessors is set.
struct Property {
    const char* name;
    IntegerAccess integer{};
    RealAccess real{};
    TextAccess text{};
};

// Access to members of a graphic.
template <class Place>
struct Assigned {
    template <class Value>
    static void Set(Graphic& graphic, Value value) {
        auto& target = Place::In(graphic);
        target = static_cast<std::decay_t<decltype(target)>>(value);
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

template <class Place>
constexpr Property IntegerProperty(const char* name) {
    return {name, {[](const Graphic& g) { return static_cast<int64_t>(Place::In(g)); }, Place::template Set<int64_t>}};
}

template <class Place>
constexpr Property Real(const char* name) {
    return {name, {}, {[](const Graphic& g) -> double { return Place::In(g); }, Place::template Set<double>, nullptr}};
}

bool IsColor(int64_t value, bool ofBrush) {
    const Color color = static_cast<Color>(value);
    return IsPlainColor(color) || color == kColorByLayer || color == kColorByBlock || (ofBrush && color == kColorOfPen);
}

bool IsLayer(const Graphic& graphic, int64_t value) {
    if (value <= kNoId || value > kHighestId) return false;
    const DrawingContents* drawing = graphic.GetDrawing();
    const LayerTable* layers = drawing ? drawing->Layers() : nullptr;
    return !layers || layers->At(static_cast<Id>(value));
}

bool Accepts(const PropertyInfo& info, const Graphic& graphic, int64_t value) {
    switch (info.meaning) {
    case PropertyMeaning::Color:
        return IsColor(value, info.part == PropertyPart::Brush);
    case PropertyMeaning::LineStyle:
        return value >= 0 && value <= kLineStyleByLayer;
    case PropertyMeaning::BrushStyle:
    case PropertyMeaning::Block:
        return value >= 0 && value <= kHighestId;
    case PropertyMeaning::Layer:
        return IsLayer(graphic, value);
    case PropertyMeaning::ScaleSystem:
        return value == kScaleWorld || value == kScalePaper;
    default:
        return value >= info.low && value <= info.high;
    }
}

bool Accepts(const PropertyInfo& info, double value) {
    const bool isMarker = value == kPenWidthByLayer || value == kPenWidthByBlock;
    return (value >= info.low && value <= info.high) || (info.meaning == PropertyMeaning::Width && isMarker);
}

double GetStoredPenWidth(const Graphic& graphic) {
    return graphic.GetPen().width;
}

int64_t GetScaleSystem(const Graphic& graphic) {
    return graphic.GetPen().scaleSystem;
}

// An inherited width is a width on paper.
void SetPenWidth(Graphic& graphic, double width) {
    graphic.GetPen().width = width;
    if (width < 0) graphic.GetPen().scaleSystem = kScalePaper;
}

// A width in drawing units must be a number rather than a marker.
void SetScaleSystem(Graphic& graphic, int64_t system) {
    if (system == kScaleWorld) graphic.GetPen().width = ShownPenWidth(graphic);
    graphic.GetPen().scaleSystem = static_cast<uint8_t>(system);
}

const char* GetInfo(const Graphic& graphic) {
    return graphic.info ? graphic.info->c_str() : "";
}

void SetInfo(Graphic& graphic, const char* text) {
    graphic.info = *text ? std::make_unique<std::string>(text) : nullptr;
}

// A text in the default face returns the name of that face.
const char* GetFont(const Graphic& graphic) {
    const std::string& font = InText<&TextState::font>::In(graphic);
    return font.empty() ? TextFace::Get(font, 0).Name().c_str() : font.c_str();
}

const char* GetStoredFont(const Graphic& graphic) {
    return InText<&TextState::font>::In(graphic).c_str();
}

// In the order of kPropertyList.
constexpr Property kProperties[] = {
    Real<InBrush<&Brush::angle>>(kPropBrushAngle),
    IntegerProperty<InBrush<&Brush::color>>(kPropBrushColor),
    IntegerProperty<InBrush<&Brush::drawMode>>(kPropBrushDrawMode),
    Real<InBrush<&Brush::scale>>(kPropBrushScale),
    IntegerProperty<InBrush<&Brush::style>>(kPropBrushStyle),
    IntegerProperty<InBrush<&Brush::cross>>(kPropHatchCross),
    {kPropInfo, {}, {}, {GetInfo, SetInfo, nullptr}},
    IntegerProperty<Own<&Graphic::layer>>(kPropLayer),
    IntegerProperty<InPen<&Pen::alignment>>(kPropPenAlignment),
    IntegerProperty<InPen<&Pen::color>>(kPropPenColor),
    Real<InPen<&Pen::scale>>(kPropPenScale),
    IntegerProperty<InPen<&Pen::style>>(kPropPenStyle),
    {kPropPenWidth, {}, {ShownPenWidth, SetPenWidth, GetStoredPenWidth}},
    {kPropScaleSystem, {GetScaleSystem, SetScaleSystem}},
    IntegerProperty<Own<&Graphic::styleTree>>(kPropStyleTree),
    {kPropTextFont,
     {},
     {},
     {GetFont, [](Graphic& g, const char* v) { InText<&TextState::font>::In(g) = v; }, GetStoredFont}},
    IntegerProperty<InText<&TextState::format>>(kPropTextFormat),
    Real<InText<&TextState::height>>(kPropTextSize),
    IntegerProperty<InText<&TextState::style>>(kPropTextStyle),
};

// Lookups use binary search, and both tables have the same order.
constexpr bool IsListSorted() {
    constexpr size_t kCount = std::size(kProperties);
    if (kCount != std::size(kPropertyList)) return false;
    for (size_t i = 0; i < kCount; ++i) {
        const std::string_view name = kPropertyList[i].name;
        if (name != kProperties[i].name || (i > 0 && name <= kPropertyList[i - 1].name)) return false;
    }
    return true;
}
static_assert(IsListSorted());

// Inline, because the runtime's comparison is a call to another DLL.
bool SameText(const char* a, const char* b) {
    while (*a == *b && *a) {
        ++a;
        ++b;
    }
    return *a == *b;
}

// Types of integers. 32-bit types accept either interpretation of the top bit, because colors may be signed or
// unsigned.
bool StoreInteger(int vt, void* out, int64_t value) {
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

bool ReadInteger(int vt, const void* in, int64_t& value) {
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

bool StoreReal(int vt, void* out, double value) {
    if (vt == VT_R8)
        *static_cast<double*>(out) = value;
    else if (vt == VT_R4 && std::fabs(value) <= std::numeric_limits<float>::max())
        *static_cast<float*>(out) = static_cast<float>(value);
    else
        return false;
    return true;
}

bool ReadReal(int vt, const void* in, double& value) {
    if (vt == VT_R8)
        value = *static_cast<const double*>(in);
    else if (vt == VT_R4)
        value = *static_cast<const float*>(in);
    else
        return false;
    return true;
}

bool StoreText(int vt, void* out, const char* text) {
    if (vt != VT_BSTR) return false;
    char** variable = static_cast<char**>(out);
    if (*variable && SameText(*variable, text)) return true; // as often when texts of many graphics are compared
    const size_t size = std::strlen(text) + 1;
    char* copy = static_cast<char*>(DrawCoreNew(size));
    if (!copy) return false;
    std::memcpy(copy, text, size);
    BStringNULL(variable);
    *variable = copy;
    return true;
}

// Sets the value through an accessor, recorded for undo.
template <class Access, class Value>
int Put(Graphic& graphic, const PropertyInfo& info, const Access& access, const Value& value) {
    graphic.ChangingAppearance();
    access.set(graphic, value);
    if (info.part == PropertyPart::Text)
        graphic.ChangedShape();
    else
        graphic.ChangedAppearance();
    return 1;
}

const PropertyInfo* InfoAt(int32_t number, uint8_t owner) {
    if (number < 0 || static_cast<size_t>(number) >= std::size(kPropertyList)) return nullptr;
    return kPropertyList[number].owners & owner ? &kPropertyList[number] : nullptr;
}

int32_t Find(const char* name) {
    const auto* found =
        std::lower_bound(std::begin(kPropertyList), std::end(kPropertyList), name,
                         [](const PropertyInfo& info, const char* n) { return std::strcmp(info.name, n) < 0; });
    return found != std::end(kPropertyList) && SameText(found->name, name) ? static_cast<int32_t>(found - kPropertyList)
                                                                           : -1;
}

// Programs look up the same name for one graphic after the other, so the last one is tried first.
int32_t NumberOf(const char* name, uint8_t owner) {
    static std::atomic<int32_t> last{0};
    int32_t number = last.load(std::memory_order_relaxed);
    if (!SameText(kPropertyList[number].name, name)) {
        number = Find(name);
        if (number < 0) return -1;
        last.store(number, std::memory_order_relaxed);
    }
    return kPropertyList[number].owners & owner ? number : -1;
}

template <uint8_t owner>
int Lookup(GraphicStruct*, const char* const* names, int count, int, int32_t* numbers) {
    for (int i = 0; i < count; ++i)
        if ((numbers[i] = NumberOf(names[i], owner)) < 0) return 0;
    return 1;
}

template <uint8_t owner>
int Get(GraphicStruct* record, int32_t number, int vt, void* out) {
    if (!record || !InfoAt(number, owner) || !out) return 0;
    const Property& property = kProperties[number];
    const Graphic& graphic = *Graphic::From(record);
    if (property.integer.get) return StoreInteger(vt, out, property.integer.get(graphic));
    if (property.real.get) return StoreReal(vt, out, property.real.get(graphic));
    return StoreText(vt, out, property.text.get(graphic));
}

template <uint8_t owner>
int Set(GraphicStruct* record, int32_t number, int vt, const void* in) {
    const PropertyInfo* info = InfoAt(number, owner);
    if (!record || !info || !in) return 0;
    const Property& property = kProperties[number];
    Graphic& graphic = *Graphic::From(record);
    if (property.integer.get) {
        int64_t value;
        return ReadInteger(vt, in, value) && Accepts(*info, graphic, value)
                   ? Put(graphic, *info, property.integer, value)
                   : 0;
    }
    if (property.real.get) {
        double value;
        return ReadReal(vt, in, value) && Accepts(*info, value) ? Put(graphic, *info, property.real, value) : 0;
    }
    return vt == VT_BSTR ? Put(graphic, *info, property.text, static_cast<const char*>(in)) : 0;
}

} // namespace

namespace {

// Every graphic has a pen and a brush.
bool HasStored(const Graphic& graphic, size_t index) {
    const uint8_t owner = graphic.GetKind() == Kind::Text     ? kOfTexts
                          : graphic.GetKind() == Kind::Insert ? kOfInserts
                                                              : kOfShapes;
    return kPropertyList[index].owners & (kOfShapes | owner);
}

} // namespace

StoredProperty GetStored(const Graphic& graphic, size_t index) {
    const Property& property = kProperties[index];
    if (!HasStored(graphic, index)) return {};
    if (property.integer.get) return property.integer.get(graphic);
    if (property.real.get) return property.real.stored ? property.real.stored(graphic) : property.real.get(graphic);
    return std::string(property.text.stored ? property.text.stored(graphic) : property.text.get(graphic));
}

void SetStored(Graphic& graphic, size_t index, const StoredProperty& value) {
    const Property& property = kProperties[index];
    const PropertyInfo& info = kPropertyList[index];
    if (!HasStored(graphic, index)) return;
    const auto* integer = std::get_if<int64_t>(&value);
    const auto* real = std::get_if<double>(&value);
    const auto* text = std::get_if<std::string>(&value);
    if (integer && property.integer.set && Accepts(info, graphic, *integer)) property.integer.set(graphic, *integer);
    if (real && property.real.set && Accepts(info, *real)) property.real.set(graphic, *real);
    if (text && property.text.set) property.text.set(graphic, text->c_str());
}

const PropertyTable kShapeProperties = {nullptr, Lookup<kOfShapes>, Get<kOfShapes>, Set<kOfShapes>};
const PropertyTable kTextProperties = {nullptr, Lookup<kOfTexts>, Get<kOfTexts>, Set<kOfTexts>};
const PropertyTable kInsertProperties = {nullptr, Lookup<kOfInserts>, Get<kOfInserts>, Set<kOfInserts>};

} // namespace drawcore
