// Memory blocks and strings that are passed to callers, and the counts of existing objects.

#include "orlo/host/memory.h"

#include <cstdlib>

#include "drawcore/include/drawcore/object_counts.h"
#include "drawcore/src/graphics/object_counts.h"

using drawcore::ObjectCounts;

void* DrawCoreNew(size_t size) {
    void* block = std::malloc(size ? size : 1);
    if (block) ++ObjectCounts::blocks;
    return block;
}

void DrawCoreDispose(void* block) {
    if (!block) return;
    --ObjectCounts::blocks;
    std::free(block);
}

void BStringNULL(char** string) {
    if (!string) return;
    DrawCoreDispose(*string);
    *string = nullptr;
}

void DrawCoreGetObjectCounts(DrawCoreObjectCounts* counts) {
    if (counts)
        *counts = {ObjectCounts::blocks, ObjectCounts::graphics, ObjectCounts::vertices, ObjectCounts::viewports};
}
