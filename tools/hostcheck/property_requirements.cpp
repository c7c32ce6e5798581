// Requirements of property tables, for all types of graphics and with the value types that the library uses.

#include <algorithm>
#include <cstring>

#include "requirement.h"

namespace {

struct Type {
    int type;
    int bit; // of PropertyInfo::owners
};
constexpr Type kTypes[] = {{kGraphicVertices, kOfShapes}, {kGraphicText, kOfTexts}, {kGraphicInsert, kOfInserts}};

// Returns whether graphics of the type must have the property for their preview.
bool IsInPreview(const PropertyInfo& property, const Type& type) {
    return property.part != PropertyPart::General && type.bit != kOfInserts && (property.owners & type.bit);
}

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
        return vt == VT_BOOL ? value != 0 : value; // 1 and VARIANT_TRUE mean the same
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

// Returns a value that every graphic accepts.
double ValueOf(const PropertyInfo& property) {
    switch (property.meaning) {
    case PropertyMeaning::Color:
        return property.part == PropertyPart::Brush ? kColorOfPen : 0x123456;
    case PropertyMeaning::LineStyle:
        return kLineStyleByBlock;
    case PropertyMeaning::Block:
        return 0;
    case PropertyMeaning::ScaleSystem:
        return kScaleWorld;
    case PropertyMeaning::TextStyle:
        return kTextItalic | kTextBold;
    case PropertyMeaning::Width:
        return 0.0625;
    case PropertyMeaning::Length:
        return 7.5;
    default:
        return property.IsReal() ? 0.5 : 1;
    }
}

int TypeOf(const PropertyInfo& property) {
    return static_cast<int>(property.type);
}

uint64_t BitsOf(const PropertyInfo& property) {
    const double value = ValueOf(property);
    if (!property.IsReal()) return static_cast<uint32_t>(value);
    uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof value);
    return bits;
}

// Calls visit(graphic, type) for a new graphic of each type that the database has. Reports the violations of all types.
template <class Visit>
void ForEachType(const Subject& s, Visit visit) {
    Violations violations;
    for (const Type& type : kTypes)
        violations.Collect([&] {
            const auto graphic = s.NewGraphic(type.type);
            CALL(s.host, GraphicAttach)(graphic.get(), s.Drawing());
            visit(graphic.get(), type);
        });
    violations.Report();
}

// Calls visit(property, info) for all properties of a graphic of each type, and reports the violations of all of them.
template <class Visit>
void ForEachProperty(const Subject& s, Visit visit) {
    ForEachType(s, [&](GraphicStruct* graphic, const Type&) {
        Violations violations;
        for (const PropertyInfo& info : kPropertyList)
            violations.Collect([&] {
                const Property property(s, graphic, info.name);
                if (property) visit(property, info);
            });
        violations.Report();
    });
}

void HasThePropertiesOfPreviews(const Subject& s) {
    ForEachType(s, [&](GraphicStruct* graphic, const Type& type) {
        for (const PropertyInfo& info : kPropertyList)
            Require(!IsInPreview(info, type) || Property(s, graphic, info.name), "a graphic of type 0x%02X has no %s",
                    type.type, info.name);
    });
}

// A page of the host can have a property whose name differs from one of these only in case.
void DistinguishesCase(const Subject& s) {
    ForEachType(s, [&](GraphicStruct* graphic, const Type&) {
        for (const PropertyInfo& info : kPropertyList) {
            std::string name = info.name;
            for (char& letter : name)
                letter ^= 0x20;
            Require(!Property(s, graphic, name.c_str()), "PropLookup found \"%s\"", name.c_str());
        }
    });
}

bool IsLineStyleMarker(uint64_t value) {
    return value == kLineStyleNone || value == kLineStyleByLayer || value == kLineStyleByBlock;
}

bool IsEntry(const Subject& s, const char* table, uint64_t value) {
    const auto entries = s.Entries(s.Table(table));
    return std::find(entries.begin(), entries.end(), value) != entries.end();
}

bool IsColor(uint64_t value) {
    return value <= 0xFFFFFF || value == kColorByLayer || value == kColorByBlock;
}

// Returns whether a value is one that the page of the property can show.
bool IsMeaningful(const Subject& s, const PropertyInfo& info, uint64_t value) {
    switch (info.meaning) {
    case PropertyMeaning::Layer:
        return IsEntry(s, kTableLayers, value);
    case PropertyMeaning::LineStyle:
        return IsLineStyleMarker(value) || IsEntry(s, kTableLineStyles, value);
    case PropertyMeaning::BrushStyle:
        return value == kBrushStyleNone || IsEntry(s, kTableBrushStyles, value);
    case PropertyMeaning::Block:
        return value == 0 || IsEntry(s, kTableBlocks, value);
    case PropertyMeaning::Color:
        return IsColor(value) || (value == kColorOfPen && info.part == PropertyPart::Brush);
    case PropertyMeaning::ScaleSystem:
        return value == kScaleWorld || value == kScalePaper;
    default:
        return info.IsReal() || (value >= info.low && value <= info.high);
    }
}

