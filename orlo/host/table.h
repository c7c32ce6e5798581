// Tables of the host: named entries under 16-bit identifiers (0 is none), and typed variables. A table can go while someone
// still holds it: every call on it then answers as for an empty table.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Walk over the entries in table order. The cookie is the caller's and needs no start value. 0 at the end.
DRAWCORE_API uint16_t TableEntryFirst(TableStruct*, int* cookie);
DRAWCORE_API uint16_t TableEntryNext(TableStruct*, int* cookie);

// Copies the entry's name, at most size bytes with the NUL. 0 if there is no such entry.
DRAWCORE_API int TableEntryGetName(TableStruct*, uint16_t id, char* buffer, int size);

// The entry's data, whose kind is the table's: a text, a COLORREF, a graphic. The table's own; may be null.
DRAWCORE_API void* TableEntryGetData(TableStruct*, uint16_t id);

// Identifier of the first entry of that name, 0 if there isn't one; A to Z count like a to z. The cookie may be null.
DRAWCORE_API uint16_t TableEntryGetIDFirst(TableStruct*, int* cookie, const char* name);

// The drawing that owns the table; null if there isn't one.
DRAWCORE_API DrawingStruct* TableGetOwner(TableStruct*);

// Typed variables. 0, with the value left alone, if there is no variable of that number and type.
DRAWCORE_API int TableGetIntVar(TableStruct*, uint16_t id, long* value);
DRAWCORE_API int TableGetNumericVar(TableStruct*, uint16_t id, double* value);
DRAWCORE_API int TableGetStringVar(TableStruct*, uint16_t id, char* buffer, int size);
// Integers have 32 bits. A variable of another type under that identifier is replaced. 0 if there is no such table.
DRAWCORE_API int TableSetIntVar(TableStruct*, uint16_t id, long value);
DRAWCORE_API int TableSetNumericVar(TableStruct*, uint16_t id, double value);
DRAWCORE_API int TableSetStringVar(TableStruct*, uint16_t id, const char* text);
