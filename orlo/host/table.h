// Tables: named entries under 16-bit identifiers, and typed variables. 0 is not an identifier.
//
// A control can keep the address of a table that no longer exists: every function must then behave as for an empty
// table.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Iterate over the identifiers of the entries, in the order of the table. Return 0 at the end. *cookie belongs to the
// caller, does not have to be initialized and holds the whole state: iterations can be nested.
DRAWCORE_API uint16_t TableEntryFirst(TableStruct* table, int* cookie);
DRAWCORE_API uint16_t TableEntryNext(TableStruct* table, int* cookie);

// Copies the name of an entry, at most size bytes including the NUL. Returns 0 if there is no such entry.
DRAWCORE_API int TableEntryGetName(TableStruct* table, uint16_t id, char* buffer, int size);

// Returns the data of an entry, or null. It belongs to the table, which determines its type: a COLORREF*, a
// GraphicStruct* or a string.
DRAWCORE_API void* TableEntryGetData(TableStruct* table, uint16_t id);

// Returns the identifier of the first entry with that name, or 0 if there is none. Names are compared without regard to
// the case of A to Z. cookie may be null.
DRAWCORE_API uint16_t TableEntryGetIDFirst(TableStruct* table, int* cookie, const char* name);

// Returns the drawing that owns the table, or null if there is none.
DRAWCORE_API DrawingStruct* TableGetOwner(TableStruct* table);

// Get a variable. Return 0, and leave *value unchanged, if there is no variable with that number and type.
DRAWCORE_API int TableGetIntVar(TableStruct* table, uint16_t id, long* value);
DRAWCORE_API int TableGetNumericVar(TableStruct* table, uint16_t id, double* value);
DRAWCORE_API int TableGetStringVar(TableStruct* table, uint16_t id, char* buffer, int size);
// Set a variable. A variable of another type with the same number is replaced. Integers have 32 bits. Return 0 if there
// is no such table.
DRAWCORE_API int TableSetIntVar(TableStruct* table, uint16_t id, long value);
DRAWCORE_API int TableSetNumericVar(TableStruct* table, uint16_t id, double value);
DRAWCORE_API int TableSetStringVar(TableStruct* table, uint16_t id, const char* text);
