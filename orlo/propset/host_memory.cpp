// The host's allocator for programs that have no host: part of the static library only.

#include "orlo/host/memory.h"

#include <cstdlib>

void* DrawCoreNew(size_t size) {
    return std::malloc(size);
}
void DrawCoreDispose(void* block) {
    std::free(block);
}
