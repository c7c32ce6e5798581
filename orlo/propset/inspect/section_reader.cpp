// Reads one section of a set image and reports everything that is irregular.

#include "orlo/propset/inspect/section_reader.h"

#include <algorithm>
#include <iomanip>

#include "orlo/propset/code_page.h"
#include "orlo/propset/inspect/image_dictionary.h"
#include "orlo/propset/inspect/value_findings.h"
#include "orlo/propset/set_layout.h"
#include "orlo/propset/value_walk.h"

namespace orlo {

namespace {

struct Hex {
    uint32_t number;
};
std::ostream& operator<<(std::ostream& out, Hex hex) {
    return out << "0x" << std::hex << std::uppercase << std::setw(4) << std::setfill('0') << hex.number << std::dec;
}

constexpr size_t kUsualEntries = 32; // initial capacity

size_t Aligned(size_t size) {
    return size + PaddingOf(size);
}

// Returns true if values of that type have a known size.
bool HasForm(uint32_t type) {
    return IsVector(type) ? SmallestElement(BaseType(type)) != 0 : FormOf(type).form != Form::none;
}

std::string DescribeRequiredSize(uint32_t type, const uint8_t* bytes, size_t size) {
    const TypeForm& form = FormOf(type);
    if (form.form == Form::fixed) return "needs " + std::to_string(form.size) + " bytes";
    if (size < 4) return "needs 4 bytes for its count";
    if (IsVector(type)) return "declares " + std::to_string(LittleEndian<uint32_t>(bytes)) + " elements";
    return "needs " + std::to_string(CountedSize(form.form, LittleEndian<uint32_t>(bytes))) + " bytes";
}

} // namespace

SectionReader::SectionReader(const uint8_t* head, size_t left, size_t available, std::string place, ReadBudget& budget,
                             Report& report, ImageSection& section)
    : head_(head), remaining_(left), available_(available), place_(std::move(place)), budget_(budget), report_(report),
      section_(section) {}

std::string SectionReader::NameOf(const Entry& entry) const {
    return place_ + ", property " + std::to_string(entry.id);
}

size_t SectionReader::Read() {
    section_.size = LittleEndian<uint32_t>(head_);
    section_.count = LittleEndian<uint32_t>(head_ + 4);
    reached_ = kSectionHeadSize;
    if (section_.size > remaining_)
        report_.Add(FindingCode::sectionSizePastEnd, Severity::irregular, section_.offset, place_, ": size ",
                    section_.size, ", but only ", remaining_,
                    " bytes remain in the stream; the values are read from these");
    if (section_.size % 4 != 0)
        report_.Add(FindingCode::sectionSizeOdd, Severity::note, section_.offset, place_, ": size ", section_.size,
                    " is not a multiple of 4");
    ReadTable();
    CheckTable();
    ReadValues();
    CheckGaps();
    section_.properties.reserve(entries_.size());
    for (Entry& entry : entries_)
        if (entry.isProperty) section_.properties.push_back(std::move(entry.property));
    return reached_;
}

void SectionReader::ReadTable() {
    const size_t fitting = (remaining_ - kSectionHeadSize) / kPropertyLineSize;
    const bool isShort = section_.count > fitting;
    if (isShort)
        report_.Add(FindingCode::propertyTableShort, Severity::damaged, section_.offset + 4, place_, ": a table of ",
                    section_.count, " properties needs ", uint64_t{section_.count} * kPropertyLineSize, " bytes, ",
                    remaining_ - kSectionHeadSize, " remain; it is read up to the first value");
    size_t firstValue = remaining_;
    entries_.reserve(std::min({fitting, size_t{section_.count}, kUsualEntries}));
    for (size_t i = 0; i < std::min<size_t>(fitting, section_.count); ++i) {
        const size_t at = kSectionHeadSize + i * kPropertyLineSize;
        if (isShort && at + kPropertyLineSize > firstValue) break; // the table ends at the first value
        if (!budget_.Spend(kPropertyLineSize)) {
            report_.Add(FindingCode::valuesTooLarge, Severity::damaged, section_.offset + at, place_,
                        ": the tables are larger than the stream allows; the rest is ignored");
            break;
        }
        Entry entry{};
        entry.id = LittleEndian<uint32_t>(head_ + at);
        entry.offset = LittleEndian<uint32_t>(head_ + at + 4);
        if (entry.offset >= at + kPropertyLineSize) firstValue = std::min<size_t>(firstValue, entry.offset);
        entries_.push_back(std::move(entry));
    }
    reached_ += entries_.size() * kPropertyLineSize;
}

// Sorts the entries by offset and checks the table.
void SectionReader::CheckTable() {
    size_t unaligned = 0;
    bool isAscending = true;
    sorted_.reserve(entries_.size());
    for (Entry& entry : entries_) {
        if (!sorted_.empty() && entry.offset < sorted_.back()->offset) isAscending = false;
        sorted_.push_back(&entry);
        if (entry.offset % 4 != 0) ++unaligned;
    }
    CheckRepeatedIds();
    if (unaligned > 0)
        report_.Add(FindingCode::offsetUnaligned, Severity::note, section_.offset + kSectionHeadSize, place_, ": ",
                    unaligned, " values have offsets that are not multiples of 4");
    if (isAscending) return;
    report_.Add(FindingCode::offsetNotAscending, Severity::note, section_.offset + kSectionHeadSize, place_,
                ": the values are not in table order");
    std::stable_sort(sorted_.begin(), sorted_.end(),
                     [](const Entry* a, const Entry* b) { return a->offset < b->offset; });
}

void SectionReader::CheckRepeatedIds() {
    const auto isNotAscending = [](const Entry* a, const Entry* b) { return a->id >= b->id; };
    if (std::adjacent_find(sorted_.begin(), sorted_.end(), isNotAscending) == sorted_.end()) return;
    std::vector<const Entry*> byId(sorted_.begin(), sorted_.end()); // still in table order
    const auto less = [](const Entry* a, const Entry* b) { return a->id < b->id; };
    std::stable_sort(byId.begin(), byId.end(), less);
    for (size_t i = 1; i < byId.size(); ++i) {
        const Entry& entry = *byId[i];
        if (entry.id != byId[i - 1]->id) continue;
        const size_t at = kSectionHeadSize + static_cast<size_t>(&entry - entries_.data()) * kPropertyLineSize;
        report_.Add(FindingCode::idRepeated, Severity::irregular, section_.offset + at, NameOf(entry),
                    ": the identifier is repeated; readers use the first or the last");
    }
}

void SectionReader::ReadValues() {
    size_t next = 0; // the first entry with a greater offset, since several entries may share one
    for (size_t i = 0; i < sorted_.size(); ++i) {
        Entry& entry = *sorted_[i];
        while (next < sorted_.size() && sorted_[next]->offset <= entry.offset)
            ++next;
        const size_t limit = entry.offset < available_ ? available_ : remaining_;
        const size_t end = next < sorted_.size() ? std::min<size_t>(sorted_[next]->offset, remaining_) : limit;
        entry.available = end >= entry.offset + kTypeSize ? end - entry.offset - kTypeSize : 0;
        if (entry.id != kDictionaryId) ReadValue(entry);
    }
    ReadCodePage();
    bool hasDictionary = false;
    for (Entry& entry : entries_) {
        if (entry.id == kDictionaryId && !hasDictionary) {
            hasDictionary = true;
            ReadDictionary(entry);
        }
        if (entry.isProperty && entry.property.state == ValueState::complete)
            CheckValue(entry.property, section_.codePage, section_.offset + entry.offset + kTypeSize, place_, report_);
        if (section_.size <= remaining_ && entry.end > section_.size)
            report_.Add(FindingCode::valueBeyondSection, Severity::irregular, section_.offset + entry.offset,
                        NameOf(entry), " ends beyond the section's size of ", section_.size, "; the value is complete");
    }
}

void SectionReader::ReadValue(Entry& entry) {
    const uint64_t at = section_.offset + uint64_t{entry.offset};
    ImageProperty& property = entry.property;
    entry.isProperty = true;
    property.id = entry.id;
    property.offset = entry.offset;
    property.state = ValueState::partial;
    if (entry.offset > remaining_ - kTypeSize) {
        report_.Add(FindingCode::offsetPastEnd, Severity::damaged, at, NameOf(entry), ": offset ", entry.offset,
                    ", but the stream has ", remaining_, " bytes from the start of the section; the value is missing");
        return;
    }
    const uint32_t type = LittleEndian<uint32_t>(head_ + entry.offset);
    property.type = type & 0xFFFF;
    property.typeHighHalf = static_cast<uint16_t>(type >> 16);
    if (type != property.type)
        report_.Add(FindingCode::typeHighHalf, Severity::irregular, at, NameOf(entry), ": type ", Hex{type},
                    " has bits in its high half, which readers ignore");

    ReadContents(entry);
}

void SectionReader::ReadContents(Entry& entry) {
    const uint64_t at = section_.offset + uint64_t{entry.offset};
    const ImageProperty& property = entry.property;
    const uint8_t* bytes = head_ + entry.offset + kTypeSize;
    const bool isVector = IsVector(property.type);
    // A vector is measured only up to the next value, so that no bytes are measured twice.
    const size_t reach = isVector ? entry.available : remaining_ - entry.offset - kTypeSize;
    if (isVector && !budget_.Spend(reach)) return ReportTooLarge(entry);
    if (const std::optional<Extent> extent = MeasureValue(property.type, bytes, reach)) {
        if (!isVector && !budget_.Spend(extent->size)) return ReportTooLarge(entry);
        SetValue(entry, ValueState::complete, extent->size);
    } else if (HasForm(property.type)) {
        report_.Add(FindingCode::valueShort, Severity::damaged, at, NameOf(entry), ": ", TypeName(property.type), " ",
                    DescribeRequiredSize(property.type, bytes, reach), ", ", reach,
                    " bytes are present; the value is truncated");
        if (!isVector && !budget_.Spend(entry.available)) return ReportTooLarge(entry);
        SetValue(entry, ValueState::partial, entry.available);
    } else {
        report_.Add(FindingCode::typeUnknown, Severity::irregular, at, NameOf(entry), ": ", TypeName(property.type),
                    " is unknown; its bytes up to the next value are preserved");
        const size_t toSectionEnd =
            section_.size > entry.offset + kTypeSize ? section_.size - entry.offset - kTypeSize : 0;
        const size_t size = std::min(entry.available, toSectionEnd > 0 ? toSectionEnd : entry.available);
        if (!isVector && !budget_.Spend(size)) return ReportTooLarge(entry);
        SetValue(entry, ValueState::opaque, size);
    }
}

void SectionReader::ReportTooLarge(Entry& entry) {
    report_.Add(FindingCode::valuesTooLarge, Severity::damaged, section_.offset + uint64_t{entry.offset}, NameOf(entry),
                ": the values are larger than the stream allows; ignored");
}

void SectionReader::SetValue(Entry& entry, ValueState state, size_t size) {
    const uint8_t* bytes = head_ + entry.offset + kTypeSize;
    entry.property.state = state;
    entry.property.bytes.assign(bytes, bytes + size);
    if (state == ValueState::opaque) entry.property.bytes.resize(Aligned(size)); // may include padding
    if (state != ValueState::partial) entry.end = entry.offset + kTypeSize + size;
}

void SectionReader::ReadCodePage() {
    bool hasText = false;
    for (const Entry& entry : entries_) {
        const ImageProperty& property = entry.property;
        if (entry.id == kDictionaryId || FormOf(BaseType(property.type)).form == Form::bytes) hasText = true;
        if (entry.id != kCodePageId || section_.codePage || property.state == ValueState::partial) continue;
        if (property.type == VT_I2)
            section_.codePage = LittleEndian<uint16_t>(property.bytes.data());
        else
            report_.Add(FindingCode::codePageType, Severity::irregular, section_.offset + uint64_t{entry.offset},
                        place_, ": the code page has ", TypeName(property.type), " instead of VT_I2; ignored");
    }
    if (!section_.codePage && hasText)
        report_.Add(FindingCode::noCodePage, Severity::irregular, section_.offset, place_,
                    ": no code page; readers use 1252 or the code page of their system");
}

void SectionReader::ReadDictionary(Entry& entry) {
    const uint64_t at = section_.offset + uint64_t{entry.offset};
    if (entry.offset > remaining_ - kTypeSize) {
        report_.Add(FindingCode::offsetPastEnd, Severity::damaged, at, place_, ": the dictionary's offset is ",
                    entry.offset, ", but the stream has ", remaining_,
                    " bytes from the start of the section; the names are missing");
        return;
    }
    const uint8_t* bytes = head_ + entry.offset;
    const size_t size = kTypeSize + entry.available;
    const uint16_t codePage = section_.codePage.value_or(kUsualCodePage);
    if (!budget_.Spend(size)) return ReportTooLarge(entry);
    const uint32_t type = LittleEndian<uint32_t>(bytes);
    const std::optional<Extent> asValue = MeasureValue(type, bytes + kTypeSize, entry.available);
    const bool isLastInSection = asValue && entry.offset + kTypeSize + Aligned(asValue->size) == section_.size;
    if (asValue && (isLastInSection || entry.available - asValue->size < 4) &&
        !IsWholeDictionary(bytes, size, codePage)) {
        report_.Add(FindingCode::dictionaryTyped, Severity::irregular, at, place_,
                    ": property 0 is not a dictionary but a value of type ", TypeName(type));
        return ReadValue(entry);
    }
    const std::optional<ImageDictionary> dictionary = ReadImageDictionary(bytes, size, codePage, at, place_, report_);
    if (!dictionary) return;
    section_.dictionary = dictionary->entries;
    entry.end = entry.offset + dictionary->size;
}

// Checks in offset order for unused bytes between values and for overlapping values.
void SectionReader::CheckGaps() {
    const size_t tableEnd = reached_;
    const Entry* before = nullptr;
    for (const Entry* entry : sorted_) {
        const uint64_t at = section_.offset + uint64_t{entry->offset};
        if (entry->end == 0) {
            before = entry;
            continue;
        }
        if (entry->offset < tableEnd)
            report_.Add(FindingCode::offsetInTable, Severity::irregular, at, NameOf(*entry), ": offset ", entry->offset,
                        " is inside the table of properties");
        else if (before == nullptr && entry->offset >= tableEnd + kTypeSize)
            report_.Add(FindingCode::gapAfterTable, Severity::irregular, section_.offset + tableEnd, place_, ": ",
                        entry->offset - tableEnd, " unused bytes after the table of properties");
        if (before != nullptr && before->end > entry->offset)
            report_.Add(FindingCode::valuesOverlap, Severity::irregular, at, NameOf(*entry), " begins inside property ",
                        before->id);
        else if (before != nullptr && before->end != 0 && entry->offset >= Aligned(before->end) + kTypeSize)
            report_.Add(FindingCode::unusedBytes, Severity::irregular, section_.offset + before->end, NameOf(*before),
                        ": ", entry->offset - Aligned(before->end), " unused bytes after the value");
        reached_ = std::max(reached_, entry->end);
        before = entry;
    }
    const bool isWhole = before == nullptr || before->end != 0;
    if (isWhole && section_.size <= remaining_ && section_.size >= Aligned(reached_) + kTypeSize)
        report_.Add(FindingCode::spareBytes, Severity::irregular, section_.offset + reached_, place_, ": ",
                    section_.size - Aligned(reached_), " spare bytes at the end");
}

} // namespace orlo
