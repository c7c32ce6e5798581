// The property family of CGraphicPropertyPage: named properties of all graphics of a set, merged into one value or written
// from one. Knows neither controls nor units: values move as the graphics store them.

#include "orlo/binding/fuzzy.h"
#include "orlo/binding/indeterminate.h"
#include "orlo/binding/object_set.h"
#include "orlo/binding/write_outcome.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/memory.h"

#include <oaidl.h>

namespace {

// One property of one graphic. The number is the graphic's own, so it is looked up for each.
struct Property {
    GraphicStruct* graphic;
    const PropertyTable* table;
    int32_t number;

    void Get(int vt, void* value) const { table->PropGet(graphic, number, vt, value); }
    int Set(int vt, const void* value) const { return table->PropSet(graphic, number, vt, value); }
};

// Calls visit(Property) for each graphic of the set that has the property, until it gives false.
template <class Visit>
bool ForEachProperty(const ObjectSet& set, const char* name, Visit visit) {
    bool found = false;
    uint32_t position = 0;
    for (GraphicStruct* graphic = set.First(&position); graphic != nullptr; graphic = set.Next(&position)) {
        Property property = {graphic, ::GraphicGetVtbl(graphic), 0};
        if (property.table == nullptr || !property.table->PropLookup(graphic, &name, 1, 0, &property.number)) continue;
        found = true;
        if (!visit(property)) break;
    }
    return found;
}

// How a member's type travels: its value type, the variable that PropGet fills, and when two values differ.
template <class T, int Vt>
struct Plain {
    using Member = T;
    using Wire = T;
    static constexpr int vt = Vt;
    static T FromWire(T value) { return value; }
    static bool Differ(T a, T b) { return a != b; }
    static T Marker() { return Indeterminate<T>::Value(); }
};

struct Float : Plain<float, VT_R4> {
    static bool Differ(float a, float b) { return a != b && CompareFloats(&a, &b) != 0; }
};

struct Double : Plain<double, VT_R8> {
    static bool Differ(double a, double b) { return a != b && CompareDoubles(&a, &b) != 0; }
};

struct Check : Plain<int, VT_BOOL> {
    using Wire = VARIANT_BOOL;
    static int FromWire(VARIANT_BOOL value) { return value != 0; }
    static int Marker() { return kIndeterminateCheck; }
};

template <class Type>
int Merge(const ObjectSet& set, const char* name, typename Type::Member* member) {
    bool first = true;
    return ForEachProperty(set, name, [&](const Property& property) {
        typename Type::Wire wire{};
        property.Get(Type::vt, &wire);
        const auto value = Type::FromWire(wire);
        if (first) {
            *member = value;
            first = false;
            return true;
        }
        if (!Type::Differ(*member, value)) return true;
        *member = Type::Marker();
        return false;
    });
}

// The set that a write goes to, and who wants to know what of it the host did not take.
struct WriteTarget {
    WriteTarget(CGraphicPropertySheet* sheet, int bPreview, WriteOutcome* selectionOutcome)
        : set(sheet, bPreview), outcome(bPreview ? nullptr : selectionOutcome) {}

    ObjectSet set;
    WriteOutcome* outcome; // null: nobody
};

// After a write that threw at the graphic behind last (null: at the first): that one and all further ones are unchanged.
void AddRest(const WriteTarget& target, const char* name, const GraphicStruct* last) {
    bool behind = last == nullptr;
    ForEachProperty(target.set, name, [&](const Property& property) {
        if (behind) target.outcome->AddUnchanged(property.graphic);
        behind = behind || property.graphic == last;
        return true;
    });
}

// write(Property) gives what PropSet gave.
template <class WriteOne>
int WriteEach(const WriteTarget& target, const char* name, WriteOne write) {
    const GraphicStruct* last = nullptr;
    try {
        return ForEachProperty(target.set, name, [&](const Property& property) {
            if (!write(property) && target.outcome != nullptr) target.outcome->AddUnchanged(property.graphic);
            last = property.graphic;
            return true;
        });
    } catch (...) {
        if (target.outcome != nullptr) AddRest(target, name, last);
        throw;
    }
}

template <class Type>
int Write(const WriteTarget& target, const char* name, const typename Type::Member& value) {
    if (IsIndeterminate(value)) return 0;
    return WriteEach(target, name, [&](const Property& property) { return property.Set(Type::vt, &value); });
}

// A string of the host's, given back at the end of the walk whatever ends it.
struct HostString {
    char* text = nullptr;

    HostString() = default;
    ~HostString() { ::BStringNULL(&text); }
    HostString(const HostString&) = delete;
    HostString& operator=(const HostString&) = delete;

    const char* get() const { return text != nullptr ? text : ""; }
};

// Whether two multibyte texts are equal is the same for characters and for bytes. A loop of our own, since the runtime's
// comparison is a call across libraries for each graphic: bench merge_text.
bool TextsDiffer(const char* a, const char* b) {
    while (*a == *b) {
        if (*a == '\0') return false;
        ++a;
        ++b;
    }
    return true;
}

} // namespace

void* CGraphicPropertyPage::GetFirstObject(void* pPos, int bPreview) { return ObjectSet(GetSheet(), bPreview).First(pPos); }

void* CGraphicPropertyPage::GetNextObject(void* pPos, int bPreview) { return ObjectSet(GetSheet(), bPreview).Next(pPos); }

