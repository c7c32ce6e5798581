// The chains of one allocation table of a compound file: which sector follows which.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "orlo/export.h"

namespace orlo {

constexpr uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr uint32_t kFreeSector = 0xFFFFFFFF;

enum class ChainFault { none, isCut, isShort, leadsNowhere, isShared, isCircle, isOfNothing };
// What to say after "its chain of sectors".
ORLO_API const char* InWords(ChainFault fault);

class SectorTable {
public:
    struct Chain {
        std::vector<uint32_t> sectors;
        size_t length = 0;                   // with those past the end of the file
        ChainFault fault = ChainFault::none; // how it ends, if not by its mark
    };

    // Which sector follows each; a sector from `there` on is past the end of the file.
    SectorTable() = default;
    SectorTable(std::vector<uint32_t> next, uint64_t there)
        : next_(std::move(next)), chainOf_(next_.size()), there_(there) {}

    // Sectors outside of all chains. False if the table calls one free: the system would write over it.
    bool Reserve(const std::vector<uint32_t>& sectors);
    // Takes the sectors from `start` on. It ends before a sector that is taken already or has no place in the table;
    // sectors past the end of the file are left out.
    Chain Walk(uint32_t start);
    // The first `most` sectors from `start` on, whoever has taken them.
    std::vector<uint32_t> Follow(uint32_t start, uint64_t most) const;

private:
    std::vector<uint32_t> next_;
    std::vector<uint32_t> chainOf_; // the number of the chain that took a sector, 0 if none did
    uint32_t chains_ = 0;
    uint64_t there_ = 0;
};

} // namespace orlo
