// Assigns each sector to at most one chain, which detects circular and shared chains and bounds the work.

#include "orlo/summary/sector_table.h"

namespace orlo {

const char* InWords(ChainFault fault) {
    switch (fault) {
    case ChainFault::isCut:
        return "continues past the end of the file";
    case ChainFault::isShort:
        return "is too short";
    case ChainFault::leadsNowhere:
        return "refers to a sector that does not exist";
    case ChainFault::isShared:
        return "runs into another chain";
    case ChainFault::isCircle:
        return "is circular";
    case ChainFault::isOfNothing:
        return "exists although the stream is empty";
    default:
        return "is whole";
    }
}

bool SectorTable::Reserve(const std::vector<uint32_t>& sectors) {
    ++chains_;
    bool allTaken = true;
    for (const uint32_t sector : sectors) {
        if (sector < next_.size()) chainOf_[sector] = chains_;
        allTaken = allTaken && sector < next_.size() && next_[sector] != kFreeSector;
    }
    return allTaken;
}

SectorTable::Chain SectorTable::Walk(uint32_t start) {
    ++chains_;
    Chain chain;
    for (uint32_t at = start; at != kEndOfChain; at = next_[at]) {
        if (at >= next_.size()) {
            chain.fault = ChainFault::leadsNowhere;
            break;
        }
        if (chainOf_[at] != 0) {
            chain.fault = chainOf_[at] == chains_ ? ChainFault::isCircle : ChainFault::isShared;
            break;
        }
        chainOf_[at] = chains_;
        if (at < there_ && chain.sectors.size() == chain.length) chain.sectors.push_back(at);
        ++chain.length;
    }
    if (chain.fault == ChainFault::none && chain.sectors.size() != chain.length) chain.fault = ChainFault::isCut;
    return chain;
}

std::vector<uint32_t> SectorTable::Follow(uint32_t start, uint64_t most) const {
    std::vector<uint32_t> sectors;
    for (uint32_t at = start; at < next_.size() && at < there_ && sectors.size() < most; at = next_[at])
        sectors.push_back(at);
    return sectors;
}

} // namespace orlo
