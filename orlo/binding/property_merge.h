// Merges a named property of all graphics of a set into one value, or writes one value to all of them. Does not depend
// on pages or units: values are used as graphics store them.
//
//   double width;
//   if (Merge<Double>(set, "PenWidth", &width)) ...   // a graphic has it: the common value, or the marker
//   Write<Double>({set, &unchanged}, "PenWidth", 0.5);
#pragma once

#include <objidl.h>
#include <set>

#include "orlo/binding/fuzzy.h"
#include "orlo/binding/indeterminate.h"
#include "orlo/binding/object_set.h"
#include "orlo/host/owned_string.h"

namespace orlo::binding {

// A property of one graphic. The number may differ between graphics and is looked up for each.
struct Property {
    GraphicStruct* graphic;
    const PropertyTable* table;
    PropertyAccess* access; // null: the table
    int32_t number;

    bool Find(const char* name) {
        if (access != nullptr) return access->Find(graphic, name, number);
        table = ::GraphicGetVtbl(graphic);
        return table != nullptr && table->PropLookup(graphic, &name, 1, 0, &number) != 0;
    }
    void Get(int vt, void* value) const {
        if (access != nullptr)
            access->Get(graphic, number, vt, value);
        else
            table->PropGet(graphic, number, vt, value);
    }
    int Set(int vt, const void* value) const {
        return access != nullptr ? access->Set(graphic, number, vt, value) : table->PropSet(graphic, number, vt, value);
    }
};

// Calls visit(Property) for each graphic of the set that has the property, until it returns false.
template <class Visit>
bool ForEachProperty(const ObjectSet& set, const char* name, Visit visit) {
    bool found = false;
    uint32_t position = 0;
    for (GraphicStruct* graphic = set.First(&position); graphic != nullptr; graphic = set.Next(&position)) {
        Property property = {graphic, nullptr, set.Access(), 0};
        if (!property.Find(name)) continue;
        found = true;
        if (!visit(property)) break;
    }
    return found;
}

// Traits of a member type: its value type, the variable that PropGet fills, and the comparison of values.
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

// The set to write to, and the graphics that rejected or accepted the value.
struct WriteTarget {
    ObjectSet set;
    std::set<const GraphicStruct*>* unchanged;         // may be null
    std::set<const GraphicStruct*>* changed = nullptr; // receives those that accepted a value; may be null
};

// Called after the graphic that follows `last` (or the first one if last is null) has thrown an exception. Records that
// graphic and all following ones as unchanged.
inline void AddRest(const WriteTarget& target, const char* name, const GraphicStruct* last) {
    bool after = last == nullptr;
    ForEachProperty(target.set, name, [&](const Property& property) {
        if (after) target.unchanged->insert(property.graphic);
        after = after || property.graphic == last;
        return true;
    });
}

// Calls write(Property), which returns the result of PropSet, for each graphic of the set that has the property.
template <class WriteOne>
int WriteEach(const WriteTarget& target, const char* name, WriteOne write) {
    const GraphicStruct* last = nullptr;
    try {
        return ForEachProperty(target.set, name, [&](const Property& property) {
            auto* const outcome = write(property) ? target.changed : target.unchanged;
            if (outcome != nullptr) outcome->insert(property.graphic);
            last = property.graphic;
            return true;
        });
    } catch (...) {
        if (target.unchanged != nullptr) AddRest(target, name, last);
        throw;
    }
}

template <class Type>
int Write(const WriteTarget& target, const char* name, const typename Type::Member& value) {
    if (IsIndeterminate(value)) return 0;
    return WriteEach(target, name, [&](const Property& property) { return property.Set(Type::vt, &value); });
}

// Multibyte strings are equal exactly if their bytes are, so comparing bytes is enough. The loop is faster than the
// runtime's comparison, which is a call to another DLL per graphic; measured by bench merge_text.
inline bool TextsDiffer(const char* a, const char* b) {
    while (*a == *b) {
        if (*a == '\0') return false;
        ++a;
        ++b;
    }
    return true;
}

inline int MergeText(const ObjectSet& set, const char* name, CString* member) {
    host::String string;
    const char* merged = nullptr; // the text of *member
    return ForEachProperty(set, name, [&](const Property& property) {
        property.Get(VT_BSTR, string.Variable());
        if (merged == nullptr) {
            *member = string.OrEmpty();
            merged = *member;
            return true;
        }
        if (!TextsDiffer(merged, string.OrEmpty())) return true;
        *member = Indeterminate<CString>::Value();
        return false;
    });
}

inline int WriteText(const WriteTarget& target, const char* name, const CString& value) {
    if (IsIndeterminate(value)) return 0;
    const char* text = value;
    return WriteEach(target, name, [text](const Property& property) { return property.Set(VT_BSTR, text); });
}

// Writes any value below 1 as 0, and nothing for values above 1.
inline int WriteCheck(const WriteTarget& target, const char* name, int value) {
    if (value > 1) return 0;
    const int checked = value == 1;
    return WriteEach(target, name, [&](const Property& property) { return property.Set(VT_BOOL, &checked); });
}

// Stores in pair a mask of the bits in which graphics differ, and the bits of the first graphic. Visits all graphics,
// because each may add bits to the mask.
inline int MergeBits(const ObjectSet& set, const char* name, unsigned short* pair) {
    unsigned short mask = 0, base = 0;
    bool first = true;
    const int found = ForEachProperty(set, name, [&](const Property& property) {
        unsigned short value = 0;
        property.Get(VT_UI2, &value);
        if (first) base = value;
        first = false;
        mask |= value ^ base;
        return true;
    });
    pair[0] = mask;
    pair[1] = base;
    return found;
}

// Bits set in the mask keep their state in each graphic.
inline int WriteBits(const WriteTarget& target, const char* name, const unsigned short* pair) {
    const unsigned short mask = pair[0], bits = pair[1];
    return WriteEach(target, name, [&](const Property& property) {
        unsigned short own = 0;
        if (mask != 0) property.Get(VT_UI2, &own);
        const auto value = static_cast<unsigned short>((bits & ~mask) | (own & mask));
        return property.Set(VT_UI2, &value);
    });
}

} // namespace orlo::binding
