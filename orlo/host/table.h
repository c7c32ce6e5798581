// Tables of named entries and typed variables, both with 16-bit identifiers. 0 is not a valid identifier of an entry.
//
// A control may still have the address of a table that has been freed. Every function must treat such a table as an
// empty one.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/records.h"

// Iterate over the identifiers of the entries, in the order of the table. Return 0 at the end. *cookie is a variable of
// the caller, which does not have to initialize it. It contains the whole state of the iteration, so that iterations
// can be nested.
// Called: when a list is filled.
DRAWCORE_API uint16_t TableEntryFirst(TableStruct* table, int* cookie);
DRAWCORE_API uint16_t TableEntryNext(TableStruct* table, int* cookie);

// Copies the name of an entry, at most size bytes including the NUL. Returns 0 if there is no such entry.
// Called: when a list is filled, drawn or read by a screen reader.
// Failure: 0: the entry is not listed.
DRAWCORE_API int TableEntryGetName(TableStruct* table, uint16_t id, char* buffer, int size);

// Returns the data of an entry, which the table owns, or null. Its type depends on the table: a COLORREF*, a
// GraphicStruct* or a string.
// Called: when a list of colors is filled, when the style part looks for the style that the sheet edits, and by
// FillComboTable and FillListBoxTable.
// Failure: null: a color is not listed.
DRAWCORE_API void* TableEntryGetData(TableStruct* table, uint16_t id);

// Returns the identifier of the first entry with the given name, or 0 if there is no such entry. Names are compared
// ignoring the case of the letters A to Z. cookie may be null.
// Called: when an entry is selected by its name.
// Failure: 0: no entry is selected.
DRAWCORE_API uint16_t TableEntryGetIDFirst(TableStruct* table, int* cookie, const char* name);

// Returns the drawing that owns the table, or null if there is none.
// Called: when a list is filled or drawn.
DRAWCORE_API DrawingStruct* TableGetOwner(TableStruct* table);

// Get a variable. Return 0, and leave the output unchanged, if there is no variable with that identifier and type.
// Called: to read unit names and the background color of previews, and by the exchange functions of variables.
// Failure: 0: the list is empty, or a default value is used.
DRAWCORE_API int TableGetIntVar(TableStruct* table, uint16_t id, long* value);
DRAWCORE_API int TableGetStringVar(TableStruct* table, uint16_t id, char* buffer, int size);
// Called: by the exchange functions of variables, which the library's pages do not use.
// Stub: return 0. Lost: the exchange functions of real variables.
DRAWCORE_API int TableGetNumericVar(TableStruct* table, uint16_t id, double* value);
// Set a variable, replacing a variable of another type that has the same identifier. Integers have 32 bits. Return 0 if
// there is no such table.
// Called: by the exchange functions of variables, which the library's pages do not use.
// Stub: return 0. Lost: the exchange functions of variables.
// Failure: the result is ignored.
DRAWCORE_API int TableSetIntVar(TableStruct* table, uint16_t id, long value);
DRAWCORE_API int TableSetNumericVar(TableStruct* table, uint16_t id, double value);
DRAWCORE_API int TableSetStringVar(TableStruct* table, uint16_t id, const char* text);
