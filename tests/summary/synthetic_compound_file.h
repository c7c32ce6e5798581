// Builds a compound file in memory.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "orlo/summary/compound_reader.h"

inline uint32_t Number(const std::vector<uint8_t>& file, size_t offset) {
    uint32_t number;
    std::memcpy(&number, file.data() + offset, sizeof number);
    return number;
}

inline void Put(std::vector<uint8_t>& file, size_t offset, uint32_t number) {
    std::memcpy(file.data() + offset, &number, sizeof number);
}

inline void PutShort(std::vector<uint8_t>& file, size_t offset, uint16_t number) {
    std::memcpy(file.data() + offset, &number, sizeof number);
}

inline void PutName(std::vector<uint8_t>& file, size_t entry, const std::string& name) {
    for (size_t i = 0; i < name.size(); ++i)
        file[entry + 2 * i] = static_cast<uint8_t>(name[i]);
    PutShort(file, entry + 64, static_cast<uint16_t>(2 * name.size() + 2));
}

// Returns a file with one stream of 5000 bytes and the requested number of allocation sectors: these, the directory,
// the stream.
inline std::vector<uint8_t> SyntheticFile(size_t sectorBytes, uint16_t version, uint32_t directories, uint32_t tables) {
    std::vector<uint8_t> file(sectorBytes * (1 + tables * sectorBytes / 4));
    std::copy(orlo::kCompoundSignature.begin(), orlo::kCompoundSignature.end(), file.begin());
    PutShort(file, 26, version);
    PutShort(file, 28, 0xFFFE);
    PutShort(file, 30, sectorBytes == 512 ? 9 : 12);
    PutShort(file, 32, 6);
    Put(file, 40, directories);
    Put(file, 44, tables);
    Put(file, 48, tables); // the directory
    Put(file, 56, 4096);
    Put(file, 60, 0xFFFFFFFE);
    Put(file, 68, 0xFFFFFFFE);
    for (uint32_t i = 0; i < 109; ++i)
        Put(file, 76 + 4 * i, i < tables ? i : 0xFFFFFFFF);
    const auto next = [&](uint32_t sector) { return sectorBytes + 4 * sector; };
    std::fill(file.begin() + static_cast<ptrdiff_t>(sectorBytes),
              file.begin() + static_cast<ptrdiff_t>(sectorBytes * (1 + tables)), uint8_t{0xFF});
    for (uint32_t i = 0; i < tables; ++i)
        Put(file, next(i), 0xFFFFFFFD);
    const auto sectors = static_cast<uint32_t>((5000 + sectorBytes - 1) / sectorBytes);
    Put(file, next(tables), 0xFFFFFFFE);
    for (uint32_t i = 1; i <= sectors; ++i)
        Put(file, next(tables + i), i == sectors ? 0xFFFFFFFE : tables + i + 1);
    const size_t directory = sectorBytes * (1 + tables);
    for (const size_t entry : {directory, directory + 128, directory + 256, directory + 384}) {
        for (const size_t link : {68u, 72u, 76u})
            Put(file, entry + link, 0xFFFFFFFF);
    }
    PutName(file, directory, "Root Entry");
    file[directory + 66] = 5;
    Put(file, directory + orlo::compound::kChild, 1);
    Put(file, directory + orlo::compound::kStart, 0xFFFFFFFE);
    PutName(file, directory + 128, "Contents");
    file[directory + 128 + 66] = 2;
    Put(file, directory + 128 + orlo::compound::kStart, tables + 1);
    Put(file, directory + 128 + orlo::compound::kSize, 5000);
    return file;
}
