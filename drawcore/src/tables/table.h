// Tables of a drawing: named entries under 16-bit identifiers and typed variables. A table knows nothing of what its
// entries are; the kinds are in styles/.
//
// Names: at most 255 bytes, not empty, each once in a table. Case does not count in a look-up (A to Z only); the
// spelling given first is kept. Identifiers go up from 1 in the order of adding, which is also the order of a walk,
// and are not given again while there are others.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "drawcore/src/dxf/fold_name.h"

struct DrawingStruct;
struct TableStruct {};

namespace drawcore {

using Id = uint16_t;

constexpr Id kNoId = 0;
constexpr Id kHighestId = 0xFFF0; // what is above are markers: by layer, by block, mixed

// What one identifier refers to.
class TableEntry {
public:
    explicit TableEntry(std::string_view entryName) : name(entryName) {}
    virtual ~TableEntry();
    // What TableEntryGetData gives: a text, a COLORREF, a graphic, by the kind of table. The entry's own; may be null.
    virtual void* Data() { return nullptr; }

    const std::string name;
};

class Table : public TableStruct {
public:
    explicit Table(DrawingStruct* owner);
    virtual ~Table();
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;

    // The table behind a pointer from outside; null for null and for a table that is gone.
    static Table* Find(TableStruct* table);

    DrawingStruct* Owner() const { return owner_; }

    // Makes an entry of this table's kind from a name and the kind's data, for hosts that know only names and data;
    // null if the data is not of the kind.
    virtual std::unique_ptr<TableEntry> MakeEntry(std::string_view name, void* data);

    // Whether an entry of that name can be added.
    bool Takes(std::string_view name) const;
    // The identifier of the new entry; 0, and the entry is gone, if the name is bad or taken or the table is full.
    Id Add(std::unique_ptr<TableEntry> entry);
    virtual bool Remove(Id id);
    TableEntry* At(Id id) const { return id && id <= entries_.size() ? entries_[id - 1].get() : nullptr; }
    Id IdOf(std::string_view name) const;
    Id First() const { return NextFrom(0); }
    Id Next(Id id) const { return NextFrom(id); }
    size_t Count() const { return ids_.size(); }

    using Value = std::variant<int, double, std::string>;
    void SetVariable(uint16_t number, Value value) { variables_[number] = std::move(value); }
    // Null if there isn't one of that number and type.
    template <class Type>
    const Type* Variable(uint16_t number) const {
        const auto found = variables_.find(number);
        return found == variables_.end() ? nullptr : std::get_if<Type>(&found->second);
    }

private:
    Id NextFrom(size_t index) const;
    Id FreeId() const;

    DrawingStruct* const owner_;
    std::vector<std::unique_ptr<TableEntry>> entries_; // under id - 1; null where one was removed
    std::unordered_map<std::string, Id> ids_;          // by folded name
    std::unordered_map<uint16_t, Value> variables_;
};

// A table all of whose entries are of one class.
template <class Entry>
class TableOf : public Table {
public:
    using Table::Table;
    Entry* At(Id id) const { return static_cast<Entry*>(Table::At(id)); }
    Entry* At(std::string_view name) const { return At(IdOf(name)); }
    Id Add(std::unique_ptr<Entry> entry) { return Table::Add(std::move(entry)); }
};

// Copies a text, at most size bytes with the NUL; the number of characters copied.
int CopyText(std::string_view text, char* buffer, int size);

} // namespace drawcore
