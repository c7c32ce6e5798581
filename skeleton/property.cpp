// The property table: the properties of each graphic, the values that they accept, and the conversion of value types.

#include <cmath>
#include <cstring>

#include "database.h"

namespace {

enum Owners { kShapes = 1, kTexts = 2, kInsertions = 4, kAll = 7 };

bool IsColor(double value) {
    return value <= 0xFFFFFF || value == kColorByLayer || value == kColorByBlock;
}
bool IsBrushColor(double value) {
    return IsColor(value) || value == kColorOfPen;
}
bool IsNotNegative(double value) {
    return value >= 0;
}
bool IsPositive(double value) {
    return value > 0;
}
bool IsNumber(double) {
    return true;
}
bool IsIdentifier(double value) {
    return value >= 1 && value <= 0xFFF0;
}
bool IsIdentifierOrNone(double value) {
    return value == 0 || IsIdentifier(value);
}
bool IsLineStyle(double value) {
    return value <= kLineStyleByLayer;
}
bool IsScaleSystem(double value) {
    return value == kScaleWorld || value == kScalePaper;
}
template <int most>
bool UpTo(double value) {
    return value <= most;
}

// Exactly one of the three members is set.
struct Property {
    const char* name;
    int owners;
    bool (*accepts)(double);
    uint32_t Content::*integer;
    double Content::*real;
    std::string Content::*text;
};

constexpr Property kRows[] = {
    {kPropLayer, kAll, IsIdentifier, &Content::layer, nullptr, nullptr},
    {kPropInfo, kAll, nullptr, nullptr, nullptr, &Content::info},
    {kPropStyleTree, kAll, IsIdentifierOrNone, &Content::styleTree, nullptr, nullptr},
    {kPropPenColor, kAll, IsColor, &Content::penColor, nullptr, nullptr},
    {kPropPenWidth, kShapes, IsNotNegative, nullptr, &Content::penWidth, nullptr},
    {kPropPenScale, kShapes, IsPositive, nullptr, &Content::penScale, nullptr},
    {kPropPenStyle, kShapes, IsLineStyle, &Content::penStyle, nullptr, nullptr},
    {kPropPenAlignment, kShapes, UpTo<1>, &Content::penAlignment, nullptr, nullptr},
    {kPropScaleSystem, kShapes, IsScaleSystem, &Content::scaleSystem, nullptr, nullptr},
    {kPropBrushColor, kShapes, IsBrushColor, &Content::brushColor, nullptr, nullptr},
    {kPropBrushAngle, kShapes, IsNumber, nullptr, &Content::brushAngle, nullptr},
    {kPropBrushScale, kShapes, IsPositive, nullptr, &Content::brushScale, nullptr},
    {kPropBrushStyle, kShapes, IsIdentifierOrNone, &Content::brushStyle, nullptr, nullptr},
    {kPropHatchCross, kShapes, UpTo<1>, &Content::hatchCross, nullptr, nullptr},
    {kPropBrushDrawMode, kShapes, UpTo<1>, &Content::brushDrawMode, nullptr, nullptr},
    {kPropTextFont, kTexts, nullptr, nullptr, nullptr, &Content::textFont},
    {kPropTextSize, kTexts, IsPositive, nullptr, &Content::textSize, nullptr},
    {kPropTextStyle, kTexts, UpTo<0xFFFF>, &Content::textStyle, nullptr, nullptr},
    {kPropTextFormat, kTexts, UpTo<2>, &Content::textFormat, nullptr, nullptr},
};

int OwnerOf(const GraphicStruct* graphic) {
    switch (graphic->bType) {
    case kGraphicText:
        return kTexts;
    case kGraphicInsert:
        return kInsertions;
    default:
        return kShapes;
    }
}

// The number of a property is the index of its row.
const Property* RowOf(const GraphicStruct* graphic, int32_t number) {
    if (!graphic || number < 0 || static_cast<size_t>(number) >= std::size(kRows)) return nullptr;
    return kRows[number].owners & OwnerOf(graphic) ? &kRows[number] : nullptr;
}

int Lookup(GraphicStruct* graphic, const char* const* names, int, int, int32_t* number) {
    for (size_t i = 0; i < std::size(kRows); ++i) {
        if (std::strcmp(kRows[i].name, *names) != 0 || !RowOf(graphic, static_cast<int32_t>(i))) continue;
        *number = static_cast<int32_t>(i);
        return 1;
    }
    return 0;
}

template <class Form>
int Store(void* out, Form value) {
    std::memcpy(out, &value, sizeof value);
    return 1;
}

template <class Form>
Form Load(const void* in) {
    Form value;
    std::memcpy(&value, in, sizeof value);
    return value;
}

int StoreInteger(int vt, void* out, uint32_t value) {
    switch (vt) {
    case VT_I4:
    case VT_UI4:
        return Store(out, value);
    case VT_BOOL:
    case VT_UI2:
        return value <= UINT16_MAX ? Store(out, static_cast<uint16_t>(value)) : 0;
    case VT_UI1:
        return value <= UINT8_MAX ? Store(out, static_cast<uint8_t>(value)) : 0;
    default:
        return 0;
    }
}

bool LoadInteger(int vt, const void* in, uint32_t& value) {
    switch (vt) {
    case VT_I4:
    case VT_UI4:
        value = Load<uint32_t>(in);
        return true;
    case VT_BOOL:
        value = Load<int32_t>(in) != 0;
        return true;
    case VT_UI2:
        value = Load<uint16_t>(in);
        return true;
    case VT_UI1:
        value = Load<uint8_t>(in);
        return true;
    default:
        return false;
    }
}

// Frees the previous string in the variable and stores the new one.
int StoreString(void* out, const std::string& text) {
    auto* copy = static_cast<char*>(::DrawCoreNew(text.size() + 1));
    if (!copy) return 0;
    std::memcpy(copy, text.c_str(), text.size() + 1);
    auto* variable = static_cast<char**>(out);
    ::BStringNULL(variable);
    *variable = copy;
    return 1;
}

int Get(GraphicStruct* graphic, int32_t number, int vt, void* out) {
    const Property* row = RowOf(graphic, number);
    if (!row || !out) return 0;
    const Content& content = Graphic::From(graphic)->content;
    if (row->integer) return StoreInteger(vt, out, content.*row->integer);
    if (row->text) return vt == VT_BSTR ? StoreString(out, content.*row->text) : 0;
    if (vt == VT_R8) return Store(out, content.*row->real);
    return vt == VT_R4 ? Store(out, static_cast<float>(content.*row->real)) : 0;
}

int Set(GraphicStruct* graphic, int32_t number, int vt, const void* in) {
    const Property* row = RowOf(graphic, number);
    if (!row || !in) return 0;
    Content& content = Graphic::From(graphic)->content;
    if (row->integer) {
        uint32_t value;
        if (!LoadInteger(vt, in, value) || !row->accepts(value)) return 0;
        content.*row->integer = value;
    } else if (row->text) {
        if (vt != VT_BSTR) return 0;
        content.*row->text = static_cast<const char*>(in);
    } else {
        if (vt != VT_R8 && vt != VT_R4) return 0;
        const double value = vt == VT_R8 ? Load<double>(in) : Load<float>(in);
        if (!std::isfinite(value) || !row->accepts(value)) return 0;
        content.*row->real = value;
    }
    return 1;
}

} // namespace

const PropertyTable kProperties = {nullptr, Lookup, Get, Set};
