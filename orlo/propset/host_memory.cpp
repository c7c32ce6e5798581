// Implements the host's allocator for programs without a host. Only in the static library.

#include "orlo/host/memory.h"

#include <cstdlib>

void* DrawCoreNew(size_t size) {
    return std::malloc(size);
}
void DrawCoreDispose(void* block) {
    std::free(block);
}
