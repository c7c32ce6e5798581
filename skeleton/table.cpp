// Tables: entries with identifiers from 1, and variables. A freed table behaves like an empty one.

#include <set>

#include "database.h"

namespace {

std::set<TableStruct*>& Alive() {
    static std::set<TableStruct*> alive;
    return alive;
}

} // namespace

TableStruct::TableStruct(Drawing* drawing) : owner(drawing) {
    Alive().insert(this);
}

TableStruct::~TableStruct() {
    Alive().erase(this);
}

TableStruct* TableStruct::Find(TableStruct* table) {
    return Alive().count(table) ? table : nullptr;
}

Entry* TableStruct::At(uint16_t id) {
    const auto found = entries.find(id);
    return found != entries.end() ? &found->second : nullptr;
}

uint16_t TableStruct::IdOf(const char* name) const {
    for (const auto& [id, entry] : entries)
        if (::_stricmp(entry.name.c_str(), name) == 0) return id;
    return 0;
}

uint16_t TableStruct::Add(const char* name, Entry content) {
    constexpr uint16_t kHighest = 0xFFF0; // higher numbers are markers
    const uint16_t id = entries.empty() ? uint16_t{1} : static_cast<uint16_t>(entries.rbegin()->first + 1);
    if (!*name || IdOf(name) || id > kHighest) return 0;
    content.name = name;
    entries.emplace(id, std::move(content));
    return id;
}

namespace {

uint16_t NextEntry(TableStruct* table, int id, int* cookie) {
    const TableStruct* found = TableStruct::Find(table);
    if (!found || !cookie || id < 0 || id > UINT16_MAX) return 0;
    const auto next = found->entries.upper_bound(static_cast<uint16_t>(id));
    *cookie = next != found->entries.end() ? next->first : UINT16_MAX;
    return next != found->entries.end() ? next->first : uint16_t{0};
}

template <class Type>
const Type* Variable(TableStruct* table, uint16_t id) {
    const TableStruct* found = TableStruct::Find(table);
    if (!found || !found->variables.count(id)) return nullptr;
    return std::get_if<Type>(&found->variables.at(id));
}

template <class Type>
int GetVariable(TableStruct* table, uint16_t id, Type* value) {
    const Type* variable = Variable<Type>(table, id);
    if (!variable || !value) return 0;
    *value = *variable;
    return 1;
}

template <class Type>
int SetVariable(TableStruct* table, uint16_t id, Type value) {
    TableStruct* found = TableStruct::Find(table);
    if (!found) return 0;
    found->variables[id] = std::move(value);
    return 1;
}

} // namespace

uint16_t TableEntryFirst(TableStruct* table, int* cookie) {
    return NextEntry(table, 0, cookie);
}

uint16_t TableEntryNext(TableStruct* table, int* cookie) {
    return cookie ? NextEntry(table, *cookie, cookie) : uint16_t{0};
}

int TableEntryGetName(TableStruct* table, uint16_t id, char* buffer, int size) {
    TableStruct* found = TableStruct::Find(table);
    const Entry* entry = found ? found->At(id) : nullptr;
    if (!entry || !buffer || size <= 0) return 0;
    CopyText(entry->name, buffer, size);
    return 1;
}

// A color's COLORREF or the contents of a block.
void* TableEntryGetData(TableStruct* table, uint16_t id) {
    TableStruct* found = TableStruct::Find(table);
    Entry* entry = found ? found->At(id) : nullptr;
    if (!entry) return nullptr;
    return entry->contents ? static_cast<void*>(static_cast<GraphicStruct*>(entry->contents.get())) : &entry->color;
}

uint16_t TableEntryGetIDFirst(TableStruct* table, int*, const char* name) {
    const TableStruct* found = TableStruct::Find(table);
    return found && name ? found->IdOf(name) : uint16_t{0};
}

DrawingStruct* TableGetOwner(TableStruct* table) {
    const TableStruct* found = TableStruct::Find(table);
    return found ? found->owner : nullptr;
}

int TableGetIntVar(TableStruct* table, uint16_t id, long* value) {
    return GetVariable(table, id, value);
}

int TableGetNumericVar(TableStruct* table, uint16_t id, double* value) {
    return GetVariable(table, id, value);
}

int TableGetStringVar(TableStruct* table, uint16_t id, char* buffer, int size) {
    const std::string* text = Variable<std::string>(table, id);
    if (!text || !buffer || size <= 0) return 0;
    CopyText(*text, buffer, size);
    return 1;
}

int TableSetIntVar(TableStruct* table, uint16_t id, long value) {
    return SetVariable(table, id, value);
}

int TableSetNumericVar(TableStruct* table, uint16_t id, double value) {
    return SetVariable(table, id, value);
}

int TableSetStringVar(TableStruct* table, uint16_t id, const char* text) {
    return text ? SetVariable(table, id, std::string(text)) : 0;
}
