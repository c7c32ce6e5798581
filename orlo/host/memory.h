// Memory blocks and strings that are passed between library and host. No window header.
#pragma once

#include <stddef.h>

#include "orlo/host/api.h"

// Allocates a block of size bytes. The caller frees it with DrawCoreDispose. Returns null if memory runs out.
// Called: by property sets and their values.
// Failure: null: the property set reports that memory has run out.
DRAWCORE_API void* DrawCoreNew(size_t size);
// Frees a block of DrawCoreNew. Does nothing if block is null.
// Called: by property sets and their values.
DRAWCORE_API void DrawCoreDispose(void* block);

// Frees a string that PropGet created and sets the variable to null. Does nothing if the variable is null already.
// Called: after each string that PropGet has stored.
DRAWCORE_API void BStringNULL(char** string);