void HasMeaningfulDefaults(const Subject& s) {
    ForEachProperty(s, [&](const Property& property, const PropertyInfo& info) {
        if (info.IsText()) return;
        const uint64_t value = property.Get(TypeOf(info));
        Require(IsMeaningful(s, info, value), "%s of a new graphic is %llu, which its page cannot show", info.name,
                value);
    });
}

void RejectsUnknownNames(const Subject& s) {
    for (const Type& type : kTypes)
        Require(!Property(s, s.NewGraphic(type.type).get(), "NoSuchProperty"),
                "a graphic of type 0x%02X has an unknown property", type.type);
}

void AcceptsReturnedValues(const Subject& s) {
    ForEachProperty(s, [](const Property& property, const PropertyInfo& info) {
        if (info.IsText()) {
            const std::string text = property.GetText();
            Require(property.SetText(text.c_str()), "%s: PropSet rejects \"%s\", which PropGet returned", info.name,
                    text.c_str());
            return;
        }
        const uint64_t value = property.Get(TypeOf(info));
        Require(property.Set(TypeOf(info), value), "%s: PropSet rejects 0x%llX, which PropGet returned", info.name,
                value);
        Require(property.Get(TypeOf(info)) == value, "%s: PropSet of the returned value 0x%llX changed it to 0x%llX",
                info.name, value, property.Get(TypeOf(info)));
    });
}

void ReturnsSetValues(const Subject& s) {
    ForEachProperty(s, [](const Property& property, const PropertyInfo& info) {
        if (info.IsText()) {
            char own[] = "Arial";
            Require(property.SetText(own), "%s: PropSet rejects \"Arial\"", info.name);
            own[0] = 'x'; // the database must have copied the text
            Require(property.GetText() == "Arial", "%s: set to \"Arial\", but PropGet returns \"%s\"", info.name,
                    property.GetText().c_str());
            return;
        }
        const uint64_t value = BitsOf(info);
        Require(property.Set(TypeOf(info), value), "%s: PropSet rejects 0x%llX as type 0x%02X", info.name, value,
                TypeOf(info));
        Require(property.Get(TypeOf(info)) == value, "%s: set to 0x%llX, but PropGet returns 0x%llX", info.name, value,
                property.Get(TypeOf(info)));
    });
}

// The preview of the Pen page sets the scale system as a byte.
void AcceptsPreviewTypes(const Subject& s) {
    ForEachProperty(s, [](const Property& property, const PropertyInfo& info) {
        if (info.meaning != PropertyMeaning::ScaleSystem) return;
        const uint64_t value = BitsOf(info);
        Require(property.Set(VT_UI1, value), "%s: PropSet rejects 0x%llX as type 0x%02X", info.name, value, VT_UI1);
        Require(property.Get(TypeOf(info)) == value, "%s: set to 0x%llX as type 0x%02X, but PropGet returns 0x%llX",
                info.name, value, VT_UI1, property.Get(TypeOf(info)));
    });
}

void ChangesOneGraphic(const Subject& s) {
    const auto first = s.NewSquare(1), second = s.NewSquare(1);
    const Property one(s, first.get(), kPropPenWidth), other(s, second.get(), kPropPenWidth);
    const uint64_t before = other.Get(VT_R8);
    one.Set(VT_R8, BitsOf(*FindPropertyInfo(kPropPenWidth)));
    Require(other.Get(VT_R8) == before, "setting the width of one graphic changed another one");
}

void KeepsRejectedProperties(const Subject& s) {
    const auto text = s.NewGraphic(kGraphicText);
    const Property format(s, text.get(), kPropTextFormat);
    const uint64_t before = format.Get(VT_UI2);
    if (format.Set(VT_UI2, 777)) return; // a host may support more formats than the sheet
    Require(format.Get(VT_UI2) == before, "rejected format 777, but changed the format to %llu", format.Get(VT_UI2));
}

constexpr Requirement kRows[] = {
    {"GraphicGetVtbl", "returns a table with the properties that previews need", HasThePropertiesOfPreviews},
    {"GraphicGetVtbl", "PropLookup returns 0 for an unknown name", RejectsUnknownNames},
    {"GraphicGetVtbl", "PropLookup is case-sensitive", DistinguishesCase},
    {"GraphicGetVtbl", "PropGet returns a layer, styles and colors that exist for a new graphic",
     HasMeaningfulDefaults},
    {"GraphicGetVtbl", "PropSet accepts each value that PropGet returns", AcceptsReturnedValues},
    {"GraphicGetVtbl", "PropGet returns each value that PropSet has set", ReturnsSetValues},
    {"GraphicGetVtbl", "PropSet accepts the value types of previews", AcceptsPreviewTypes},
    {"GraphicGetVtbl", "PropSet changes only one graphic", ChangesOneGraphic},
    {"GraphicGetVtbl", "PropSet does not change a value that it rejects", KeepsRejectedProperties},
};

} // namespace

const Topic kPropertyRequirements = TopicOf(kRows);
