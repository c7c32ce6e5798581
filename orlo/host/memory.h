// Memory blocks and strings that are passed between library and host. No window header.
#pragma once

#include <stddef.h>

#include "orlo/host/api.h"

// Allocates a block of size bytes. The caller frees it with DrawCoreDispose. Returns null if memory runs out.
DRAWCORE_API void* DrawCoreNew(size_t size);
// Frees a block of DrawCoreNew. Does nothing if block is null.
DRAWCORE_API void DrawCoreDispose(void* block);

// Frees a string that PropGet created and sets the variable to null. Does nothing if the variable is null already.
DRAWCORE_API void BStringNULL(char** string);
