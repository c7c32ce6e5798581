// The property tables of all types of graphics, in the forms in which the library asks and sets.

#include <cstring>
#include <iterator>

#include "promise.h"

namespace {

enum Types { kShapes = 1, kTexts = 2, kInsertions = 4, kAll = 7 };

struct Type {
    int type;
    int bit;
};
constexpr Type kTypes[] = {
    {kGraphicVertices, kShapes}, {kGraphicText, kTexts}, {kGraphicInsert, kInsertions}};

// value: one that the graphic takes; of a text, "Arial".
struct Row {
    const char* name;
    int owners; // types whose preview shows it
    int asked, set, preview;
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

// One property of one graphic.
class Property {
public:
    Property(const Subject& s, GraphicStruct* graphic, const char* name)
        : subject_(s), graphic_(graphic), name_(name), table_(CALL(s.host, GraphicGetVtbl)(graphic)) {
        Expect(table_ && table_->PropLookup && table_->PropGet && table_->PropSet,
               "a graphic of type 0x%02X has no property table, or one without its slots", graphic->bType);
        has_ = table_->PropLookup(graphic, &name_, 1, 0, &number_) != 0;
    }

    explicit operator bool() const { return has_; }

    // The value in up to eight bytes.
    uint64_t Get(int vt) const {
        unsigned char bytes[16];
        std::memset(bytes, 0xAB, sizeof bytes);
        Expect(table_->PropGet(graphic_, number_, vt, bytes), "%s: PropGet gave 0 for type 0x%02X", name_,
               vt);
        for (size_t i = SizeOf(vt); i < sizeof bytes; ++i)
            Expect(bytes[i] == 0xAB, "%s: PropGet wrote more than %zu bytes for type 0x%02X", name_,
                   SizeOf(vt), vt);
        uint64_t value = 0;
        std::memcpy(&value, bytes, SizeOf(vt));
        return value;
    }
    bool Set(int vt, uint64_t value) const { return table_->PropSet(graphic_, number_, vt, &value) != 0; }

    std::string GetText() const {
        char* text = nullptr;
        for (int turn = 0; turn < 2; ++turn) // the second string replaces the first
            Expect(table_->PropGet(graphic_, number_, VT_BSTR, &text) && text, "%s: PropGet gave no text",
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
    if (row.asked == VT_R8)
        std::memcpy(&bits, &row.value, sizeof row.value);
    else
        bits = static_cast<uint32_t>(row.value);
    return bits;
}

// Calls visit(graphic's property, row) for each property that a graphic of each type has.
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

void HasWhatItsPagesShow(const Subject& s) {
    for (const Type& type : kTypes) {
        const auto graphic = s.NewGraphic(type.type);
        for (const Row& row : kProperties)
            Expect(!(row.owners & type.bit) || Property(s, graphic.get(), row.name),
                   "a graphic of type 0x%02X has no %s", type.type, row.name);
    }
}

void HasNoOther(const Subject& s) {
    for (const Type& type : kTypes)
        Expect(!Property(s, s.NewGraphic(type.type).get(), "NoSuchProperty"),
               "a graphic of type 0x%02X has a property NoSuchProperty", type.type);
}

void TakesWhatItGave(const Subject& s) {
    ForEachProperty(s, [](const Property& property, const Row& row) {
        if (row.asked == VT_BSTR) {
            const std::string text = property.GetText();
            Expect(property.SetText(text.c_str()), "%s: refuses \"%s\", which it gave", row.name,
                   text.c_str());
            return;
        }
        const uint64_t value = property.Get(row.asked);
        Expect(property.Set(row.set, value), "%s: refuses 0x%llX, which it gave", row.name, value);
        Expect(property.Get(row.asked) == value, "%s: gave 0x%llX, was set to that, and gives 0x%llX",
               row.name, value, property.Get(row.asked));
    });
}

void GivesWhatItTook(const Subject& s) {
    ForEachProperty(s, [](const Property& property, const Row& row) {
        if (row.asked == VT_BSTR) {
            char own[] = "Arial";
            Expect(property.SetText(own), "%s: refuses \"Arial\"", row.name);
            own[0] = 'x'; // the caller's text is the caller's
            Expect(property.GetText() == "Arial", "%s: took \"Arial\" and gives \"%s\"", row.name,
                   property.GetText().c_str());
            return;
        }
        const uint64_t value = BitsOf(row);
        Expect(property.Set(row.set, value), "%s: refuses 0x%llX as type 0x%02X", row.name, value, row.set);
        Expect(property.Get(row.asked) == value, "%s: took 0x%llX and gives 0x%llX", row.name, value,
               property.Get(row.asked));
    });
}

void TakesThePreviewsForm(const Subject& s) {
    ForEachProperty(s, [](const Property& property, const Row& row) {
        if (row.preview == row.set) return;
        const uint64_t value = BitsOf(row);
        Expect(property.Set(row.preview, value), "%s: refuses 0x%llX as type 0x%02X", row.name, value,
               row.preview);
        Expect(property.Get(row.asked) == value, "%s: took 0x%llX as type 0x%02X and gives 0x%llX", row.name,
               value, row.preview, property.Get(row.asked));
    });
}

void StaysItsOwn(const Subject& s) {
    const auto first = s.NewSquare(1), second = s.NewSquare(1);
    const Property one(s, first.get(), kPropPenWidth), other(s, second.get(), kPropPenWidth);
    const uint64_t before = other.Get(VT_R8);
    one.Set(VT_R8, BitsOf(kProperties[2]));
    Expect(other.Get(VT_R8) == before, "a width set for one graphic is the width of another");
}

void LeavesAloneWhatItRefuses(const Subject& s) {
    const auto text = s.NewGraphic(kGraphicText);
    const Property format(s, text.get(), kPropTextFormat);
    const uint64_t before = format.Get(VT_UI2);
    if (format.Set(VT_UI2, 777)) return; // a host may know more than the sheet
    Expect(format.Get(VT_UI2) == before, "refuses format 777, and the format is %llu", format.Get(VT_UI2));
}

constexpr Promise kRows[] = {
    {"GraphicGetVtbl", "gives tables that know what the pages show in their previews", HasWhatItsPagesShow},
    {"GraphicGetVtbl", "PropLookup gives 0 for a name that it does not know", HasNoOther},
    {"GraphicGetVtbl", "PropGet gives each property in the form that is asked for, PropSet takes it back",
     TakesWhatItGave},
    {"GraphicGetVtbl", "PropSet takes a value of each property, PropGet gives it again", GivesWhatItTook},
    {"GraphicGetVtbl", "PropSet takes the forms that previews use", TakesThePreviewsForm},
    {"GraphicGetVtbl", "PropSet changes the one graphic", StaysItsOwn},
    {"GraphicGetVtbl", "PropSet leaves alone what it refuses", LeavesAloneWhatItRefuses},
};

} // namespace

const Topic kPropertyPromises = TopicOf(kRows);
