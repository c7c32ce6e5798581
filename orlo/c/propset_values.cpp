// Reads and stores values and names of property sets by the rules of their types.

#include <propidl.h>

#include <cmath>

#include "orlo/c/guarded_call.h"
#include "orlo/c/propset.h"
#include "orlo/propset/code_page.h"
#include "orlo/propset/inspect/set_edit.h"

using namespace orlo;

namespace {

Value ValueOf(OrloPropset set, const OrloGuid* format, uint32_t id) {
    const auto open = RequireSet(set);
    const ImageProperty& property = RequireProperty(open->image, format, id);
    Value value;
    if (property.state != ValueState::complete ||
        !DecodeValue(property.type, property.bytes.data(), property.bytes.size(),
                     RequireSection(open->image, format).codePage, value))
        ThrowError(kOrloDamaged, "the value is damaged");
    return value;
}

// Returns the items of a list.
const std::vector<Value>& ItemsOf(const Value& list) {
    if ((list.type & VT_VECTOR) == 0) ThrowError(kOrloWrongType, "the value is not a list");
    return list.elements;
}

Value ItemOf(const Value& list, uint32_t index) {
    if (index >= ItemsOf(list).size()) ThrowError(kOrloNotFound, "the list has no such item");
    return list.elements[index];
}

int64_t IntegerOf(const Value& value) {
    if (const bool* truth = std::get_if<bool>(&value.data)) return *truth ? 1 : 0;
    if (const int64_t* number = std::get_if<int64_t>(&value.data)) return *number;
    const uint64_t* number = std::get_if<uint64_t>(&value.data);
    if (number == nullptr || *number > INT64_MAX) ThrowError(kOrloWrongType, "the value is not a 64-bit integer");
    return static_cast<int64_t>(*number);
}

double RealOf(const Value& value) {
    const double* number = std::get_if<double>(&value.data);
    if (number == nullptr) ThrowError(kOrloWrongType, "the value is not a real number");
    return *number;
}

void CopyText(const Value& value, char* buffer, size_t* size) {
    const std::string* text = std::get_if<std::string>(&value.data);
    if (text == nullptr) ThrowError(kOrloWrongType, "the value is not text");
    CopyOut(text->c_str(), text->size() + 1, buffer, size);
}

// Returns the code page of the section, or the default if the section does not exist yet.
uint16_t CodePageOf(SetImage& image, const OrloGuid* format) {
    const ImageSection* section = image.Find(AsGuid(RequireNotNull(format, "the format")));
    return section != nullptr ? section->codePage.value_or(kUsualCodePage) : kCodePageUtf8;
}

// Creates the section. Fails if it exists already, since its texts are encoded in its code page.
void StoreCodePage(SetImage& image, const OrloGuid* format, int64_t codePage) {
    const GUID& guid = AsGuid(RequireNotNull(format, "the format"));
    if (codePage <= 0 || codePage > UINT16_MAX) ThrowError(kOrloBadArgument, "not a code page");
    if (image.Find(guid) != nullptr)
        ThrowError(kOrloBadArgument, "the code page of an existing section cannot be changed");
    if (!Utf8ToCodePage("a", static_cast<uint16_t>(codePage)))
        ThrowError(kOrloBadArgument, "the code page is not supported by the system");
    SectionFor(image, guid, static_cast<uint16_t>(codePage));
}

void StoreBytes(SetImage& image, const OrloGuid* format, uint32_t id, uint32_t type, Bytes bytes) {
    if (id <= kOrloCodePage) ThrowError(kOrloBadArgument, "the dictionary and the code page cannot be set as values");
    const GUID& guid = AsGuid(RequireNotNull(format, "the format"));
    const ImageSection* section = image.Find(guid);
    const ImageProperty* property = section != nullptr ? section->Find(id) : nullptr;
    if (property != nullptr && property->type != type)
        ThrowError(kOrloWrongType, "the property exists with another type");
    StoreValue(SectionFor(image, guid, kCodePageUtf8), id, type, std::move(bytes));
}

// Encodes and stores a value. Throws CallError with the result `rangeError` if the value is out of range for its type.
void Store(OrloPropset set, const OrloGuid* format, uint32_t id, const Value& value, OrloResult rangeError) {
    const auto open = RequireUndamagedSet(set);
    std::optional<Bytes> bytes = EncodeValue(value, CodePageOf(open->image, format));
    if (!bytes) ThrowError(rangeError, "the value cannot be represented in its type");
    StoreBytes(open->image, format, id, value.type, std::move(*bytes));
}

Value IntegerValue(uint32_t type, int64_t number) {
    if (type == VT_BOOL) {
        if (number != 0 && number != 1) ThrowError(kOrloWrongType, "a Boolean must be 0 or 1");
        return {type, number == 1, {}};
    }
    if (IsUnsignedType(type)) {
        if (number < 0) ThrowError(kOrloWrongType, "the type is unsigned and the number is negative");
        return {type, static_cast<uint64_t>(number), {}};
    }
    if (!IsSignedType(type)) ThrowError(kOrloWrongType, "not an integer type");
    return {type, number, {}};
}

Value RealValue(uint32_t type, double number) {
    if (type != VT_R4 && type != VT_R8 && type != VT_DATE) ThrowError(kOrloWrongType, "not a real number type");
    if (!std::isfinite(number)) ThrowError(kOrloBadArgument, "the number is not finite");
    if (type == VT_R4 && std::isinf(static_cast<float>(number)))
        ThrowError(kOrloWrongType, "the number is out of range for a float");
    return {type, number, {}};
}

Value TextValue(uint32_t type, const char* text) {
    if (type != VT_LPSTR && type != VT_LPWSTR && type != VT_BSTR) ThrowError(kOrloWrongType, "not a text type");
    return {type, std::string(&RequireNotNull(text, "the text")), {}};
}

// Stores a list with an item for each element of the array.
template <class Item>
void StoreList(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t type, const Item* items, uint32_t count,
               Value (*itemValue)(uint32_t type, Item item), OrloResult rangeError) {
    if (count > 0) RequireNotNull(items, "the values");
    Value list = {VT_VECTOR | type, {}, {}};
    for (uint32_t i = 0; i < count; ++i)
        list.elements.push_back(itemValue(type, items[i]));
    Store(set, format, id, list, rangeError);
}

} // namespace

