// Property tables: the properties of each kind of graphic, the types of values, and rejected values.

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <set>
#include <stdexcept>

#include <windows.h>

#include <wtypes.h>

#include <drawcore/graphic.h>

#include "drawcore/kit.h"

namespace {

const std::set<std::string> kGeneral = {kPropInfo, kPropLayer, kPropStyleTree};
const std::set<std::string> kShape = {kPropBrushAngle, kPropBrushColor, kPropBrushDrawMode, kPropBrushScale,
                                      kPropBrushStyle, kPropHatchCross, kPropPenAlignment,  kPropPenColor,
                                      kPropPenScale,   kPropPenStyle,   kPropPenWidth,      kPropScaleSystem,
                                      kPropInfo,       kPropLayer,      kPropStyleTree};
const std::set<std::string> kText = {kPropPenColor,   kPropTextFont, kPropTextSize, kPropTextStyle,
                                     kPropTextFormat, kPropInfo,     kPropLayer,    kPropStyleTree};
const std::set<std::string> kInsert = {kPropPenColor, kPropPenStyle, kPropInfo, kPropLayer, kPropStyleTree};

struct KindRow {
    const char* name;
    int type;
    const std::set<std::string>& properties;
};

const KindRow kKinds[] = {{"Vertices", kGraphicVertices, kShape},
                          {"Curve", kGraphicPenBrush, kShape},
                          {"Text", kGraphicText, kText},
                          {"Insert", kGraphicInsert, kInsert}};

class OfKind : public testing::TestWithParam<KindRow> {
protected:
    OfKind() : graphic(GraphicNewEx(GetParam().type, 0, 1)), table(GraphicGetVtbl(graphic)) {}
    ~OfKind() override { GraphicDispose(&graphic); }

    bool Find(const char* name, int32_t& number) { return table->PropLookup(graphic, &name, 1, 0, &number) != 0; }

