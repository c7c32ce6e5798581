// User-visible strings of the library, from this module's string table.

#include "orlo/host/strings.h"

#include <windows.h>

extern "C" IMAGE_DOS_HEADER __ImageBase;

int DrawCoreLoadString(unsigned int id, char* buffer, int size) {
    if (!buffer || size <= 0) return 0;
    buffer[0] = '\0';
    if (size == 1) return 0;
    return ::LoadStringA(reinterpret_cast<HINSTANCE>(&__ImageBase), id, buffer, size);
}
