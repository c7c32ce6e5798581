// Damages the structure of a compound file with short sectors, reproducibly by seed.
#pragma once

#include <cstdint>
#include <cstring>
#include <iterator>
#include <random>
#include <vector>

#include "synthetic_compound_file.h"

// Changes one to three numbers or bytes in header, allocation table, directory or table of short streams. Truncates
// some documents as well.
inline std::vector<uint8_t> Damaged(std::vector<uint8_t> file, unsigned seed) {
    constexpr size_t kSector = 512;
    std::mt19937 random(seed);
    const uint32_t table = Number(file, 76), directory = Number(file, 48), shortTable = Number(file, 60);
    const uint32_t sectors[] = {table, directory, directory, directory + 1, shortTable};
    for (unsigned left = 1 + random() % 3; left != 0; --left) {
        const unsigned part = random() % 7;
        const size_t start = part < 2 ? 0 : (size_t{sectors[part - 2]} + 1) * kSector;
        const size_t at = start + random() % (part < 2 ? 96 : kSector);
        if (at + 4 > file.size()) continue;
        const auto anySector = static_cast<uint32_t>(random() % (file.size() / kSector));
        const auto any = static_cast<uint32_t>(random());
        const uint32_t numbers[] = {0,         1,     0xFFFFFFFF, 0xFFFFFFFE, 0xFFFFFFFD,
                                    directory, table, shortTable, anySector,  any};
        const uint32_t number = numbers[random() % std::size(numbers)];
        if (random() % 3 == 0)
            file[at] = static_cast<uint8_t>(random());
        else
            std::memcpy(file.data() + at / 4 * 4, &number, sizeof number);
    }
    if (random() % 20 == 0) file.resize(kSector + random() % (file.size() - kSector));
    return file;
}
