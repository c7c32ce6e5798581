// Memory blocks and strings that are passed between library and host. No window header.
#pragma once

#include <stddef.h>

#include "orlo/host/api.h"

// Allocates a block of size bytes. The caller frees it with DrawCoreDispose. Returns null if memory runs out.
// Called: by property sets and their values, and for texts that a callback of a page of fields stores.
// Failure: null: the property set reports that memory has run out; the field is empty.
DRAWCORE_API void* DrawCoreNew(size_t size);
// Frees a block that DrawCoreNew has allocated. Does nothing if block is null.
// Called: by property sets and their values.
DRAWCORE_API void DrawCoreDispose(void* block);

// Frees a string that PropGet has created, or a block of DrawCoreNew, and sets the variable to null. Does nothing if
// the variable is already null.
// Called: for each string that PropGet, or the callback of a field, has stored.
DRAWCORE_API void BStringNULL(char** string);
