// Requirements of property tables, for all types of graphics and with the value types that the library uses.

#include <cstring>
#include <iterator>

#include "requirement.h"

namespace {

enum Types { kShapes = 1, kTexts = 2, kInsertions = 4, kAll = 7 };

struct Type {
    int type;
    int bit;
};
constexpr Type kTypes[] = {{kGraphicVertices, kShapes}, {kGraphicText, kTexts}, {kGraphicInsert, kInsertions}};

// value: a value that every graphic accepts; for VT_BSTR it is "Arial".
struct Row {
    const char* name;
    int owners;            // types of graphics that must have the property for their preview
    int get, set, preview; // value types of PropGet, and of PropSet for selected graphics and for previews
    double value;
};
constexpr Row kProperties[] = {
    {kPropInfo, 0, VT_BSTR, VT_BSTR, VT_BSTR, 0},
    {kPropPenColor, kShapes | kTexts, VT_UI4, VT_UI4, VT_UI4, 0x123456},
    {kPropPenWidth, kShapes, VT_R8, VT_R8, VT_R8, 0.0625},
    {kPropPenScale, kShapes, VT_R8, VT_R8, VT_R8, 2.5},
    {kPropPenStyle, kShapes, VT_UI4, VT_UI4, VT_UI4, kLineStyleByBlock},
    {kPropPenAlignment, kShapes, VT_BOOL, VT_BOOL, VT_BOOL, 1},
    {kPropScaleSystem, kShapes, VT_UI2, VT_UI2, VT_UI1, kScaleWorld},
    {kPropBrushColor, kShapes, VT_UI4, VT_UI4, VT_UI4, kColorOfPen},
    {kPropBrushAngle, kShapes, VT_R8, VT_R8, VT_R8, 0.5},
    {kPropBrushScale, kShapes, VT_R8, VT_R8, VT_R8, 2.5},
    {kPropBrushStyle, kShapes, VT_UI4, VT_UI4, VT_UI4, 1},
    {kPropHatchCross, kShapes, VT_BOOL, VT_BOOL, VT_BOOL, 1},
    {kPropBrushDrawMode, kShapes, VT_I4, VT_I4, VT_I4, 1},
    {kPropTextFont, kTexts, VT_BSTR, VT_BSTR, VT_BSTR, 0},
    {kPropTextSize, kTexts, VT_R8, VT_R8, VT_R8, 7.5},
    {kPropTextStyle, kTexts, VT_UI2, VT_UI2, VT_UI2, 3},
    {kPropTextFormat, kTexts, VT_UI2, VT_UI2, VT_UI2, 1},
    {kPropLayer, 0, VT_UI4, VT_UI4, VT_UI4, 1},
    {kPropStyleTree, 0, VT_UI4, VT_UI4, VT_UI4, 0},
};

// One property of one graphic. Throws Violation if the property table is incomplete.
class Property {
public:
    Property(const Subject& s, GraphicStruct* graphic, const char* name)
        : subject_(s), graphic_(graphic), name_(name), table_(CALL(s.host, GraphicGetVtbl)(graphic)) {
        Require(table_ && table_->PropLookup && table_->PropGet && table_->PropSet,
                "a graphic of type 0x%02X has no property table or an incomplete one", graphic->bType);
        has_ = table_->PropLookup(graphic, &name_, 1, 0, &number_) != 0;
    }

    explicit operator bool() const { return has_; }

    // Returns the value in the low bytes.
    uint64_t Get(int vt) const {
        unsigned char bytes[16];
        std::memset(bytes, 0xAB, sizeof bytes);
        Require(table_->PropGet(graphic_, number_, vt, bytes), "%s: PropGet returned 0 for type 0x%02X", name_, vt);
        for (size_t i = SizeOf(vt); i < sizeof bytes; ++i)
            Require(bytes[i] == 0xAB, "%s: PropGet wrote more than %zu bytes for type 0x%02X", name_, SizeOf(vt), vt);
        uint64_t value = 0;
        std::memcpy(&value, bytes, SizeOf(vt));
        return value;
    }
    bool Set(int vt, uint64_t value) const { return table_->PropSet(graphic_, number_, vt, &value) != 0; }

    std::string GetText() const {
        char* text = nullptr;
        for (int pass = 0; pass < 2; ++pass) // the second string must replace the first one
            Require(table_->PropGet(graphic_, number_, VT_BSTR, &text) && text, "%s: PropGet returned no string",
                    name_);
        const std::string copy = text;
        CALL(subject_.host, BStringNULL)(&text);
        return copy;
    }
    bool SetText(const char* text) const { return table_->PropSet(graphic_, number_, VT_BSTR, text) != 0; }

private:
    static size_t SizeOf(int vt) {
        switch (vt) {
        case VT_R8:
            return 8;
        case VT_UI1:
            return 1;
        case VT_UI2:
        case VT_BOOL:
            return 2;
        default:
            return 4;
        }
    }

