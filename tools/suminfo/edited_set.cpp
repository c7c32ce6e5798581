// Finds or creates sections, encodes values, and changes code pages if necessary.

#include "edited_set.h"

#include <algorithm>
#include <map>

#include "failure.h"
#include "orlo/propset/code_page.h"
#include "orlo/propset/formats.h"
#include "orlo/propset/inspect/set_edit.h"
#include "value_input.h"

namespace suminfo {
namespace {

constexpr uint32_t kFirstCustomId = 2;
// A custom property that is linked to a place in the document has a companion property for the place, whose ID is its
// own with this flag. Readers do not show IDs from here on.
constexpr uint32_t kLinkFlag = 0x01000000;

enum class Kind { text, whole, real, truth, moment, other };

Kind KindOf(uint32_t type) {
    static const std::map<uint32_t, Kind> kKinds = {
        {VT_LPSTR, Kind::text}, {VT_LPWSTR, Kind::text}, {VT_BSTR, Kind::text},       {VT_I2, Kind::whole},
        {VT_I4, Kind::whole},   {VT_INT, Kind::whole},   {VT_I8, Kind::whole},        {VT_UI2, Kind::whole},
        {VT_UI4, Kind::whole},  {VT_UINT, Kind::whole},  {VT_R4, Kind::real},         {VT_R8, Kind::real},
        {VT_BOOL, Kind::truth}, {VT_DATE, Kind::moment}, {VT_FILETIME, Kind::moment},
    };
    const auto found = kKinds.find(type);
    return found != kKinds.end() ? found->second : Kind::other;
}

void RequireUtf8(orlo::ImageSection& section) {
    if (const auto id = orlo::ConvertToUtf8(section))
        throw Failure("cannot represent the new text in code page " +
                      std::to_string(section.codePage.value_or(orlo::kUsualCodePage)) + ", and property " +
                      std::to_string(*id) + " cannot be converted to UTF-8");
}

uint32_t FreeCustomId(const orlo::ImageSection& section) {
    uint32_t next = kFirstCustomId;
    const auto pass = [&next](uint32_t id) {
        if (id < kLinkFlag && id >= next) next = id + 1;
    };
    for (const orlo::ImageProperty& property : section.properties)
        pass(property.id);
    if (section.dictionary)
        for (const orlo::DictionaryEntry& entry : *section.dictionary)
            pass(entry.id);
    if (next >= kLinkFlag) throw Failure("no unused identifier for another custom property");
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
    if (damage != findings.end()) throw Failure("the property set is damaged and was not changed: " + damage->text);
    if (!image) throw Failure("not a property set; the file was left unchanged");
    set_ = std::move(*image);
}

orlo::ImageSection& EditedSet::Section(const GUID& format) {
    return orlo::SectionFor(set_, format, orlo::kUsualCodePage);
}

void EditedSet::Store(orlo::ImageSection& section, uint32_t id, const orlo::Value& value) {
    auto bytes = orlo::EncodeValue(value, section.codePage);
    if (!bytes && orlo::HasCodePageText(value.type)) {
        RequireUtf8(section);
        bytes = orlo::EncodeValue(value, section.codePage);
    }
    if (!bytes) throw Failure("property " + std::to_string(id) + " cannot be stored as " + orlo::TypeName(value.type));
    orlo::StoreValue(section, id, value.type, std::move(*bytes));
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
        throw Failure("stored as " + orlo::TypeName(type) + ", not as " + orlo::TypeName(usualType));
    constexpr uint32_t kEditTime = 10;
    const bool span = ::IsEqualGUID(format, orlo::kSummaryFormat) && id == kEditTime;
    Store(section, id, span ? ParseSpan(text) : ParseValue(type, text));
}

void EditedSet::SetCustom(const std::string& name, orlo::Value value) {
    orlo::ImageSection& section = Section(orlo::kUserDefinedFormat);
    if (const orlo::DictionaryEntry* named = orlo::FindName(section, name)) return Store(section, named->id, value);
    if (!orlo::Utf8ToCodePage(name, section.codePage.value_or(orlo::kUsualCodePage))) RequireUtf8(section);
    const uint32_t id = FreeCustomId(section);
    orlo::StoreName(section, id, name);
    Store(section, id, value);
}

bool EditedSet::Remove(const GUID& format, uint32_t id) {
    orlo::ImageSection* section = set_.Find(format);
    const bool isRemoved = section != nullptr && orlo::RemoveValue(*section, id);
    changed_ = changed_ || isRemoved;
    return isRemoved;
}

bool EditedSet::RemoveCustom(const std::string& name) {
    orlo::ImageSection* section = set_.Find(orlo::kUserDefinedFormat);
    const orlo::DictionaryEntry* named = section ? orlo::FindName(*section, name) : nullptr;
    if (!named) return false;
    const uint32_t id = named->id;
    orlo::RemoveName(*section, id);
    orlo::RemoveValue(*section, id);
    if (id < kLinkFlag) orlo::RemoveValue(*section, id | kLinkFlag);
    changed_ = true;
    return true;
}

orlo::Bytes EditedSet::Image() const {
    auto image = orlo::WriteSetImage(set_);
    if (!image) throw Failure("a name in the dictionary cannot be represented in the code page");
    return std::move(*image);
}

} // namespace suminfo
