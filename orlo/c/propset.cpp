// The table of handles, and functions shared by all property set functions.

#include "orlo/c/propset.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <mutex>

#include "orlo/c/guarded_call.h"

namespace orlo {
namespace {

struct Table {
    std::mutex lock;
    std::map<OrloPropset, std::shared_ptr<OpenSet>> sets;
    uintptr_t last = 0;
};

Table& TheTable() {
    static Table table;
    return table;
}

} // namespace

bool OpenSet::IsDamaged() const {
    return std::any_of(findings.begin(), findings.end(),
                       [](const Finding& finding) { return finding.severity == Severity::damaged; });
}

std::shared_ptr<OpenSet> RequireSet(OrloPropset handle) {
    Table& table = TheTable();
    const std::lock_guard<std::mutex> locked(table.lock);
    const auto found = table.sets.find(handle);
    if (found == table.sets.end()) ThrowError(kOrloBadHandle, "no property set has this handle");
    return found->second;
}

std::shared_ptr<OpenSet> RequireUndamagedSet(OrloPropset handle) {
    std::shared_ptr<OpenSet> set = RequireSet(handle);
    if (set->IsDamaged()) ThrowError(kOrloDamaged, "the property set is damaged and cannot be changed or saved");
    return set;
}

OrloPropset AddSet(OpenSet set) {
    auto open = std::make_shared<OpenSet>(std::move(set));
    Table& table = TheTable();
    const std::lock_guard<std::mutex> locked(table.lock);
    const auto handle = reinterpret_cast<OrloPropset>(++table.last);
    table.sets[handle] = std::move(open);
    return handle;
}

void Release(OrloPropset handle) {
    const std::shared_ptr<OpenSet> closed = RequireSet(handle); // destroyed after the lock is released
    Table& table = TheTable();
    const std::lock_guard<std::mutex> locked(table.lock);
    table.sets.erase(handle);
}

const GUID& AsGuid(const OrloGuid& format) {
    static_assert(sizeof(OrloGuid) == sizeof(GUID));
    return reinterpret_cast<const GUID&>(format);
}

ImageSection& RequireSection(SetImage& image, const OrloGuid* format) {
    ImageSection* section = image.Find(AsGuid(RequireNotNull(format, "the format")));
    if (section == nullptr) ThrowError(kOrloNotFound, "the property set has no section with this format");
    return *section;
}

ImageProperty& RequireProperty(SetImage& image, const OrloGuid* format, uint32_t id) {
    ImageProperty* property = RequireSection(image, format).Find(id);
    if (property == nullptr) ThrowError(kOrloNotFound, "the section has no such property");
    return *property;
}

void CopyOut(const void* bytes, size_t count, void* buffer, size_t* size) {
    const size_t capacity = RequireNotNull(size, "the size");
    *size = count;
    if (buffer == nullptr) return;
    if (capacity < count) ThrowError(kOrloBufferTooSmall, "the buffer is too small");
    if (count > 0) std::memcpy(buffer, bytes, count);
}

} // namespace orlo

using namespace orlo;

OrloResult ORLO_CALL OrloPropsetNew(OrloPropset* set) {
    return GuardedResult(set, "the handle", [] { return AddSet({}); });
}

OrloResult ORLO_CALL OrloPropsetClose(OrloPropset set) {
    return GuardedCall([&] { Release(set); });
}

OrloResult ORLO_CALL OrloPropsetIsDamaged(OrloPropset set, uint32_t* isDamaged) {
    return GuardedResult(isDamaged, "the result", [&] { return RequireSet(set)->IsDamaged(); });
}

OrloResult ORLO_CALL OrloPropsetGetFinding(OrloPropset set, uint32_t index, OrloFinding* finding, char* buffer,
                                           size_t* size) {
    static_assert(kOrloFindingDamaged == static_cast<int>(Severity::damaged));
    return GuardedCall([&] {
        OrloFinding& record = RequireRecord(finding, "the finding");
        record = {sizeof record, 0, 0, 0};
        const auto open = RequireSet(set);
        if (index >= open->findings.size()) ThrowError(kOrloNotFound, "the finding index is out of range");
        const Finding& found = open->findings[index];
        CopyOut(found.text.c_str(), found.text.size() + 1, buffer, size);
        record = {sizeof record, static_cast<uint32_t>(found.severity), static_cast<uint32_t>(found.code),
                  found.offset};
    });
}

OrloResult ORLO_CALL OrloPropsetCountSections(OrloPropset set, uint32_t* count) {
    return GuardedResult(count, "the count",
                         [&] { return static_cast<uint32_t>(RequireSet(set)->image.sections.size()); });
}

OrloResult ORLO_CALL OrloPropsetGetSection(OrloPropset set, uint32_t index, OrloSection* section) {
    return GuardedCall([&] {
        OrloSection& record = RequireRecord(section, "the section");
        record = {sizeof record, {}, 0, 0};
        const auto open = RequireSet(set);
        if (index >= open->image.sections.size()) ThrowError(kOrloNotFound, "the section index is out of range");
        const ImageSection& found = open->image.sections[index];
        std::memcpy(&record.format, &found.formatId, sizeof record.format);
        record.codePage = found.codePage.value_or(0);
        record.properties = static_cast<uint32_t>(found.properties.size());
    });
}

OrloResult ORLO_CALL OrloPropsetGetProperty(OrloPropset set, uint32_t section, uint32_t index, OrloProperty* property) {
    return GuardedCall([&] {
        OrloProperty& record = RequireRecord(property, "the property");
        record = {sizeof record, 0, 0, 0, 0};
        const auto open = RequireSet(set);
        if (section >= open->image.sections.size() || index >= open->image.sections[section].properties.size())
            ThrowError(kOrloNotFound, "the section or property index is out of range");
        const ImageProperty& found = open->image.sections[section].properties[index];
        record = {sizeof record, found.id, found.type, found.state == ValueState::complete, found.bytes.size()};
    });
}
