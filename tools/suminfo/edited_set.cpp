// Sections found or made, values encoded, code pages changed where they must be.

#include "edited_set.h"

#include <algorithm>

#include "failure.h"
#include "fields.h"
#include "orlo/propset/code_page.h"
#include "text.h"
#include "value_input.h"

namespace suminfo {
namespace {

constexpr uint32_t kFirstCustomId = 2;
// A custom property that is linked to a place in the document has that place under its own ID with this flag; readers
// show no property from there on.
constexpr uint32_t kLinkFlag = 0x01000000;

enum class Kind { text, whole, real, truth, moment, other };

Kind KindOf(uint32_t type) {
    switch (type) {
    case VT_LPSTR:
    case VT_LPWSTR:
    case VT_BSTR:
        return Kind::text;
    case VT_I2:
    case VT_I4:
    case VT_INT:
    case VT_I8:
    case VT_UI2:
    case VT_UI4:
    case VT_UINT:
        return Kind::whole;
    case VT_R4:
    case VT_R8:
        return Kind::real;
    case VT_BOOL:
        return Kind::truth;
    case VT_FILETIME:
    case VT_DATE:
        return Kind::moment;
    default:
        return Kind::other;
    }
}

// Types whose bytes depend on the code page.
bool HasCodePageText(uint32_t type) {
    switch (type & ~uint32_t{VT_VECTOR}) {
    case VT_LPSTR:
    case VT_BSTR:
    case VT_VARIANT:
    case VT_STREAM:
    case VT_STORAGE:
    case VT_STREAMED_OBJECT:
    case VT_STORED_OBJECT:
        return true;
    default:
        return false;
    }
}

orlo::ImageProperty& PropertyFor(orlo::ImageSection& section, uint32_t id) {
    if (orlo::ImageProperty* found = section.Find(id)) return *found;
    orlo::ImageProperty added;
    added.id = id;
    // The code page comes first: whoever reads in order needs it before the texts.
    const auto place = id == kCodePageId ? section.properties.begin() : section.properties.end();
    return *section.properties.insert(place, std::move(added));
}

void PutCodePage(orlo::ImageSection& section, uint16_t codePage) {
    orlo::ImageProperty& property = PropertyFor(section, kCodePageId);
    property.type = VT_I2;
    property.state = orlo::ValueState::complete;
    property.bytes = {static_cast<uint8_t>(codePage), static_cast<uint8_t>(codePage >> 8)};
    section.codePage = codePage;
}

void TurnToUtf8(orlo::ImageSection& section) {
    for (orlo::ImageProperty& property : section.properties) {
        if (property.state != orlo::ValueState::complete || !HasCodePageText(property.type)) continue;
        orlo::Value value;
        const bool read = orlo::DecodeValue(property.type, property.bytes.data(), property.bytes.size(),
                                            section.codePage, value);
        auto bytes = read ? orlo::EncodeValue(value, orlo::kCodePageUtf8) : std::nullopt;
        if (!bytes)
            throw Failure("code page " + std::to_string(section.codePage.value_or(orlo::kUsualCodePage)) +
                          " can't say the new text, and property " + std::to_string(property.id) +
                          " is no text of it that could be turned to UTF-8");
        property.bytes = std::move(*bytes);
    }
    PutCodePage(section, orlo::kCodePageUtf8);
}

uint32_t* IdOfName(orlo::ImageSection& section, const std::string& name) {
    if (!section.dictionary) return nullptr;
    const auto found =
        std::find_if(section.dictionary->begin(), section.dictionary->end(),
                     [&](const orlo::DictionaryEntry& entry) { return SameName(entry.name, name); });
    return found == section.dictionary->end() ? nullptr : &found->id;
}

uint32_t FreeCustomId(const orlo::ImageSection& section) {
    uint32_t next = kFirstCustomId;
    const auto pass = [&next](uint32_t id) {
        if (id < kLinkFlag && id >= next) next = id + 1;
    };
    for (const orlo::ImageProperty& property : section.properties)
        pass(property.id);
    for (const orlo::DictionaryEntry& entry : *section.dictionary)
        pass(entry.id);
    if (next >= kLinkFlag) throw Failure("no identifier is left for another custom property");
    return next;
}

} // namespace

EditedSet::EditedSet(const std::optional<orlo::Bytes>& bytes) {
    if (!bytes) return;
    std::vector<orlo::Finding> findings;
    auto image = orlo::ReadSetImage(bytes->data(), bytes->size(), findings);
    const auto damage = std::find_if(findings.begin(), findings.end(), [](const orlo::Finding& finding) {
        return finding.severity == orlo::Severity::damaged;
    });
    if (damage != findings.end()) throw Failure("it is damaged and was left alone: " + damage->text);
    if (!image) throw Failure("it is no property set and was left alone");
    set_ = std::move(*image);
}

orlo::ImageSection& EditedSet::Section(const GUID& format) {
    if (orlo::ImageSection* found = set_.Find(format)) return *found;
    // Readers look for the user-defined section in the second place.
    if (::IsEqualGUID(format, kUserDefinedFormat)) Section(kDocumentSummaryFormat);
    orlo::ImageSection& section = set_.sections.emplace_back();
    section.formatId = format;
    PutCodePage(section, orlo::kUsualCodePage);
    return section;
}

void EditedSet::Store(orlo::ImageSection& section, uint32_t id, const orlo::Value& value) {
    auto bytes = orlo::EncodeValue(value, section.codePage);
    if (!bytes && HasCodePageText(value.type)) {
        TurnToUtf8(section);
        bytes = orlo::EncodeValue(value, section.codePage);
    }
    if (!bytes)
        throw Failure("property " + std::to_string(id) + " can't be stored as " + orlo::TypeName(value.type));
    orlo::ImageProperty& property = PropertyFor(section, id);
    property.type = value.type;
    property.state = orlo::ValueState::complete;
    property.bytes = std::move(*bytes);
    changed_ = true;
}

void EditedSet::SetField(const GUID& format, uint32_t id, const std::string& text, uint32_t usualType) {
    if (text.empty()) {
        Remove(format, id);
        return;
    }
    orlo::ImageSection& section = Section(format);
    const orlo::ImageProperty* there = section.Find(id);
    const bool hasValue = there && there->type != VT_EMPTY && there->type != VT_NULL;
    const uint32_t type = hasValue ? there->type : usualType;
    if (KindOf(type) != KindOf(usualType))
        throw Failure("it is stored as " + orlo::TypeName(type) + ", not as " + orlo::TypeName(usualType));
    constexpr uint32_t kEditTime = 10;
    const bool span = ::IsEqualGUID(format, kSummaryFormat) && id == kEditTime;
    Store(section, id, span ? ParseSpan(text) : ParseValue(type, text));
}

void EditedSet::SetCustom(const std::string& name, orlo::Value value) {
    orlo::ImageSection& section = Section(kUserDefinedFormat);
    if (!section.dictionary) section.dictionary.emplace();
    if (const uint32_t* id = IdOfName(section, name)) {
        Store(section, *id, value);
        return;
    }
    if (!orlo::Utf8ToCodePage(name, section.codePage.value_or(orlo::kUsualCodePage))) TurnToUtf8(section);
    const uint32_t id = FreeCustomId(section);
    section.dictionary->push_back({id, name});
    Store(section, id, value);
}

bool EditedSet::Remove(const GUID& format, uint32_t id) {
    orlo::ImageSection* section = set_.Find(format);
    if (!section) return false;
    auto& properties = section->properties;
    const auto kept = std::remove_if(properties.begin(), properties.end(),
                                     [id](const orlo::ImageProperty& property) { return property.id == id; });
    if (kept == properties.end()) return false;
    properties.erase(kept, properties.end());
    changed_ = true;
    return true;
}

bool EditedSet::RemoveCustom(const std::string& name) {
    orlo::ImageSection* section = set_.Find(kUserDefinedFormat);
    const uint32_t* named = section ? IdOfName(*section, name) : nullptr;
    if (!named) return false;
    const uint32_t id = *named;
    auto& names = *section->dictionary;
    names.erase(std::remove_if(names.begin(), names.end(),
                               [id](const orlo::DictionaryEntry& entry) { return entry.id == id; }),
                names.end());
    Remove(kUserDefinedFormat, id);
    if (id < kLinkFlag) Remove(kUserDefinedFormat, id | kLinkFlag);
    changed_ = true;
    return true;
}

orlo::Bytes EditedSet::Image() const {
    auto image = orlo::WriteSetImage(set_);
    if (!image) throw Failure("a name of its dictionary can't be said in its code page");
    return std::move(*image);
}

} // namespace suminfo