    const Subject& subject_;
    GraphicStruct* graphic_;
    const char* name_;
    const PropertyTable* table_;
    int32_t number_ = -1;
    bool has_;
};

uint64_t BitsOf(const Row& row) {
    uint64_t bits = 0;
    if (row.get == VT_R8)
        std::memcpy(&bits, &row.value, sizeof row.value);
    else
        bits = static_cast<uint32_t>(row.value);
    return bits;
}

// Calls visit(property, row) for all properties of a graphic of each type.
template <class Visit>
void ForEachProperty(const Subject& s, Visit visit) {
    for (const Type& type : kTypes) {
        const auto graphic = s.NewGraphic(type.type);
        CALL(s.host, GraphicAttach)(graphic.get(), s.drawing);
        for (const Row& row : kProperties) {
            const Property property(s, graphic.get(), row.name);
            if (property) visit(property, row);
        }
    }
}

void HasThePropertiesOfPreviews(const Subject& s) {
    for (const Type& type : kTypes) {
        const auto graphic = s.NewGraphic(type.type);
        for (const Row& row : kProperties)
            Require(!(row.owners & type.bit) || Property(s, graphic.get(), row.name),
                    "a graphic of type 0x%02X has no %s", type.type, row.name);
    }
}

void RejectsUnknownNames(const Subject& s) {
    for (const Type& type : kTypes)
        Require(!Property(s, s.NewGraphic(type.type).get(), "NoSuchProperty"),
                "a graphic of type 0x%02X has an unknown property", type.type);
}

void AcceptsReturnedValues(const Subject& s) {
    ForEachProperty(s, [](const Property& property, const Row& row) {
        if (row.get == VT_BSTR) {
            const std::string text = property.GetText();
            Require(property.SetText(text.c_str()), "%s: PropSet rejects \"%s\", which PropGet returned", row.name,
                    text.c_str());
            return;
        }
        const uint64_t value = property.Get(row.get);
        Require(property.Set(row.set, value), "%s: PropSet rejects 0x%llX, which PropGet returned", row.name, value);
        Require(property.Get(row.get) == value, "%s: PropSet of the returned value 0x%llX changed it to 0x%llX",
                row.name, value, property.Get(row.get));
    });
}

void ReturnsSetValues(const Subject& s) {
    ForEachProperty(s, [](const Property& property, const Row& row) {
        if (row.get == VT_BSTR) {
            char own[] = "Arial";
            Require(property.SetText(own), "%s: PropSet rejects \"Arial\"", row.name);
            own[0] = 'x'; // the database must have copied the text
            Require(property.GetText() == "Arial", "%s: set to \"Arial\", but PropGet returns \"%s\"", row.name,
                    property.GetText().c_str());
            return;
        }
        const uint64_t value = BitsOf(row);
        Require(property.Set(row.set, value), "%s: PropSet rejects 0x%llX as type 0x%02X", row.name, value, row.set);
        Require(property.Get(row.get) == value, "%s: set to 0x%llX, but PropGet returns 0x%llX", row.name, value,
                property.Get(row.get));
    });
}

void AcceptsPreviewTypes(const Subject& s) {
    ForEachProperty(s, [](const Property& property, const Row& row) {
        if (row.preview == row.set) return;
        const uint64_t value = BitsOf(row);
        Require(property.Set(row.preview, value), "%s: PropSet rejects 0x%llX as type 0x%02X", row.name, value,
                row.preview);
        Require(property.Get(row.get) == value, "%s: set to 0x%llX as type 0x%02X, but PropGet returns 0x%llX",
                row.name, value, row.preview, property.Get(row.get));
    });
}

void ChangesOneGraphic(const Subject& s) {
    const auto first = s.NewSquare(1), second = s.NewSquare(1);
    const Property one(s, first.get(), kPropPenWidth), other(s, second.get(), kPropPenWidth);
    const uint64_t before = other.Get(VT_R8);
    one.Set(VT_R8, BitsOf(kProperties[2]));
    Require(other.Get(VT_R8) == before, "setting the width of one graphic changed another one");
}

void KeepsRejectedProperties(const Subject& s) {
    const auto text = s.NewGraphic(kGraphicText);
    const Property format(s, text.get(), kPropTextFormat);
    const uint64_t before = format.Get(VT_UI2);
    if (format.Set(VT_UI2, 777)) return; // a host may support more formats than the sheet
    Require(format.Get(VT_UI2) == before, "rejects format 777, but has changed the format to %llu", format.Get(VT_UI2));
}

constexpr Requirement kRows[] = {
    {"GraphicGetVtbl", "returns a table with the properties that previews need", HasThePropertiesOfPreviews},
    {"GraphicGetVtbl", "PropLookup returns 0 for an unknown name", RejectsUnknownNames},
    {"GraphicGetVtbl", "PropSet accepts each value that PropGet returns", AcceptsReturnedValues},
    {"GraphicGetVtbl", "PropGet returns each value that PropSet has set", ReturnsSetValues},
    {"GraphicGetVtbl", "PropSet accepts the value types of previews", AcceptsPreviewTypes},
    {"GraphicGetVtbl", "PropSet changes one graphic only", ChangesOneGraphic},
    {"GraphicGetVtbl", "PropSet does not change a value that it rejects", KeepsRejectedProperties},
};

} // namespace

const Topic kPropertyRequirements = TopicOf(kRows);
