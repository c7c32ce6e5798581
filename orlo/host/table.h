// Tables: named entries under 16-bit identifiers, and typed variables. 0 is not an identifier.
//
// A control can keep the address of a table that no longer exists: every function must then behave as for an empty
// table.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Iterate over the identifiers of the entries, in the order of the table. Return 0 at the end. *cookie belongs to the
// caller, does not have to be initialized and holds the whole state: iterations can be nested.
// Called: when a list of a table is filled.
DRAWCORE_API uint16_t TableEntryFirst(TableStruct* table, int* cookie);
DRAWCORE_API uint16_t TableEntryNext(TableStruct* table, int* cookie);

// Copies the name of an entry, at most size bytes including the NUL. Returns 0 if there is no such entry.
// Called: when a list of a table is filled, drawn or read by a screen reader.
// Failure: 0: the entry is left out.
DRAWCORE_API int TableEntryGetName(TableStruct* table, uint16_t id, char* buffer, int size);

// Returns the data of an entry, or null. It belongs to the table, which determines its type: a COLORREF*, a
// GraphicStruct* or a string.
// Called: when a list of colors or of style names is filled, and by FillComboTable and FillListBoxTable.
// Failure: null: the entry has no color or no contents.
DRAWCORE_API void* TableEntryGetData(TableStruct* table, uint16_t id);

// Returns the identifier of the first entry with that name, or 0 if there is none. Names are compared without regard to
// the case of A to Z. cookie may be null.
// Called: when an entry is selected by its name.
// Failure: 0: no entry is selected.
DRAWCORE_API uint16_t TableEntryGetIDFirst(TableStruct* table, int* cookie, const char* name);

// Returns the drawing that owns the table, or null if there is none.
// Called: when a list of a table is filled or drawn.
DRAWCORE_API DrawingStruct* TableGetOwner(TableStruct* table);

// Get a variable. Return 0, and leave *value unchanged, if there is no variable with that number and type.
// Called: for units, the background of previews, and by exchange functions of variables.
// Failure: 0: the list is empty, or the default value is used.
DRAWCORE_API int TableGetIntVar(TableStruct* table, uint16_t id, long* value);
DRAWCORE_API int TableGetStringVar(TableStruct* table, uint16_t id, char* buffer, int size);
// Called: by exchange functions of variables, which the library's pages do not use.
// Stub: return 0. Lost: the exchange of real variables.
DRAWCORE_API int TableGetNumericVar(TableStruct* table, uint16_t id, double* value);
// Set a variable. A variable of another type with the same number is replaced. Integers have 32 bits. Return 0 if there
// is no such table.
// Called: by exchange functions of variables, which the library's pages do not use.
// Stub: return 0. Lost: the exchange functions of variables.
// Failure: the result is ignored.
DRAWCORE_API int TableSetIntVar(TableStruct* table, uint16_t id, long value);
DRAWCORE_API int TableSetNumericVar(TableStruct* table, uint16_t id, double value);
DRAWCORE_API int TableSetStringVar(TableStruct* table, uint16_t id, const char* text);