    GraphicStruct* graphic;
    const PropertyTable* table;
};

TEST_P(OfKind, HasOnlyItsProperties) {
    std::set<std::string> all = kShape;
    all.insert(kText.begin(), kText.end());
    for (const std::string& name : all) {
        int32_t number = 0;
        EXPECT_EQ(Find(name.c_str(), number), GetParam().properties.count(name) == 1) << name;
    }
    // The last name is remembered, whatever graphic it was found for.
    for (const char* name : {kPropPenWidth, kPropTextSize})
        for (const KindRow& kind : kKinds) {
            GraphicStruct* other = GraphicNewEx(kind.type, 0, 1);
            int32_t ignored = 0;
            GraphicGetVtbl(other)->PropLookup(other, &name, 1, 0, &ignored);
            GraphicDispose(&other);
            EXPECT_EQ(Find(name, ignored), GetParam().properties.count(name) == 1) << name << " after " << kind.name;
        }
    int32_t number = 0;
    for (const char* name : {"", "pencolor", "PenColor ", "PenColo", "ZZZ", "AAA"})
        EXPECT_FALSE(Find(name, number)) << name;
    const char* names[] = {kPropLayer, kPropInfo};
    int32_t numbers[2];
    EXPECT_TRUE(table->PropLookup(graphic, names, 2, 0, numbers));
    EXPECT_NE(numbers[0], numbers[1]);
    for (const int32_t stranger : {-1, 19, 1000}) {
        double value = 5;
        EXPECT_FALSE(table->PropGet(graphic, stranger, VT_R8, &value));
        EXPECT_FALSE(table->PropSet(graphic, stranger, VT_R8, &value));
    }
}

// Types of a value: each integer property as each integer type, reals as float and double, texts as text.
TEST_P(OfKind, ConvertsEachValueBetweenVariantTypes) {
    const std::set<std::string> reals = {kPropBrushAngle, kPropBrushScale, kPropPenScale, kPropPenWidth, kPropTextSize};
    const std::set<std::string> texts = {kPropInfo, kPropTextFont};
    for (const std::string& name : GetParam().properties) {
        SCOPED_TRACE(name);
        int32_t number;
        ASSERT_TRUE(Find(name.c_str(), number));
        const bool isReal = reals.count(name), isText = texts.count(name);
        for (const int vt : {VT_I4, VT_R4, VT_R8, VT_BSTR, VT_BOOL, VT_UI1, VT_UI2, VT_UI4, VT_EMPTY, VT_I2}) {
            SCOPED_TRACE(vt);
            union {
                uint32_t whole;
                float single;
                double real;
                char* text;
                unsigned char bytes[8];
            } value{};
            const char* const kNew = "new text";
            const void* in = &value;
            if (vt == VT_R4)
                value.single = 1.5f;
            else if (vt == VT_R8)
                value.real = 1.5;
            else if (vt == VT_BSTR)
                in = kNew;
            else
                value.whole = name == kPropScaleSystem ? (vt == VT_BOOL ? 0 : 2) : 1;
            const bool isForm = isReal   ? vt == VT_R4 || vt == VT_R8
                                : isText ? vt == VT_BSTR
                                         : vt != VT_R4 && vt != VT_R8 && vt != VT_BSTR && vt != VT_EMPTY && vt != VT_I2;
            EXPECT_EQ(table->PropSet(graphic, number, vt, in) != 0, isForm);
            decltype(value) out{};
            const bool isReturned = table->PropGet(graphic, number, vt, &out) != 0;
            EXPECT_EQ(isReturned, isForm);
            if (!isReturned) continue;
            if (isText) {
                EXPECT_STREQ(out.text, kNew);
                BStringNULL(&out.text);
            } else {
                EXPECT_EQ(std::memcmp(&out, &value, sizeof out), 0);
            }
        }
    }
}

TEST_P(OfKind, SetsItsDirtyFlag) {
    GraphicSetDirty(graphic, 0);
    EXPECT_FALSE(SetInteger(graphic, kPropPenColor, 0x12345678));
    EXPECT_FALSE(GraphicIsDirty(graphic));
    EXPECT_TRUE(SetInteger(graphic, kPropPenColor, 0x345678));
    EXPECT_TRUE(GraphicIsDirty(graphic));
}

INSTANTIATE_TEST_SUITE_P(Properties, OfKind, testing::ValuesIn(kKinds),
                         [](const auto& row) { return std::string(row.param.name); });

class ShapeProperties : public testing::Test {
protected:
    ~ShapeProperties() override { GraphicDispose(&graphic); }
    GraphicStruct* graphic = MakeSquare(0, 0, 1);
};

TEST_F(ShapeProperties, RejectValuesOutOfRange) {
    const struct {
        const char* name;
        std::vector<uint32_t> valid, invalid;
    } kWhole[] = {
        {kPropPenColor, {0, 0xFFFFFF, 0xFFFFFFFD, 0xFFFFFFFC}, {0x1000000, 0xFFFFFFFB, 0xFFFFFFFE, 0xFFFFFFFF}},
        {kPropBrushColor, {0xFFFFFFFB, 0xFFFFFFFD, 5}, {0xFFFFFFFF, 0xFFFFFFFE, 0x02000000}},
        {kPropPenStyle, {0, 1, 65533, 65534}, {65535, 65536, 0xFFFFFFFF}},
        {kPropBrushStyle, {0, 1, 300}, {65535, 0xFFFFFFFF}},
        {kPropBrushDrawMode, {1, 0}, {2, 0xFFFFFFFF}},
        {kPropScaleSystem, {0, 2}, {1, 3, 0xFF, 0xFFFF}},
        {kPropPenAlignment, {1, 0}, {2, 0xFFFFFFFF}},
        {kPropHatchCross, {1, 0}, {2}},
        {kPropLayer, {1, 500}, {0, 0xFFFF, 0x10001}},
        {kPropStyleTree, {0, 7}, {0xFFFF, 0xFFFFFFFF}}};
    for (const auto& row : kWhole) {
        for (const uint32_t value : row.valid) {
            EXPECT_TRUE(SetInteger(graphic, row.name, value)) << row.name << value;
            EXPECT_EQ(GetWhole(graphic, row.name), value) << row.name;
        }
        for (const uint32_t value : row.invalid) {
            EXPECT_FALSE(SetInteger(graphic, row.name, value)) << row.name << value;
            EXPECT_EQ(GetWhole(graphic, row.name), row.valid.back()) << row.name << " must keep its value";
        }
    }
    for (const char* name : {kPropPenWidth, kPropPenScale, kPropBrushScale, kPropBrushAngle}) {
        EXPECT_TRUE(SetReal(graphic, name, 0));
        EXPECT_TRUE(SetReal(graphic, name, 1e30)) << name;
        for (const double value : {HUGE_VAL, -HUGE_VAL, static_cast<double>(NAN)})
            EXPECT_FALSE(SetReal(graphic, name, value)) << name;
        EXPECT_EQ(SetReal(graphic, name, -1), !std::strcmp(name, kPropBrushAngle));
    }
}

TEST_F(ShapeProperties, AcceptOnlyLayersOfTheirDrawing) {
    OwnDrawing drawing;
    GraphicAttach(graphic, drawing);
    EXPECT_FALSE(SetInteger(graphic, kPropLayer, 2));
    const uint16_t id = TableEntryAdd(drawing.Table(kTableLayers), "Two", nullptr);
    EXPECT_TRUE(SetInteger(graphic, kPropLayer, id));
    GraphicAttach(graphic, nullptr);
}

TEST_F(ShapeProperties, ConvertIntegersOnlyIfTheyFit) {
    SetInteger(graphic, kPropPenColor, 0xFFFFFFFD);
    int32_t number;
    const char* name = kPropPenColor;
    const PropertyTable* table = GraphicGetVtbl(graphic);
    ASSERT_TRUE(table->PropLookup(graphic, &name, 1, 0, &number));
    int32_t asSigned = 0;
    EXPECT_TRUE(table->PropGet(graphic, number, VT_I4, &asSigned));
    EXPECT_EQ(asSigned, -3);
    uint16_t narrow = 5;
    EXPECT_FALSE(table->PropGet(graphic, number, VT_UI2, &narrow));
    EXPECT_FALSE(table->PropGet(graphic, number, VT_BOOL, &narrow));
    EXPECT_EQ(narrow, 5);
    SetReal(graphic, kPropPenWidth, DBL_MAX);
    name = kPropPenWidth;
    table->PropLookup(graphic, &name, 1, 0, &number);
    float single = 5;
    EXPECT_FALSE(table->PropGet(graphic, number, VT_R4, &single)) << "out of range for a float";
}

TEST_F(ShapeProperties, FreeTheTextThatAVariableContained) {
    LeakCheck balance;
    GraphicStruct* other = MakeSquare(0, 0, 1);
    SetText(graphic, kPropInfo, "one");
    SetText(other, kPropInfo, "");
    char* text = nullptr;
    for (GraphicStruct* each : {graphic, other, graphic, graphic}) {
        const std::string info = each == graphic ? "one" : "";
        const PropertyTable* table = GraphicGetVtbl(each);
        const char* name = kPropInfo;
        int32_t number;
        table->PropLookup(each, &name, 1, 0, &number);
        table->PropGet(each, number, VT_BSTR, &text);
        EXPECT_EQ(text, info);
    }
    BStringNULL(&text);
    EXPECT_EQ(text, nullptr);
    BStringNULL(&text); // harmless
    GraphicDispose(&other);
    EXPECT_TRUE(balance.HasNoLeaks());
}

// A host program's own property table, with one function that throws.
TEST_F(ShapeProperties, CanBeReplacedByTheHostProgram) {
    static const PropertyTable kTable = {
        nullptr, [](GraphicStruct*, const char* const*, int, int, int32_t* number) { return *number = 5; },
        [](GraphicStruct*, int32_t, int, void* value) { return *static_cast<int32_t*>(value) = 77; },
        [](GraphicStruct*, int32_t, int, const void*) -> int { throw std::runtime_error("full"); }};
    GraphicSetVtbl(graphic, &kTable);
    EXPECT_EQ(GetWhole(graphic, "Anything"), 77u);
    EXPECT_THROW(SetInteger(graphic, "Anything", 1), std::runtime_error);
    GraphicSetVtbl(graphic, nullptr);
    EXPECT_EQ(GraphicGetVtbl(graphic), nullptr);
}

} // namespace
