// Tables of a drawing: named entries with 16-bit identifiers, and typed variables. This class does not depend on the
// kinds of entries, which are defined in styles/.
//
// Names have 1 to 255 bytes and are unique within a table. They are compared ignoring the case of the letters A to Z,
// and keep their original spelling. Identifiers ascend from 1 in the order in which entries are added, which is also
// the iteration order. They are reused only when no others are left.
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
constexpr Id kHighestId = 0xFFF0; // greater values are markers: by layer, by block, indeterminate

// An entry of a table.
class TableEntry {
public:
    explicit TableEntry(std::string_view entryName) : name(entryName) {}
    virtual ~TableEntry();
    // Returns the result of TableEntryGetData: depending on the table, a text, a COLORREF or a graphic, which the entry
    // owns. May be null.
    virtual void* Data() { return nullptr; }

    const std::string name;
};

class Table : public TableStruct {
public:
    explicit Table(DrawingStruct* owner);
    virtual ~Table();
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;

    // Returns the table for a caller's pointer, or null if it is null or the table no longer exists.
    static Table* Find(TableStruct* table);

    DrawingStruct* Owner() const { return owner_; }

    // Creates an entry from a name and the data of TableEntryAdd. Returns null if the data is not suitable for the
    // table.
    virtual std::unique_ptr<TableEntry> MakeEntry(std::string_view name, void* data);

    // Returns whether an entry with that name can be added.
    bool CanAdd(std::string_view name) const;
    // Adds an entry and returns its identifier. Returns 0 and deletes the entry if the name is invalid or exists, or if
    // the table is full.
    Id Add(std::unique_ptr<TableEntry> entry);
    virtual bool Remove(Id id);
    TableEntry* At(Id id) const { return id && id <= entries_.size() ? entries_[id - 1].get() : nullptr; }
    Id IdOf(std::string_view name) const;
    Id First() const { return NextFrom(0); }
    Id Next(Id id) const { return NextFrom(id); }
    size_t Count() const { return ids_.size(); }

    using Value = std::variant<int, double, std::string>;
    void SetVariable(uint16_t number, Value value) { variables_[number] = std::move(value); }
    // Returns null if there is no variable with that number and type.
    template <class Type>
    const Type* Variable(uint16_t number) const {
        const auto found = variables_.find(number);
        return found == variables_.end() ? nullptr : std::get_if<Type>(&found->second);
    }

private:
    Id NextFrom(size_t index) const;
    Id FreeId() const;

    DrawingStruct* const owner_;
    std::vector<std::unique_ptr<TableEntry>> entries_; // at index id - 1; null if removed
    std::unordered_map<std::string, Id> ids_;          // by case-folded name
    std::unordered_map<uint16_t, Value> variables_;
};

// A table whose entries are all of one class.
template <class Entry>
class TableOf : public Table {
public:
    using Table::Table;
    Entry* At(Id id) const { return static_cast<Entry*>(Table::At(id)); }
    Entry* At(std::string_view name) const { return At(IdOf(name)); }
    Id Add(std::unique_ptr<Entry> entry) { return Table::Add(std::move(entry)); }
};

// Copies text, at most size bytes including the NUL, and returns the number of characters copied.
int CopyText(std::string_view text, char* buffer, int size);

} // namespace drawcore
