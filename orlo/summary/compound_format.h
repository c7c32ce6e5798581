// Layout of a compound file: sizes, markers, and field offsets in the header and in directory entries.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace orlo::compound {

constexpr size_t kHeaderBytes = 512; // followed by zeros up to the size of a sector
constexpr size_t kEntryBytes = 128;
constexpr size_t kShortSectorBytes = 64;
constexpr uint32_t kShortStreamLimit = 4096;    // size in bytes
constexpr uint32_t kHighestSector = 0xFFFFFFFA; // greater values are markers
constexpr uint32_t kListSector = 0xFFFFFFFC;    // marker of a sector that lists allocation tables
constexpr uint32_t kTableSector = 0xFFFFFFFD;   // marker of a sector of the allocation table
constexpr uint32_t kNone = 0xFFFFFFFF;          // no sector or no entry
constexpr size_t kTablesInHeader = 109;
constexpr size_t kLongestName = 31; // in code units, without the NUL

// The system locks bytes from here on while it has a file open, so that their sector belongs to no stream.
constexpr uint64_t kLockedBytes = 0x7FFFFF00;

using HeaderBytes = std::array<uint8_t, kHeaderBytes>;
using EntryBytes = std::array<uint8_t, kEntryBytes>;

// Fields of the header.
constexpr size_t kMinorVersion = 24;
constexpr size_t kVersion = 26;
constexpr size_t kByteOrder = 28;
constexpr size_t kSectorShift = 30;
constexpr size_t kShortSectorShift = 32;
constexpr size_t kDirectorySectors = 40; // 0 below version 4
constexpr size_t kTableSectors = 44;
constexpr size_t kDirectoryStart = 48;
constexpr size_t kShortLimit = 56;
constexpr size_t kShortTableStart = 60;
constexpr size_t kShortTableSectors = 64;
constexpr size_t kListStart = 68;
constexpr size_t kListSectors = 72;
constexpr size_t kTables = 76;

// Fields of an entry.
constexpr size_t kNameBytes = 64; // the name with its NUL comes first
constexpr size_t kNameSize = 64;  // in bytes
constexpr size_t kEntryKind = 66;
constexpr size_t kColor = 67;
constexpr size_t kLeft = 68;
constexpr size_t kRight = 72;
constexpr size_t kChild = 76;
constexpr size_t kClassId = 80; // followed by state bits and two times
constexpr size_t kStart = 116;
constexpr size_t kSize = 120;

// Returns the number of sectors or entries of that size.
constexpr uint64_t UnitCount(uint64_t size, uint64_t each) {
    return size / each + (size % each != 0);
}

enum Kind : uint8_t { kFree = 0, kStorage = 1, kStream = 2, kRoot = 5 };
enum Color : uint8_t { kRed = 0, kBlack = 1 };

} // namespace orlo::compound
