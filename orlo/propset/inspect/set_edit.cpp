// Finds, adds and removes sections, values and names.

#include "orlo/propset/inspect/set_edit.h"

#include <algorithm>

#include "orlo/propset/code_page.h"
#include "orlo/propset/formats.h"
#include "orlo/propset/set_layout.h"
#include "orlo/propset/value_form.h"

namespace orlo {
namespace {

template <class List>
bool EraseId(List& list, uint32_t id) {
    const auto end = std::remove_if(list.begin(), list.end(), [id](const auto& item) { return item.id == id; });
    const bool isFound = end != list.end();
    list.erase(end, list.end());
    return isFound;
}

void StoreCodePage(ImageSection& section, uint16_t codePage) {
    StoreValue(section, kCodePageId, VT_I2, {static_cast<uint8_t>(codePage), static_cast<uint8_t>(codePage >> 8)});
    section.codePage = codePage;
}

// Returns false if the value is not text in the code page.
bool ConvertValue(ImageProperty& property, std::optional<uint16_t> codePage) {
    if (property.state != ValueState::complete || !HasCodePageText(property.type)) return true;
    Value value;
    if (!DecodeValue(property.type, property.bytes.data(), property.bytes.size(), codePage, value)) return false;
    std::optional<Bytes> bytes = EncodeValue(value, kCodePageUtf8);
    if (bytes) property.bytes = std::move(*bytes);
    return bytes.has_value();
}

} // namespace

ImageSection& SectionFor(SetImage& image, const GUID& format, uint16_t codePage) {
    if (ImageSection* found = image.Find(format)) return *found;
    if (IsSame(format, kUserDefinedFormat)) SectionFor(image, kDocumentSummaryFormat, codePage);
    ImageSection& section = image.sections.emplace_back();
    section.formatId = format;
    StoreCodePage(section, codePage);
    return section;
}

void StoreValue(ImageSection& section, uint32_t id, uint32_t type, Bytes bytes) {
    ImageProperty* property = section.Find(id);
    if (property == nullptr) {
        // The code page is stored first, because sequential readers need it before the texts.
        const auto place = id == kCodePageId ? section.properties.begin() : section.properties.end();
        property = &*section.properties.emplace(place);
    }
    *property = {};
    property->id = id;
    property->type = type;
    property->bytes = std::move(bytes);
}

bool RemoveValue(ImageSection& section, uint32_t id) {
    return EraseId(section.properties, id);
}

const DictionaryEntry* FindName(const ImageSection& section, const std::string& name) {
    if (!section.dictionary) return nullptr;
    for (const DictionaryEntry& entry : *section.dictionary)
        if (entry.undecoded.empty() && IsSameName(entry.name, name)) return &entry;
    return nullptr;
}

void StoreName(ImageSection& section, uint32_t id, const std::string& name) {
    if (!section.dictionary) section.dictionary.emplace();
    auto& names = *section.dictionary;
    const auto own = std::find_if(names.begin(), names.end(), [id](const auto& entry) { return entry.id == id; });
    if (own != names.end())
        *own = {id, name, {}};
    else
        names.push_back({id, name, {}});
}

void RemoveName(ImageSection& section, uint32_t id) {
    if (section.dictionary) EraseId(*section.dictionary, id);
}

std::optional<uint32_t> ConvertToUtf8(ImageSection& section) {
    if (section.dictionary)
        for (const DictionaryEntry& entry : *section.dictionary)
            if (!entry.undecoded.empty()) return entry.id;
    ImageSection converted = section;
    for (ImageProperty& property : converted.properties)
        if (!ConvertValue(property, section.codePage)) return property.id;
    StoreCodePage(converted, kCodePageUtf8);
    section = std::move(converted);
    return std::nullopt;
}

bool HasCodePageText(uint32_t type) {
    const uint32_t base = BaseType(type);
    return base == VT_VARIANT || (FormOf(base).isText && base != VT_LPWSTR);
}

} // namespace orlo