OrloResult ORLO_CALL OrloPropsetGetInteger(OrloPropset set, const OrloGuid* format, uint32_t id, int64_t* value) {
    return GuardedResult(value, "the value", [&] { return IntegerOf(ValueOf(set, format, id)); });
}

OrloResult ORLO_CALL OrloPropsetGetReal(OrloPropset set, const OrloGuid* format, uint32_t id, double* value) {
    return GuardedResult(value, "the value", [&] { return RealOf(ValueOf(set, format, id)); });
}

OrloResult ORLO_CALL OrloPropsetGetText(OrloPropset set, const OrloGuid* format, uint32_t id, char* buffer,
                                        size_t* size) {
    return GuardedCall([&] { CopyText(ValueOf(set, format, id), buffer, size); });
}

OrloResult ORLO_CALL OrloPropsetGetBytes(OrloPropset set, const OrloGuid* format, uint32_t id, void* buffer,
                                         size_t* size) {
    return GuardedCall([&] {
        const auto open = RequireSet(set);
        const Bytes& bytes = RequireProperty(open->image, format, id).bytes;
        CopyOut(bytes.data(), bytes.size(), buffer, size);
    });
}

OrloResult ORLO_CALL OrloPropsetSetInteger(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t type,
                                           int64_t value) {
    return GuardedCall([&] {
        if (id == kOrloCodePage)
            StoreCodePage(RequireUndamagedSet(set)->image, format, value);
        else
            Store(set, format, id, IntegerValue(type, value), kOrloWrongType);
    });
}

OrloResult ORLO_CALL OrloPropsetSetReal(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t type,
                                        double value) {
    return GuardedCall([&] { Store(set, format, id, RealValue(type, value), kOrloWrongType); });
}

OrloResult ORLO_CALL OrloPropsetSetText(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t type,
                                        const char* value) {
    return GuardedCall([&] { Store(set, format, id, TextValue(type, value), kOrloNotEncodable); });
}

OrloResult ORLO_CALL OrloPropsetSetIntegers(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t type,
                                            const int64_t* values, uint32_t count) {
    return GuardedCall([&] { StoreList(set, format, id, type, values, count, IntegerValue, kOrloWrongType); });
}

OrloResult ORLO_CALL OrloPropsetSetReals(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t type,
                                         const double* values, uint32_t count) {
    return GuardedCall([&] { StoreList(set, format, id, type, values, count, RealValue, kOrloWrongType); });
}

OrloResult ORLO_CALL OrloPropsetSetTexts(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t type,
                                         const char* const* values, uint32_t count) {
    return GuardedCall([&] { StoreList(set, format, id, type, values, count, TextValue, kOrloNotEncodable); });
}

OrloResult ORLO_CALL OrloPropsetCountItems(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t* count) {
    return GuardedResult(count, "the count",
                         [&] { return static_cast<uint32_t>(ItemsOf(ValueOf(set, format, id)).size()); });
}

OrloResult ORLO_CALL OrloPropsetGetItemType(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t index,
                                            uint32_t* type) {
    return GuardedResult(type, "the type", [&] { return ItemOf(ValueOf(set, format, id), index).type; });
}

