// Queries the system for memory pages, one run of equal pages at a time.

#include "orlo/summary/readable_bytes.h"

#include <algorithm>
#include <windows.h>

namespace orlo {
namespace {

constexpr size_t kMax = size_t{256} << 20;

bool CanBeRead(const MEMORY_BASIC_INFORMATION& pages) {
    constexpr DWORD kReadable = PAGE_READONLY | PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READ |
                                PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    return pages.State == MEM_COMMIT && (pages.Protect & kReadable) != 0 && (pages.Protect & PAGE_GUARD) == 0;
}

} // namespace

Readable ReadableFrom(const void* address) {
    const auto start = reinterpret_cast<uintptr_t>(address);
    uintptr_t end = start;
    MEMORY_BASIC_INFORMATION pages;
    while (end - start < kMax && ::VirtualQuery(reinterpret_cast<void*>(end), &pages, sizeof pages) == sizeof pages &&
           CanBeRead(pages)) {
        const uintptr_t next = reinterpret_cast<uintptr_t>(pages.BaseAddress) + pages.RegionSize;
        if (next <= end) break;
        end = next;
    }
    return {static_cast<const uint8_t*>(address), std::min<size_t>(end - start, kMax)};
}

} // namespace orlo
