// Reads the streams of a compound file and reports all damage in its structure, without the system's reader, which may
// loop forever or crash on damaged files. Needs no window header.
//
//   CompoundReader file(reader, size);
//   if (file.State() == CompoundState::intact) ...   // safe to open with the system, and to modify
//   for (const CompoundStream& stream : file.Streams()) file.Read(stream);   // the readable part, even if damaged
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "orlo/export.h"
#include "orlo/summary/compound_format.h"
#include "orlo/summary/sector_table.h"

namespace orlo {

// The first bytes of every compound file.
constexpr std::array<uint8_t, 8> kCompoundSignature = {0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};

enum class CompoundState {
    foreign, // not a compound file
    intact,
    damaged, // sectors of streams are missing or shared, or names are wrong: the system can read the file, but it
             // should not be written
    unsafe   // header, tables or directory are damaged, or a chain is circular: the system must not open the file
};

// Reads `size` bytes at `offset`. Returns false if the file does not have all of them.
using ReadAt = std::function<bool(uint64_t offset, void* buffer, size_t size)>;

struct CompoundStream {
    std::u16string path; // including its storages: "Outer/Inner"
    uint64_t size;       // in bytes, according to the directory
    uint32_t start;      // its first sector
    uint64_t sectors;    // number of readable sectors in its chain
    ChainFault fault;    // of its chain of sectors
    bool isLost;         // not reachable from the directory, so invisible to the system
};

// The root, a storage or a stream, as stored in the directory.
struct CompoundElement {
    std::u16string path; // as in CompoundStream; empty for the root
    compound::EntryBytes record;
    size_t storage;               // index of the storage that contains it
    std::optional<size_t> stream; // index among the streams; nothing for a storage
};

class CompoundReader {
public:
    // Reads the complete structure of a file of `size` bytes. Each sector and each entry is followed only once: time
    // and memory grow linearly with the number of sectors.
    ORLO_API CompoundReader(ReadAt read, uint64_t size);

    ORLO_API CompoundState State() const;
    // Returns messages for damage of header, tables and directory. Damage of a stream is in CompoundStream.
    ORLO_API const std::vector<std::string>& Damage() const;
    // Returns the streams: those of a storage in name order, before those of its inner storages; unreachable streams
    // last.
    ORLO_API const std::vector<CompoundStream>& Streams() const;
    // Returns the bytes of one of these streams, up to its first damage.
    ORLO_API std::vector<uint8_t> Read(const CompoundStream& stream) const;

    // Returns all elements that are reachable from the directory: the root first, the elements of a storage in name
    // order. Empty for a file without a root.
    const std::vector<CompoundElement>& Elements() const;
    // Returns the header; zeros for a foreign file.
    const compound::HeaderBytes& Header() const;

private:
    friend class CompoundStreamReader;
    class Structure;
    std::shared_ptr<const Structure> structure_;
};

// Reads a stream piece by piece, so that a long one is never completely in memory.
class CompoundStreamReader {
public:
    static constexpr size_t kPieceBytes = size_t{1} << 20;

    // The stream must be one of the file's Streams(); both must outlive this object.
    CompoundStreamReader(const CompoundReader& file, const CompoundStream& stream);

    // Stores the next bytes: kPieceBytes, or fewer in the last piece. Returns false at the end of the stream or at its
    // first damaged sector.
    bool Next(std::vector<uint8_t>& piece);

private:
    std::shared_ptr<const CompoundReader::Structure> structure_;
    const CompoundStream* stream_;
    std::vector<uint32_t> sectors_;
    uint64_t offset_ = 0;
    bool hasEnded_ = false;
};

} // namespace orlo
