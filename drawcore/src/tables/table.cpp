// Finds, adds and removes entries.
#include "drawcore/src/tables/table.h"

#include <algorithm>
#include <cstring>

#include "drawcore/src/tables/live.h"

namespace drawcore {

namespace {

constexpr size_t kLongestName = 255;

// An entry of a plain table: data of the host program, which remains its owner.
class PlainEntry : public TableEntry {
public:
    PlainEntry(std::string_view entryName, void* data) : TableEntry(entryName), data_(data) {}
    void* Data() override { return data_; }

private:
    void* const data_;
};

} // namespace

TableEntry::~TableEntry() = default;

Table::Table(DrawingStruct* owner) : owner_(owner) {
    Live<TableStruct>::Add(this);
}

Table::~Table() {
    Live<TableStruct>::Remove(this);
}

Table* Table::Find(TableStruct* table) {
    return Live<TableStruct>::Has(table) ? static_cast<Table*>(table) : nullptr;
}

std::unique_ptr<TableEntry> Table::MakeEntry(std::string_view name, void* data) {
    return std::make_unique<PlainEntry>(name, data);
}

bool Table::CanAdd(std::string_view name) const {
    return !name.empty() && name.size() <= kLongestName && ids_.size() < kHighestId && IdOf(name) == kNoId;
}

Id Table::Add(std::unique_ptr<TableEntry> entry) {
    if (!entry || !CanAdd(entry->name)) return kNoId;
    const Id id = FreeId();
    ids_.emplace(dxf::FoldName(entry->name), id);
    if (id > entries_.size()) entries_.resize(id);
    entries_[id - 1] = std::move(entry);
    return id;
}

bool Table::Remove(Id id) {
    const TableEntry* entry = At(id);
    if (!entry) return false;
    ids_.erase(dxf::FoldName(entry->name));
    entries_[id - 1].reset();
    return true;
}

Id Table::IdOf(std::string_view name) const {
    const auto found = ids_.find(dxf::FoldName(name));
    return found == ids_.end() ? kNoId : found->second;
}

Id Table::NextFrom(size_t index) const {
    while (index < entries_.size() && !entries_[index])
        ++index;
    return index < entries_.size() ? static_cast<Id>(index + 1) : kNoId;
}

Id Table::FreeId() const {
    if (entries_.size() < kHighestId) return static_cast<Id>(entries_.size() + 1);
    const auto hole = std::find(entries_.begin(), entries_.end(), nullptr);
    return hole == entries_.end() ? kNoId : static_cast<Id>(hole - entries_.begin() + 1);
}

int CopyText(std::string_view text, char* buffer, int size) {
    if (!buffer || size <= 0) return 0;
    const size_t count = std::min(text.size(), static_cast<size_t>(size) - 1);
    std::memcpy(buffer, text.data(), count);
    buffer[count] = '\0';
    return static_cast<int>(count);
}

} // namespace drawcore
