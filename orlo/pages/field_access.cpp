// Accesses the values of rows, and converts them to and from property values.

#include "orlo/pages/field_access.h"

#include <objidl.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "orlo/host/graphic.h"
#include "orlo/host/memory.h"
#include "orlo/pages/field_kinds.h"

namespace {

template <class Wire>
void Store(void* place, double number) {
    const auto wire = static_cast<Wire>(number);
    std::memcpy(place, &wire, sizeof wire);
}

template <class Wire>
double Read(const void* place) {
    Wire wire;
    std::memcpy(&wire, place, sizeof wire);
    return static_cast<double>(wire);
}

void StoreText(void* variable, const std::string& text) {
    auto* string = static_cast<char**>(variable);
    ::BStringNULL(string);
    *string = static_cast<char*>(::DrawCoreNew(text.size() + 1));
    if (*string != nullptr) std::memcpy(*string, text.c_str(), text.size() + 1);
}

// Stores a value like PropGet.
void StoreValue(int vt, void* place, const FieldValue& value) {
    switch (vt) {
    case VT_BSTR:
        return StoreText(place, value.text);
    case VT_R8:
        return Store<double>(place, value.number);
    case VT_UI4:
        return Store<uint32_t>(place, value.number);
    case VT_BOOL:
        return Store<uint16_t>(place, value.number != 0.0);
    default:
        return Store<int32_t>(place, value.number);
    }
}

template <class Wire>
bool IsWhole(double number) {
    using Limits = std::numeric_limits<Wire>;
    return number >= Limits::min() && number <= Limits::max() && number == std::trunc(number);
}

// Returns whether a row of that type can show the number as it is.
bool IsRepresentable(int vt, double number) {
    switch (vt) {
    case VT_R8:
        return std::isfinite(number);
    case VT_I4:
        return IsWhole<int32_t>(number);
    case VT_UI4:
        return IsWhole<uint32_t>(number);
    default:
        return true;
    }
}

// Returns a value that is passed to PropSet.
FieldValue ReadValue(int vt, const void* place) {
    switch (vt) {
    case VT_BSTR:
        return {0.0, static_cast<const char*>(place)};
    case VT_R8:
        return {Read<double>(place), ""};
    case VT_UI4:
        return {Read<uint32_t>(place), ""};
    default:
        return {Read<int32_t>(place), ""};
    }
}

} // namespace

bool FieldAccess::Find(GraphicStruct* graphic, const char* name, int32_t& number) {
    if (m_table.accepts && !m_table.accepts(graphic)) return false;
    const auto row = m_rows.find(name);
    m_found = row != m_rows.end() ? row->second : nullptr;
    if (m_found != nullptr) {
        m_value = {};
        return m_found->get(graphic, m_value) && IsRepresentable(TraitsOf(*m_found).vt, m_value.number);
    }
    const PropertyTable* table = ::GraphicGetVtbl(graphic);
    return table != nullptr && table->PropLookup(graphic, &name, 1, 0, &number) != 0;
}

void FieldAccess::Get(GraphicStruct* graphic, int32_t number, int vt, void* value) {
    if (m_found != nullptr)
        StoreValue(vt, value, m_value);
    else
        ::GraphicGetVtbl(graphic)->PropGet(graphic, number, vt, value);
}

int FieldAccess::Set(GraphicStruct* graphic, int32_t number, int vt, const void* value) {
    if (m_found != nullptr) return m_found->set && m_found->set(graphic, ReadValue(vt, value));
    return ::GraphicGetVtbl(graphic)->PropSet(graphic, number, vt, value);
}