// The overloads of one name differ in their types alone.
#define ORLO_PROPERTY_ACCESS(suffix, Member, Type)                                                                     \
    int CGraphicPropertyPage::GetProp##suffix(const char* pszPropName, Member* pValue, int bPreview) {                \
        return Merge<Type>(ObjectSet(GetSheet(), bPreview), pszPropName, pValue);                                     \
    }

#define ORLO_TEXT_ACCESS(Member, Type)                                                                       \
    ORLO_PROPERTY_ACCESS(Text, Member, Type)                                                                 \
    int CGraphicPropertyPage::SetPropText(const char* pszPropName, Member& value, int bPreview) {            \
        return Write<Type>(WriteTarget(GetSheet(), bPreview, m_pOutcome), pszPropName, value);               \
    }

using UI1 = Plain<unsigned char, VT_UI1>;
using UI2 = Plain<unsigned short, VT_UI2>;
using I4 = Plain<int, VT_I4>;
using UI4 = Plain<unsigned int, VT_UI4>;
using I4Long = Plain<long, VT_I4>;
using UI4Long = Plain<unsigned long, VT_UI4>;

ORLO_TEXT_ACCESS(unsigned char, UI1)
ORLO_TEXT_ACCESS(unsigned short, UI2)
ORLO_TEXT_ACCESS(int, I4)
ORLO_TEXT_ACCESS(unsigned int, UI4)
ORLO_TEXT_ACCESS(long, I4Long)
ORLO_TEXT_ACCESS(unsigned long, UI4Long)
ORLO_TEXT_ACCESS(float, Float)
ORLO_TEXT_ACCESS(double, Double)
ORLO_PROPERTY_ACCESS(Check, int, Check)
ORLO_PROPERTY_ACCESS(Check, unsigned short, UI2)
ORLO_PROPERTY_ACCESS(Radio, int, I4)
ORLO_PROPERTY_ACCESS(Radio, unsigned short, UI2)

#undef ORLO_TEXT_ACCESS
#undef ORLO_PROPERTY_ACCESS

int CGraphicPropertyPage::GetPropText(const char* pszPropName, CString* pValue, int bPreview) {
    HostString string;
    const char* merged = nullptr; // the text of *pValue
    return ForEachProperty(ObjectSet(GetSheet(), bPreview), pszPropName, [&](const Property& property) {
        property.Get(VT_BSTR, &string.text);
        if (merged == nullptr) {
            *pValue = string.get();
            merged = *pValue;
            return true;
        }
        if (!TextsDiffer(merged, string.get())) return true;
        *pValue = Indeterminate<CString>::Value();
        return false;
    });
}

int CGraphicPropertyPage::SetPropText(const char* pszPropName, CString& value, int bPreview) {
    if (IsIndeterminate(value)) return 0;
    const char* text = value;
    return WriteEach(WriteTarget(GetSheet(), bPreview, m_pOutcome), pszPropName,
                     [text](const Property& property) { return property.Set(VT_BSTR, text); });
}

int CGraphicPropertyPage::SetPropCheck(const char* pszPropName, int value, int bPreview) {
    if (value > 1) return 0;
    const int checked = value == 1;
    return WriteEach(WriteTarget(GetSheet(), bPreview, m_pOutcome), pszPropName,
                     [&](const Property& property) { return property.Set(VT_BOOL, &checked); });
}

int CGraphicPropertyPage::SetPropCheck(const char* pszPropName, unsigned short value, int bPreview) {
    return Write<UI2>(WriteTarget(GetSheet(), bPreview, m_pOutcome), pszPropName, value);
}

int CGraphicPropertyPage::SetPropRadio(const char* pszPropName, int value, int bPreview) {
    return Write<I4>(WriteTarget(GetSheet(), bPreview, m_pOutcome), pszPropName, value);
}

int CGraphicPropertyPage::SetPropRadio(const char* pszPropName, unsigned short value, int bPreview) {
    return Write<UI2>(WriteTarget(GetSheet(), bPreview, m_pOutcome), pszPropName, value);
}

int CGraphicPropertyPage::GetPropIndex(const char* pszPropName, int* pValue, int bPreview) {
    return GetPropRadio(pszPropName, pValue, bPreview);
}

int CGraphicPropertyPage::SetPropIndex(const char* pszPropName, int value, int bPreview) {
    return SetPropRadio(pszPropName, value, bPreview);
}

// No early end here: each further graphic can add bits to the mask.
int CGraphicPropertyPage::GetPropBits(const char* pszPropName, unsigned short* pPair, int bPreview) {
    unsigned short mask = 0, base = 0;
    bool first = true;
    const int found = ForEachProperty(ObjectSet(GetSheet(), bPreview), pszPropName, [&](const Property& property) {
        unsigned short value = 0;
        property.Get(VT_UI2, &value);
        if (first) base = value;
        first = false;
        mask |= value ^ base;
        return true;
    });
    pPair[0] = mask;
    pPair[1] = base;
    return found;
}

int CGraphicPropertyPage::SetPropBits(const char* pszPropName, unsigned short* pPair, int bPreview) {
    const unsigned short mask = pPair[0], bits = pPair[1];
    return WriteEach(
        WriteTarget(GetSheet(), bPreview, m_pOutcome), pszPropName, [&](const Property& property) {
            unsigned short own = 0;
            if (mask != 0) property.Get(VT_UI2, &own);
            const unsigned short value = static_cast<unsigned short>((bits & ~mask) | (own & mask));
            return property.Set(VT_UI2, &value);
        });
}
