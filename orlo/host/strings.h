// Texts of the host that the library shows; their numbers are in words.h.
#pragma once

#include "orlo/host/api.h"
#include "orlo/host/words.h"

// Copies the text, at most size bytes with the NUL; the number of characters copied, 0 if there is no such text.
DRAWCORE_API int DrawCoreLoadString(unsigned int id, char* buffer, int size);
