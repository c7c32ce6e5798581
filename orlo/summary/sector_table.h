// The chains in an allocation table of a compound file: the successor of each sector.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "orlo/export.h"

namespace orlo {

constexpr uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr uint32_t kFreeSector = 0xFFFFFFFF;

enum class ChainFault { none, pastEnd, tooShort, invalidSector, shared, circular, unexpected };
// Returns text to follow "its chain of sectors".
ORLO_API const char* InWords(ChainFault fault);

class SectorTable {
public:
    struct Chain {
        std::vector<uint32_t> sectors;
        size_t length = 0;                   // including sectors past the end of the file
        ChainFault fault = ChainFault::none; // why the chain ends, unless at its end marker
    };

    // `there` is the number of sectors in the file; higher numbers are past its end.
    SectorTable() = default;
    SectorTable(std::vector<uint32_t> next, uint64_t sectorCount)
        : next_(std::move(next)), chainOf_(next_.size()), sectorCount_(sectorCount) {}

    // Marks sectors that are outside of all chains. Returns false if the table lists one as free, since the system
    // would overwrite it.
    bool Reserve(const std::vector<uint32_t>& sectors);
    // Assigns the sectors from `start` on to a chain. The chain ends before a sector that is already assigned or not in
    // the table. Sectors past the end of the file are not included.
    Chain Walk(uint32_t start);
    // Returns the first `most` sectors from `start` on, whether or not they are assigned.
    std::vector<uint32_t> Follow(uint32_t start, uint64_t most) const;

private:
    std::vector<uint32_t> next_;
    std::vector<uint32_t> chainOf_; // number of the chain that a sector is assigned to, or 0
    uint32_t chains_ = 0;
    uint64_t sectorCount_ = 0;
};

} // namespace orlo
