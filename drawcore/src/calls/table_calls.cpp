// Functions of the host contract for tables. A freed table behaves like an empty one.

#include "drawcore/include/drawcore/table.h"
#include "drawcore/src/database/drawing.h"
#include "drawcore/src/tables/table.h"
#include "orlo/host/table.h"

using namespace drawcore;

uint16_t TableEntryFirst(TableStruct* table, int* cookie) {
    const Table* found = Table::Find(table);
    const Id id = found ? found->First() : kNoId;
    if (cookie) *cookie = id;
    return id;
}

uint16_t TableEntryNext(TableStruct* table, int* cookie) {
    const Table* found = Table::Find(table);
    if (!found || !cookie || *cookie <= 0 || *cookie > kHighestId) return kNoId;
    const Id id = found->Next(static_cast<Id>(*cookie));
    *cookie = id;
    return id;
}

int TableEntryGetName(TableStruct* table, uint16_t id, char* buffer, int size) {
    const Table* found = Table::Find(table);
    const TableEntry* entry = found ? found->At(id) : nullptr;
    if (!entry || !buffer || size <= 0) return 0;
    CopyText(entry->name, buffer, size);
    return 1;
}

void* TableEntryGetData(TableStruct* table, uint16_t id) {
    const Table* found = Table::Find(table);
    TableEntry* entry = found ? found->At(id) : nullptr;
    return entry ? entry->Data() : nullptr;
}

uint16_t TableEntryGetIDFirst(TableStruct* table, int* cookie, const char* name) {
    const Table* found = Table::Find(table);
    const Id id = found && name ? found->IdOf(name) : kNoId;
    if (cookie) *cookie = id;
    return id;
}

DrawingStruct* TableGetOwner(TableStruct* table) {
    const Table* found = Table::Find(table);
    return found ? found->Owner() : nullptr;
}

uint16_t TableEntryAdd(TableStruct* table, const char* name, void* data) {
    Table* found = Table::Find(table);
    return found && name && found->CanAdd(name) ? found->Add(found->MakeEntry(name, data)) : kNoId;
}

int TableEntryDelete(TableStruct* table, uint16_t id) {
    Table* found = Table::Find(table);
    return found && found->Remove(id);
}

namespace {

template <class Type>
int GetVariable(TableStruct* table, uint16_t id, Type* value) {
    const Table* found = Table::Find(table);
    const Type* variable = found ? found->Variable<Type>(id) : nullptr;
    if (!variable || !value) return 0;
    *value = *variable;
    return 1;
}

int SetVariable(TableStruct* table, uint16_t id, Table::Value value) {
    Table* found = Table::Find(table);
    if (!found) return 0;
    found->SetVariable(id, std::move(value));
    return 1;
}

} // namespace

int TableGetIntVar(TableStruct* table, uint16_t id, long* value) {
    int integer = 0;
    if (!value || !GetVariable(table, id, &integer)) return 0;
    *value = integer;
    return 1;
}

int TableGetStringVar(TableStruct* table, uint16_t id, char* buffer, int size) {
    const Table* found = Table::Find(table);
    const std::string* variable = found ? found->Variable<std::string>(id) : nullptr;
    if (!variable || !buffer || size <= 0) return 0;
    CopyText(*variable, buffer, size);
    return 1;
}

int TableSetIntVar(TableStruct* table, uint16_t id, long value) {
    return SetVariable(table, id, static_cast<int>(value));
}

int TableSetNumericVar(TableStruct* table, uint16_t id, double value) {
    return SetVariable(table, id, value);
}

int TableSetStringVar(TableStruct* table, uint16_t id, const char* text) {
    return text && SetVariable(table, id, std::string(text));
}

int TableGetNumericVar(TableStruct* table, uint16_t id, double* value) {
    return GetVariable(table, id, value);
}
