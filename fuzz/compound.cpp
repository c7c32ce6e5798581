// Compound files: any input is read in bounded time and memory, and every stream of an intact file is complete.

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "orlo/summary/compound_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const orlo::ReadAt read = [=](uint64_t offset, void* buffer, size_t count) {
        if (offset > size || count > size - offset) return false;
        std::memcpy(buffer, data + offset, count);
        return true;
    };
    const orlo::CompoundReader file(read, size);
    const bool sound = file.State() == orlo::CompoundState::sound;
    size_t all = 0;
    for (const orlo::CompoundStream& stream : file.Streams()) {
        const size_t there = file.Read(stream).size();
        all += there;
        if (sound && there != stream.size) std::abort();
    }
    if (all > 2 * size) std::abort(); // once as its own stream, and once more for all streams that share it
    return 0;
}
