// Reads compound files in memory with the library's reader.
#pragma once

#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "orlo/summary/compound_reader.h"

// The bytes must outlive the reader.
inline orlo::CompoundReader ReaderOf(const std::vector<uint8_t>& file) {
    const orlo::ReadAt read = [&file](uint64_t offset, void* buffer, size_t size) {
        if (offset > file.size() || size > file.size() - offset) return false;
        std::memcpy(buffer, file.data() + offset, size);
        return true;
    };
    return orlo::CompoundReader(read, file.size());
}

// The streams that are reachable from the directory.
using Streams = std::map<std::u16string, std::vector<uint8_t>>;

inline Streams StreamsOf(const std::vector<uint8_t>& file) {
    Streams streams;
    const orlo::CompoundReader reader = ReaderOf(file);
    for (const orlo::CompoundStream& stream : reader.Streams())
        if (!stream.isLost) streams[stream.path] = reader.Read(stream);
    return streams;
}
