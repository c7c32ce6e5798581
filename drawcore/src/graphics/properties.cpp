#include "drawcore/src/graphics/properties.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include <windows.h>

#include <wtypes.h>

#include "drawcore/src/database/drawing.h"
#include "drawcore/src/graphics/text_graphic.h"
#include "orlo/host/memory.h"

namespace drawcore {

namespace {

// Which property tables have it.
enum : uint8_t { kOfShape = 1, kOfText = 2, kOfInsert = 4, kOfAll = 7 };

// One property: exactly one of the three accesses is there. accepts judges a value before anything changes.
struct Property {
    const char* name;
    uint8_t owners;
    struct {
        int64_t (*get)(const Graphic&);
        bool (*accepts)(const Graphic&, int64_t);
        void (*set)(Graphic&, int64_t);
    } whole;
    struct {
        double (*get)(const Graphic&);
        bool (*accepts)(double);
        void (*set)(Graphic&, double);
    } real;
    struct {
        const char* (*get)(const Graphic&);
        void (*set)(Graphic&, const char*);
    } text;
    bool shapes = false; // a change moves the extents
};

const TextState& TextOf(const Graphic& graphic) {
    return static_cast<const TextGraphic&>(graphic).state;
}

TextState& TextOf(Graphic& graphic) {
    return static_cast<TextGraphic&>(graphic).state;
}

// Limits.
template <int64_t low, int64_t high>
bool Within(const Graphic&, int64_t value) {
    return value >= low && value <= high;
}

bool IsPenColor(const Graphic&, int64_t value) {
    const Color color = static_cast<Color>(value);
    return IsPlainColor(color) || color == kByLayer || color == kByBlock;
}

bool IsBrushColor(const Graphic& graphic, int64_t value) {
    return IsPenColor(graphic, value) || static_cast<Color>(value) == kPenColor;
}

bool IsScaleSystem(const Graphic&, int64_t value) {
    return value == kScaleWorld || value == kScalePaper;
}

bool IsLayer(const Graphic& graphic, int64_t value) {
    if (value <= kNoId || value > kHighestId) return false;
    const Drawing* drawing = graphic.GetDrawing();
    const LayerTable* layers = drawing ? drawing->Layers() : nullptr;
    return !layers || layers->At(static_cast<Id>(value));
}

bool IsNumber(double value) {
    return std::isfinite(value);
}

bool IsNotNegative(double value) {
    return std::isfinite(value) && value >= 0;
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

#define WHOLE(field, type, accepts)                                                                          \
    {                                                                                                        \
        [](const Graphic& g) -> int64_t { return field; }, accepts,                                          \
            [](Graphic& g, int64_t v) { field = static_cast<type>(v); }                                      \
    }
#define REAL(field, accepts)                                                                                 \
    {                                                                                                        \
        [](const Graphic& g) -> double { return field; }, accepts, [](Graphic& g, double v) { field = v; }   \
    }

constexpr auto kAnyStyle = Within<0, kStyleByLayer>;

// In the order of their names: a look-up halves the range.
const Property kProperties[] = {
    {"BrushAngle", kOfShape, {}, REAL(g.brush.angle, IsNumber), {}},
    {"BrushColor", kOfShape, WHOLE(g.brush.color, Color, IsBrushColor), {}, {}},
    {"BrushDrawMode", kOfShape, WHOLE(g.brush.drawMode, int32_t, (Within<0, 1>)), {}, {}},
    {"BrushScale", kOfShape, {}, REAL(g.brush.scale, IsNotNegative), {}},
    {"BrushStyle", kOfShape, WHOLE(g.brush.style, uint16_t, (Within<0, kHighestId>)), {}, {}},
    {"HatchCross", kOfShape, WHOLE(g.brush.cross, bool, (Within<0, 1>)), {}, {}},
    {"Info", kOfAll, {}, {}, {GetInfo, SetInfo}},
    {"Layer", kOfAll, WHOLE(g.layer, Id, IsLayer), {}, {}},
    {"PenAlignment", kOfShape, WHOLE(g.pen.alignment, bool, (Within<0, 1>)), {}, {}},
    {"PenColor", kOfAll, WHOLE(g.pen.color, Color, IsPenColor), {}, {}},
    {"PenScale", kOfShape, {}, REAL(g.pen.scale, IsNotNegative), {}},
    {"PenStyle", kOfShape | kOfInsert, WHOLE(g.pen.style, uint16_t, kAnyStyle), {}, {}},
    {"PenWidth", kOfShape, {}, REAL(g.pen.width, IsNotNegative), {}},
    {"ScaleSystem", kOfShape, WHOLE(g.pen.scaleSystem, uint8_t, IsScaleSystem), {}, {}},
    {"StyleTree", kOfAll, WHOLE(g.styleTree, uint16_t, (Within<0, kHighestId>)), {}, {}},
    {"TextFont",
     kOfText,
     {},
     {},
     {[](const Graphic& g) { return TextOf(g).font.c_str(); },
      [](Graphic& g, const char* v) { TextOf(g).font = v; }},
     true},
    {"TextFormat", kOfText, WHOLE(TextOf(g).format, uint16_t, (Within<kTextLeft, kTextRight>)), {}, {}, true},
    {"TextSize", kOfText, {}, REAL(TextOf(g).height, IsPositive), {}, true},
    {"TextStyle", kOfText, WHOLE(TextOf(g).style, uint16_t, (Within<0, 0xFFFF>)), {}, {}, true},
};

#undef WHOLE
#undef REAL

// Forms of whole numbers. A 32-bit form takes either reading of its top bit: colours come signed as well as unsigned.
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
    graphic.Changing();
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
    const auto* found =
        std::lower_bound(std::begin(kProperties), std::end(kProperties), name,
                         [](const Property& p, const char* n) { return std::strcmp(p.name, n) < 0; });
    const bool has =
        found != std::end(kProperties) && !std::strcmp(found->name, name) && (found->owners & owner);
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

const PropertyTable kShapeProperties = {nullptr, Lookup<kOfShape>, Get<kOfShape>, Set<kOfShape>};
const PropertyTable kTextProperties = {nullptr, Lookup<kOfText>, Get<kOfText>, Set<kOfText>};
const PropertyTable kInsertProperties = {nullptr, Lookup<kOfInsert>, Get<kOfInsert>, Set<kOfInsert>};

} // namespace drawcore
