// Memory blocks and strings that are passed to callers, and the counts of existing objects.

#include "orlo/host/memory.h"

#include <cstdlib>

#include "drawcore/include/drawcore/census.h"
#include "drawcore/src/graphics/census.h"

using drawcore::Census;

void* DrawCoreNew(size_t size) {
    void* block = std::malloc(size ? size : 1);
    if (block) ++Census::blocks;
    return block;
}

void DrawCoreDispose(void* block) {
    if (!block) return;
    --Census::blocks;
    std::free(block);
}

void BStringNULL(char** string) {
    if (!string) return;
    DrawCoreDispose(*string);
    *string = nullptr;
}

void DrawCoreGetCensus(DrawCoreCensus* census) {
    if (census) *census = {Census::blocks, Census::graphics, Census::vertices, Census::viewports};
}
