// The host's allocator on this machine.

#include "orlo/host/memory.h"

#include <cstdlib>

void* DrawCoreNew(size_t size) {
    return std::malloc(size);
}
void DrawCoreDispose(void* block) {
    std::free(block);
}
