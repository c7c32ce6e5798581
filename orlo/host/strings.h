// User-visible strings supplied by the host; their numbers (kString...) are in words.h.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/words.h"

// Copies a string, at most size bytes including the NUL. Returns the number of characters copied, or 0 if there is no
// such string.
// Called: when lists and previews are filled.
// Failure: the result is ignored; the text is empty.
DRAWCORE_API int DrawCoreLoadString(unsigned int id, char* buffer, int size);
