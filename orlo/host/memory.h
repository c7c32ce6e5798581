// Blocks and strings that cross the boundary between library and host. No window header.
#pragma once

#include <stddef.h>

#include "orlo/host/api.h"

// A block of that size, null if there is no memory; DrawCoreDispose takes it back (null is harmless).
DRAWCORE_API void* DrawCoreNew(size_t size);
DRAWCORE_API void DrawCoreDispose(void* block);

// Releases a string that PropGet has made and sets the variable to null; harmless on null.
DRAWCORE_API void BStringNULL(char** string);
