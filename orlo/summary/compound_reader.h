// A compound file read without the system: its streams, and everything in its structure that is damaged. On damage the
// system's own reader may loop for ever or crash. Needs no window header.
//
//   CompoundReader file(reader, size);
//   if (file.State() == CompoundState::sound) ...   // the system may open it, and write into it
//   for (const CompoundStream& stream : file.Streams()) file.Read(stream);   // whatever there is, even in a damaged
//   file
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "orlo/export.h"
#include "orlo/summary/sector_table.h"

namespace orlo {

// What every compound file begins with.
constexpr std::array<uint8_t, 8> kCompoundSignature = {0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};

enum class CompoundState {
    foreign, // not a compound file
    sound,
    torn,  // streams lack sectors or share them, names are wrong: the system can read it, and nothing should be written
    unsafe // header, tables or directory are damaged, or a chain is a circle: not for the system
};

// Stores `size` bytes from `offset` of the file; false if they aren't there.
using ReadAt = std::function<bool(uint64_t offset, void* buffer, size_t size)>;

struct CompoundStream {
    std::u16string path; // with the storages that it lies in: "Outer/Inner"
    uint64_t size;       // bytes, as the directory has it
    uint32_t start;      // its first sector
    uint64_t sectors;    // how many of its chain can be read
    ChainFault fault;    // of its chain of sectors
    bool isLost;         // nothing in the directory leads to it; the system doesn't see it
};

class CompoundReader {
public:
    // Walks the whole structure of a file of `size` bytes. No sector and no entry is followed twice: time and memory
    // grow with the number of sectors.
    ORLO_API CompoundReader(ReadAt read, uint64_t size);

    ORLO_API CompoundState State() const;
    // Of header, tables and directory, in words. Streams have their own.
    ORLO_API const std::vector<std::string>& Damage() const;
    // Those of a storage in the order of their names, before those of its inner storages; last those that have lost
    // theirs.
    ORLO_API const std::vector<CompoundStream>& Streams() const;
    // The bytes of one of these streams, or as many as there are before its damage.
    ORLO_API std::vector<uint8_t> Read(const CompoundStream& stream) const;

private:
    class Structure;
    std::shared_ptr<const Structure> structure_;
};

} // namespace orlo
