// Reads and writes one property of one graphic as a C++ value. C++ only.
//
//   if (auto width = orlo::host::ReadProperty<double>(graphic, kPropPenWidth)) ...   // empty: no such property
//   orlo::host::WriteProperty(graphic, kPropInfo, std::string("wall"));              // false: the host rejects it
//
// Value types: double and float; uint8_t, uint16_t and uint32_t; bool; std::string. To read a property of a whole
// selection the library uses the faster functions of orlo/binding.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>

#include <wtypes.h>

#include "orlo/host/graphic.h"
#include "orlo/host/owners.h"

namespace orlo::host {

// Returns the variant type number (VT_R8, ...) for a C++ type.
template <class Value>
constexpr int VariantType() {
    if constexpr (std::is_same_v<Value, double>) return VT_R8;
    if constexpr (std::is_same_v<Value, float>) return VT_R4;
    if constexpr (std::is_same_v<Value, uint8_t>) return VT_UI1;
    if constexpr (std::is_same_v<Value, uint16_t>) return VT_UI2;
    if constexpr (std::is_same_v<Value, uint32_t>) return VT_UI4;
    if constexpr (std::is_same_v<Value, bool>) return VT_BOOL;
    if constexpr (std::is_same_v<Value, std::string>) return VT_BSTR;
}

// Returns the number of a property, which is valid for this graphic only, or nullopt if the graphic has no such
// property.
inline std::optional<int32_t> FindProperty(GraphicStruct* graphic, const char* name) {
    const PropertyTable* table = ::GraphicGetVtbl(graphic);
    int32_t number = 0;
    if (!table || !table->PropLookup(graphic, &name, 1, 0, &number)) return std::nullopt;
    return number;
}

// Returns the value, or nullopt if the graphic has no such property or cannot return it as that type.
template <class Value>
std::optional<Value> ReadProperty(GraphicStruct* graphic, const char* name) {
    const std::optional<int32_t> number = FindProperty(graphic, name);
    if (!number) return std::nullopt;
    const auto read = [&](void* variable) {
        return ::GraphicGetVtbl(graphic)->PropGet(graphic, *number, VariantType<Value>(), variable) != 0;
    };
    if constexpr (std::is_same_v<Value, std::string>) {
        String text;
        if (!read(text.Variable())) return std::nullopt;
        return text.OrEmpty();
    } else if constexpr (std::is_same_v<Value, bool>) {
        uint16_t value = 0;
        if (!read(&value)) return std::nullopt;
        return value != 0;
    } else {
        Value value{};
        if (!read(&value)) return std::nullopt;
        return value;
    }
}

// Returns false if the graphic has no such property or the host rejects the value.
template <class Value>
bool WriteProperty(GraphicStruct* graphic, const char* name, const Value& value) {
    const std::optional<int32_t> number = FindProperty(graphic, name);
    if (!number) return false;
    const auto write = [&](const void* variable) {
        return ::GraphicGetVtbl(graphic)->PropSet(graphic, *number, VariantType<Value>(), variable) != 0;
    };
    if constexpr (std::is_same_v<Value, std::string>) return write(value.c_str());
    if constexpr (std::is_same_v<Value, bool>) {
        const int32_t wide = value;
        return write(&wide);
    }
    return write(&value);
}

} // namespace orlo::host
