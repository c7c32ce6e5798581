// Counts the blocks that the host's allocator returns per value.

#include <cstdlib>

#include "bench/paired_timer.h"
#include "bench/propset/propset_bench.h"
#include "orlo/host/memory.h"
#include "orlo/propset/property_set.h"
#include "tests/propset/memory_stream.h"

namespace {

size_t allocations = 0;

constexpr GUID kFormat = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};

} // namespace

// Replaces the allocator of the static library.
void* DrawCoreNew(size_t size) {
    ++allocations;
    return std::malloc(size);
}
void DrawCoreDispose(void* block) {
    std::free(block);
}

void BenchAllocations() {
    constexpr DWORD kValues = 1000;
    char text[] = "a text that has to go somewhere";
    CPropertySet set;
    allocations = 0;
    for (DWORD id = 2; id < kValues + 2; ++id)
        set.Set(kFormat, id, text, VT_LPSTR);
    Print("propset_set_allocations", static_cast<double>(allocations) / kValues, "per_value");
    MemoryStream stream;
    allocations = 0;
    set.WriteToStream(&stream);
    Print("propset_write_allocations", static_cast<double>(allocations) / kValues, "per_value");
    stream.Rewind();
    CPropertySet read;
    allocations = 0;
    read.ReadFromStream(&stream);
    Print("propset_read_allocations", static_cast<double>(allocations) / kValues, "per_value");
}
