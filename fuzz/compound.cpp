// Structures of compound files: any bytes are walked in bounded time and memory, and nothing outside of them is read.

#include <cstdint>
#include <cstring>

#include "orlo/summary/compound_check.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const orlo::ReadAt read = [=](uint64_t offset, void* buffer, size_t count) {
        if (offset > size || count > size - offset) return false;
        std::memcpy(buffer, data + offset, count);
        return true;
    };
    orlo::CheckCompoundFile(read, size);
    return 0;
}
