// Formats values without loss: 64-bit numbers as text, bytes as length and hash.

#include "json_output.h"

#include <cstdio>

#include "fields.h"
#include "orlo/propset/code_page.h"
#include "orlo/propset/inspect/set_image.h"
#include "text.h"
#include "value_display.h"

namespace suminfo {
namespace {

std::string Hexadecimal(uint32_t number, int digits) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%0*lX", digits, static_cast<unsigned long>(number));
    return text;
}

bool IsLong(uint32_t type) {
    return type == VT_I8 || type == VT_UI8 || type == VT_CY || type == VT_FILETIME;
}

Json DataJson(const orlo::Bytes& bytes) {
    return {{"length", bytes.size()}, {"sha256", Sha256(bytes)}};
}

// Length and hash cover everything after the tag: the format number, if any, and the picture.
Json ClipboardJson(const orlo::ClipboardData& clip) {
    orlo::Bytes afterTag;
    if (clip.tag == -1 || clip.tag == -2)
        for (int shift = 0; shift < 32; shift += 8)
            afterTag.push_back(static_cast<uint8_t>(clip.format >> shift));
    afterTag.insert(afterTag.end(), clip.data.begin(), clip.data.end());
    Json json = {{"tag", clip.tag}, {"format", clip.format}};
    json.update(DataJson(afterTag));
    return json;
}

Json ValueJson(const orlo::Value& value);

Json ListJson(const orlo::Value& value) {
    Json list = Json::array();
    const bool variants = (value.type & ~uint32_t{VT_VECTOR}) == VT_VARIANT;
    for (const orlo::Value& element : value.elements) {
        if (variants)
            list.push_back({{"vt", element.type}, {"value", ValueJson(element)}});
        else
            list.push_back(ValueJson(element));
    }
    return list;
}

Json ValueJson(const orlo::Value& value) {
    if (value.type & VT_VECTOR) return ListJson(value);
    if (const auto* text = std::get_if<std::string>(&value.data)) return *text;
    if (const auto* truth = std::get_if<bool>(&value.data)) return *truth;
    if (const auto* number = std::get_if<int64_t>(&value.data))
        return IsLong(value.type) ? Json(std::to_string(*number)) : Json(*number);
    if (const auto* number = std::get_if<uint64_t>(&value.data))
        return IsLong(value.type) ? Json(std::to_string(*number)) : Json(*number);
    if (const auto* number = std::get_if<double>(&value.data)) return *number;
    if (const auto* bytes = std::get_if<orlo::Bytes>(&value.data)) return DataJson(*bytes);
    if (const auto* guid = std::get_if<GUID>(&value.data)) return orlo::GuidText(*guid);
    if (const auto* clip = std::get_if<orlo::ClipboardData>(&value.data)) return ClipboardJson(*clip);
    return nullptr;
}

Json PropertyJson(const orlo::ImageSection& section, const orlo::ImageProperty& property, const PropertyNames& names) {
    Json json = {{"id", property.id},
                 {"name", names.Of(property.id)},
                 {"vt", property.type},
                 {"offset", property.offset},
                 {"value", nullptr}};
    orlo::Value value;
    if (property.state == orlo::ValueState::partial) {
        json["error"] = "damaged";
    } else if (property.state == orlo::ValueState::opaque) {
        json["error"] = "unknown type";
    } else if (orlo::DecodeValue(property.type, property.bytes.data(), property.bytes.size(), section.codePage,
                                 value)) {
        json["value"] = ValueJson(value);
    } else {
        json["error"] = "not valid in code page " + std::to_string(section.codePage.value_or(orlo::kUsualCodePage));
    }
    const bool raw = json.contains("error") || property.type == VT_BOOL;
    if (raw) json[property.type == VT_BOOL ? "raw" : "bytes"] = Hex(property.bytes.data(), property.bytes.size());
    return json;
}

Json SectionJson(const orlo::ImageSection& section) {
    const char* known = FormatName(section.formatId);
    Json json = {{"fmtid", orlo::GuidText(section.formatId)},
                 {"known", known ? Json(known) : Json()},
                 {"offset", section.offset},
                 {"size", section.size},
                 {"property_count", section.count},
                 {"code_page", section.codePage ? Json(*section.codePage) : Json()},
                 {"dictionary", nullptr}};
    if (section.dictionary) {
        json["dictionary"] = Json::array();
        for (const orlo::DictionaryEntry& entry : *section.dictionary)
            if (entry.undecoded.empty()) json["dictionary"].push_back({{"id", entry.id}, {"name", entry.name}});
    }
    Json& properties = json["properties"] = Json::array();
    const PropertyNames names(section);
    for (const orlo::ImageProperty& property : section.properties)
        properties.push_back(PropertyJson(section, property, names));
    return json;
}

} // namespace

Json StreamJson(const NamedStream& stream) {
    Json json = {{"stream", StreamNameShown(stream.name)}, {"size", stream.bytes.size()}};
    if (!stream.error.empty()) json["error"] = stream.error;
    std::vector<orlo::Finding> findings;
    const auto set = orlo::ReadSetImage(stream.bytes.data(), stream.bytes.size(), findings);
    if (set) {
        json["byte_order"] = Hexadecimal(set->byteOrder, 4);
        json["version"] = set->version;
        json["os_version"] = Hexadecimal(set->osVersion, 8);
        json["clsid"] = orlo::GuidText(set->classId);
        json["section_count"] = set->sectionCount;
    }
    json["irregularities"] = Json::array();
    json["damage"] = Json::array();
    for (const orlo::Finding& finding : findings)
        if (finding.severity != orlo::Severity::note)
            json[finding.severity == orlo::Severity::damaged ? "damage" : "irregularities"].push_back(finding.text);
    Json& sections = json["sections"] = Json::array();
    if (set)
        for (const orlo::ImageSection& section : set->sections)
            sections.push_back(SectionJson(section));
    return json;
}

} // namespace suminfo
