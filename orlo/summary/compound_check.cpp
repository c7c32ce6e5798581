// The allocation table, the chains of the directory and of every stream, and the directory's tree. No sector and no entry
// is followed twice: that bounds the work and finds the circles.

#include "orlo/summary/compound_check.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include "orlo/summary/bytes.h"

namespace orlo {
namespace {

constexpr size_t kHeaderBytes = 512;
constexpr std::array<uint8_t, 8> kSignature = {0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
constexpr size_t kEntryBytes = 128;
constexpr uint32_t kMiniSectorBytes = 64;
constexpr uint32_t kHighestSector = 0xFFFFFFFA; // above it stand the marks
constexpr uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr uint32_t kNone = 0xFFFFFFFF; // no sector, no entry
constexpr size_t kTablesInHeader = 109;

// Where in the file the sectors lie.
struct Layout {
    size_t sectorBytes;
    uint64_t sectors;
    uint64_t At(uint32_t sector) const { return (uint64_t{sector} + 1) * sectorBytes; }
};

enum Kind : uint8_t { kStorage = 1, kStream = 2, kRoot = 5 };

struct Entry {
    uint8_t kind;
    uint32_t left, right, child, start;
    uint64_t size;
};

Entry ReadEntry(const uint8_t* at, bool wideSizes) {
    const auto size = LittleEndian<uint64_t>(at + 120);
    return {at[66],
            LittleEndian<uint32_t>(at + 68),
            LittleEndian<uint32_t>(at + 72),
            LittleEndian<uint32_t>(at + 76),
            LittleEndian<uint32_t>(at + 116),
            wideSizes ? size : size & 0xFFFFFFFF};
}

// Chains in one table of next sectors.
class Chains {
public:
    explicit Chains(std::vector<uint32_t> next) : next_(std::move(next)), chainOf_(next_.size()) {}

    // The sectors from `start` on. A chain that comes back to itself is unsafe; one that runs into another, or to where
    // no sector is, is torn.
    std::vector<uint32_t> Walk(uint32_t start, CompoundState& state) {
        ++chain_;
        std::vector<uint32_t> sectors;
        for (uint32_t at = start; at != kEndOfChain; at = next_[at]) {
            const bool missing = at >= next_.size();
            if (missing || chainOf_[at] != 0) {
                const bool circle = !missing && chainOf_[at] == chain_;
                state = std::max(state, circle ? CompoundState::unsafe : CompoundState::torn);
                break;
            }
            chainOf_[at] = chain_;
            sectors.push_back(at);
        }
        return sectors;
    }

private:
    std::vector<uint32_t> next_;
    std::vector<uint32_t> chainOf_; // the number of the chain that reached a sector, 0 if none did
    uint32_t chain_ = 0;
};

class CompoundCheck {
public:
    CompoundCheck(const ReadAt& read, uint64_t size) : read_(read), fileSize_(size) {}

    CompoundState Run() {
        if (!ReadHeader()) return CompoundState::foreign;
        Chains chains(AllocationTable());
        const std::vector<uint32_t> directory = chains.Walk(Header(48), state_);
        const std::vector<uint32_t> miniTable =
            Header(64) == 0 ? std::vector<uint32_t>() : chains.Walk(Header(60), state_);
        Chains miniChains(Numbers(miniTable));
        ReadDirectory(directory);
        if (state_ != CompoundState::unsafe) WalkTree(chains, miniChains);
        return state_;
    }

private:
    uint32_t Header(size_t offset) const { return LittleEndian<uint32_t>(header_.data() + offset); }
    void Torn() { state_ = std::max(state_, CompoundState::torn); }

    bool ReadHeader() {
        if (fileSize_ < kHeaderBytes || !read_(0, header_.data(), header_.size())) return false;
        if (!std::equal(kSignature.begin(), kSignature.end(), header_.begin())) return false;
        const auto shift = LittleEndian<uint16_t>(header_.data() + 30);
        if (shift != 9 && shift != 12) return false;
        layout_.sectorBytes = size_t{1} << shift;
        // A last sector that was cut is one all the same.
        const uint64_t units = (fileSize_ + layout_.sectorBytes - 1) / layout_.sectorBytes;
        layout_.sectors = std::min<uint64_t>(units - 1, kHighestSector);
        return true;
    }

    std::vector<uint8_t> Sector(uint32_t sector) {
        std::vector<uint8_t> bytes(layout_.sectorBytes, 0xFF); // what isn't there reads as free
        if (sector < layout_.sectors) {
            const uint64_t at = layout_.At(sector);
            const auto there = static_cast<size_t>(std::min<uint64_t>(bytes.size(), fileSize_ - at));
            if (there != bytes.size()) Torn();
            if (read_(at, bytes.data(), there)) return bytes;
        }
        Torn();
        return bytes;
    }

    // All numbers of these sectors, one after the other.
    std::vector<uint32_t> Numbers(const std::vector<uint32_t>& sectors) {
        std::vector<uint32_t> numbers;
        for (const uint32_t sector : sectors) {
            const std::vector<uint8_t> bytes = Sector(sector);
            for (size_t i = 0; i < bytes.size(); i += 4)
                numbers.push_back(LittleEndian<uint32_t>(bytes.data() + i));
        }
        return numbers;
    }

    // The sectors of the allocation table: listed in the header, then in a chain of sectors of their own.
    std::vector<uint32_t> TableSectors() {
        std::vector<uint32_t> tables;
        std::vector<bool> seen(static_cast<size_t>(layout_.sectors));
        const auto reach = [&](uint32_t sector, CompoundState ifAgain) {
            if (sector >= seen.size() || seen[sector]) {
                state_ = std::max(state_, sector >= seen.size() ? CompoundState::torn : ifAgain);
                return false;
            }
            seen[sector] = true;
            return true;
        };
        for (size_t i = 0; i < kTablesInHeader; ++i) {
            const uint32_t sector = Header(76 + 4 * i);
            if (sector != kNone && reach(sector, CompoundState::torn)) tables.push_back(sector);
        }
        for (uint32_t list = Header(68); list < kHighestSector && reach(list, CompoundState::unsafe);) {
            const std::vector<uint32_t> numbers = Numbers({list});
            for (size_t i = 0; i + 1 < numbers.size(); ++i)
                if (numbers[i] != kNone && reach(numbers[i], CompoundState::torn))
                    tables.push_back(numbers[i]);
            list = numbers.back();
        }
        return tables;
    }

    std::vector<uint32_t> AllocationTable() {
        std::vector<uint32_t> next = Numbers(TableSectors());
        if (next.size() > layout_.sectors) next.resize(static_cast<size_t>(layout_.sectors));
        return next;
    }

    void ReadDirectory(const std::vector<uint32_t>& sectors) {
        const bool wideSizes = layout_.sectorBytes > kHeaderBytes;
        for (const uint32_t sector : sectors) {
            const std::vector<uint8_t> bytes = Sector(sector);
            for (size_t at = 0; at < bytes.size(); at += kEntryBytes)
                entries_.push_back(ReadEntry(bytes.data() + at, wideSizes));
        }
    }

    void WalkTree(Chains& chains, Chains& miniChains) {
        if (entries_.empty() || entries_[0].kind != kRoot) return Torn();
        // The short streams lie together in the stream of the root.
        CheckLength(chains.Walk(ChainStart(entries_[0]), state_), entries_[0].size, layout_.sectorBytes);
        std::vector<bool> seen(entries_.size());
        seen[0] = true;
        std::vector<uint32_t> ahead = {entries_[0].child};
        while (!ahead.empty() && state_ != CompoundState::unsafe) {
            const uint32_t id = ahead.back();
            ahead.pop_back();
            if (id == kNone) continue;
            if (id >= entries_.size()) {
                Torn();
                continue;
            }
            if (seen[id]) {
                state_ = CompoundState::unsafe;
                return;
            }
            seen[id] = true;
            const Entry& entry = entries_[id];
            ahead.insert(ahead.end(), {entry.left, entry.right});
            if (entry.kind == kStorage) ahead.push_back(entry.child);
            if (entry.kind == kStream) WalkStream(entry, chains, miniChains);
        }
    }

    static uint32_t ChainStart(const Entry& entry) { return entry.size == 0 ? kEndOfChain : entry.start; }

    void WalkStream(const Entry& entry, Chains& chains, Chains& miniChains) {
        const bool isShort = entry.size < Header(56);
        CheckLength((isShort ? miniChains : chains).Walk(ChainStart(entry), state_), entry.size,
                    isShort ? kMiniSectorBytes : layout_.sectorBytes);
    }

    void CheckLength(const std::vector<uint32_t>& chain, uint64_t size, size_t each) {
        if (chain.size() < (size + each - 1) / each) Torn();
    }

    const ReadAt& read_;
    uint64_t fileSize_;
    std::array<uint8_t, kHeaderBytes> header_ = {};
    Layout layout_ = {};
    CompoundState state_ = CompoundState::sound;
    std::vector<Entry> entries_;
};

} // namespace

CompoundState CheckCompoundFile(const ReadAt& read, uint64_t size) {
    return CompoundCheck(read, size).Run();
}

} // namespace orlo