OrloResult ORLO_CALL OrloPropsetGetItemInteger(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t index,
                                               int64_t* value) {
    return GuardedResult(value, "the value", [&] { return IntegerOf(ItemOf(ValueOf(set, format, id), index)); });
}

OrloResult ORLO_CALL OrloPropsetGetItemReal(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t index,
                                            double* value) {
    return GuardedResult(value, "the value", [&] { return RealOf(ItemOf(ValueOf(set, format, id), index)); });
}

OrloResult ORLO_CALL OrloPropsetGetItemText(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t index,
                                            char* buffer, size_t* size) {
    return GuardedCall([&] { CopyText(ItemOf(ValueOf(set, format, id), index), buffer, size); });
}

OrloResult ORLO_CALL OrloPropsetSetBytes(OrloPropset set, const OrloGuid* format, uint32_t id, uint32_t type,
                                         const void* data, size_t size) {
    return GuardedCall([&] {
        const auto* first = static_cast<const uint8_t*>(data);
        if (size > 0) RequireNotNull(first, "the data");
        Bytes bytes(first, first + size);
        const auto open = RequireUndamagedSet(set);
        const uint16_t codePage = CodePageOf(open->image, format);
        Value value;
        if (!DecodeValue(type, bytes.data(), bytes.size(), codePage, value) || EncodeValue(value, codePage) != bytes)
            ThrowError(kOrloWrongType, "the bytes are not a single value of the type");
        StoreBytes(open->image, format, id, type, std::move(bytes));
    });
}

OrloResult ORLO_CALL OrloPropsetRemove(OrloPropset set, const OrloGuid* format, uint32_t id) {
    return GuardedCall([&] {
        const auto open = RequireUndamagedSet(set);
        if (id <= kOrloCodePage)
            ThrowError(kOrloBadArgument, "dictionary and code page cannot be removed from their section");
        RequireProperty(open->image, format, id);
        ImageSection& section = RequireSection(open->image, format);
        RemoveValue(section, id);
        RemoveName(section, id);
    });
}

OrloResult ORLO_CALL OrloPropsetGetName(OrloPropset set, const OrloGuid* format, uint32_t id, char* buffer,
                                        size_t* size) {
    return GuardedCall([&] {
        const auto open = RequireSet(set);
        const ImageSection& section = RequireSection(open->image, format);
        if (section.dictionary)
            for (const DictionaryEntry& entry : *section.dictionary)
                if (entry.id == id && entry.undecoded.empty())
                    return CopyOut(entry.name.c_str(), entry.name.size() + 1, buffer, size);
        ThrowError(kOrloNotFound, "the property has no name");
    });
}

OrloResult ORLO_CALL OrloPropsetGetNameAt(OrloPropset set, uint32_t section, uint32_t index, uint32_t* id, char* buffer,
                                          size_t* size) {
    return GuardedCall([&] {
        RequireNotNull(id, "the identifier") = 0;
        const auto open = RequireSet(set);
        if (section >= open->image.sections.size()) ThrowError(kOrloNotFound, "the section index is out of range");
        const auto& dictionary = open->image.sections[section].dictionary;
        if (!dictionary || index >= dictionary->size()) ThrowError(kOrloNotFound, "the name index is out of range");
        const DictionaryEntry& entry = (*dictionary)[index];
        CopyOut(entry.name.c_str(), entry.name.size() + 1, buffer, size);
        *id = entry.id;
    });
}

OrloResult ORLO_CALL OrloPropsetFindName(OrloPropset set, const OrloGuid* format, const char* name, uint32_t* id) {
    return GuardedResult(id, "the identifier", [&] {
        const auto open = RequireSet(set);
        const DictionaryEntry* entry = FindName(RequireSection(open->image, format), &RequireNotNull(name, "the name"));
        if (entry == nullptr) ThrowError(kOrloNotFound, "no property has that name");
        return entry->id;
    });
}

OrloResult ORLO_CALL OrloPropsetSetName(OrloPropset set, const OrloGuid* format, uint32_t id, const char* name) {
    return GuardedCall([&] {
        const auto open = RequireUndamagedSet(set);
        const std::string text = &RequireNotNull(name, "the name");
        RequireProperty(open->image, format, id);
        ImageSection& section = RequireSection(open->image, format);
        if (text.empty() || id <= kOrloCodePage)
            ThrowError(kOrloBadArgument, "the name is empty, or the property cannot have a name");
        if (!Utf8ToCodePage(text, section.codePage.value_or(kUsualCodePage)))
            ThrowError(kOrloNotEncodable, "the name cannot be represented in the code page of the section");
        const DictionaryEntry* existing = FindName(section, text);
        if (existing != nullptr && existing->id != id) ThrowError(kOrloBadArgument, "another property has that name");
        StoreName(section, id, text);
    });
}
