// Compound files: any bytes are traversed and read in bounded time and memory, and every stream of an intact file is
// complete, also after the file was rewritten with a new layout.

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <string>

#include "orlo/summary/compound_reader.h"
#include "orlo/summary/compound_writer.h"

namespace {

orlo::CompoundReader ReaderOf(const std::string& bytes) {
    const orlo::ReadAt read = [&bytes](uint64_t offset, void* buffer, size_t count) {
        if (offset > bytes.size() || count > bytes.size() - offset) return false;
        std::memcpy(buffer, bytes.data() + offset, count);
        return true;
    };
    return orlo::CompoundReader(read, bytes.size());
}

void WriteAndCompare(const orlo::CompoundReader& file) {
    std::string bytes;
    orlo::WriteCompoundFile(&file, {}, [&bytes](std::string_view chunk) { bytes += chunk; });
    const orlo::CompoundReader after = ReaderOf(bytes);
    if (after.State() != orlo::CompoundState::intact || after.Streams().size() != file.Streams().size()) std::abort();
    for (size_t i = 0; i < file.Streams().size(); ++i)
        if (after.Read(after.Streams()[i]) != file.Read(file.Streams()[i])) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const orlo::ReadAt read = [=](uint64_t offset, void* buffer, size_t count) {
        if (offset > size || count > size - offset) return false;
        std::memcpy(buffer, data + offset, count);
        return true;
    };
    const orlo::CompoundReader file(read, size);
    const bool intact = file.State() == orlo::CompoundState::intact;
    size_t all = 0;
    for (const orlo::CompoundStream& stream : file.Streams()) {
        const size_t length = file.Read(stream).size();
        all += length;
        if (intact && length != stream.size) std::abort();
    }
    if (all > 2 * size) std::abort(); // once for its own stream, once more for those that share it
    if (intact) WriteAndCompare(file);
    return 0;
}
