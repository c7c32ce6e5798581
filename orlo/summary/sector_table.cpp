// Assigns each sector to at most one chain, which detects circular and shared chains and bounds the work.

#include "orlo/summary/sector_table.h"

namespace orlo {

const char* InWords(ChainFault fault) {
    switch (fault) {
    case ChainFault::pastEnd:
        return "continues past the end of the file";
    case ChainFault::tooShort:
        return "is too short";
    case ChainFault::invalidSector:
        return "refers to a sector that does not exist";
    case ChainFault::shared:
        return "shares a sector with another chain";
    case ChainFault::circular:
        return "is circular";
    case ChainFault::unexpected:
        return "exists although the stream is empty";
    default:
        return "is intact";
    }
}

bool SectorTable::Reserve(const std::vector<uint32_t>& sectors) {
    ++chains_;
    bool allUsed = true;
    for (const uint32_t sector : sectors) {
        if (sector < next_.size()) chainOf_[sector] = chains_;
        allUsed = allUsed && sector < next_.size() && next_[sector] != kFreeSector;
    }
    return allUsed;
}

SectorTable::Chain SectorTable::Walk(uint32_t start) {
    ++chains_;
    Chain chain;
    for (uint32_t at = start; at != kEndOfChain; at = next_[at]) {
        if (at >= next_.size()) {
            chain.fault = ChainFault::invalidSector;
            break;
        }
        if (chainOf_[at] != 0) {
            chain.fault = chainOf_[at] == chains_ ? ChainFault::circular : ChainFault::shared;
            break;
        }
        chainOf_[at] = chains_;
        if (at < sectorCount_ && chain.sectors.size() == chain.length) chain.sectors.push_back(at);
        ++chain.length;
    }
    if (chain.fault == ChainFault::none && chain.sectors.size() != chain.length) chain.fault = ChainFault::pastEnd;
    return chain;
}

std::vector<uint32_t> SectorTable::Follow(uint32_t start, uint64_t most) const {
    std::vector<uint32_t> sectors;
    for (uint32_t at = start; at < next_.size() && at < sectorCount_ && sectors.size() < most; at = next_[at])
        sectors.push_back(at);
    return sectors;
}

} // namespace orlo
