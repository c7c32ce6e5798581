// Structures of compound files, intact and damaged. Also runs natively under the sanitizers.

#include "orlo/summary/compound_reader.h"

#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>

#include "compound_bytes.h"
#include "picture_bytes.h"
#include "synthetic_compound_file.h"
#include "tests/support/file_bytes.h"

using orlo::CompoundState;
namespace fs = std::filesystem;

using orlo::compound::kChild;
using orlo::compound::kSize;
using orlo::compound::kStart;

namespace {

constexpr size_t kSector = 512;

CompoundState StateOf(const ByteVector& file) {
    return ReaderOf(file).State();
}

ByteVector Load(const char* name) {
    return FileBytes(fs::path(ORLO_TEST_DATA) / "ole" / name);
}

size_t SectorAt(uint32_t sector) {
    return (sector + 1) * kSector;
}
// Returns the offset of the sector's successor in the allocation table (of one sector).
size_t NextOf(const ByteVector& file, uint32_t sector) {
    return SectorAt(Number(file, 76)) + 4 * sector;
}
uint32_t DirectoryOf(const ByteVector& file) {
    return Number(file, 48);
}
// In the first sector of the directory.
size_t EntryAt(const ByteVector& file, uint32_t entry) {
    return SectorAt(DirectoryOf(file)) + 128 * entry;
}
constexpr size_t kName = 0;

// Appends sectors for the first stream after the others and returns the last. The file ends after `there` bytes of
// them.
uint32_t AddLongStream(ByteVector& file, size_t size, size_t there) {
    const auto first = static_cast<uint32_t>(file.size() / kSector - 1);
    const auto last = static_cast<uint32_t>(first + (size - 1) / kSector);
    file.resize(file.size() + there);
    for (uint32_t sector = first; sector <= last; ++sector)
        Put(file, NextOf(file, sector), sector == last ? 0xFFFFFFFE : sector + 1);
    Put(file, EntryAt(file, 1) + kStart, first);
    Put(file, EntryAt(file, 1) + kSize, static_cast<uint32_t>(size));
    return last;
}

TEST(CompoundReader, RealFiles) {
    const struct {
        const char* name;
        CompoundState state;
    } rows[] = {{"test11--695187.doc", CompoundState::intact},
                {"input-bw-one-band--340370.fpx", CompoundState::intact},
                {"sent--da96eb.msg", CompoundState::intact},
                {"bug55030--18fccf.ppt", CompoundState::intact},
                {"Bug48075--a2ceba.doc", CompoundState::intact},
                {"clusterfuzz-testcase-minimized-POIHSLFFu--efffb2.ppt", CompoundState::unsafe},
                {"loop-in-open-1--b587ad.bin", CompoundState::unsafe},
                {"loop-in-alloc--d3743f.bin", CompoundState::unsafe},
                {"expected.json", CompoundState::foreign}};
    for (const auto& row : rows)
        EXPECT_EQ(StateOf(Load(row.name)), row.state) << row.name;
    EXPECT_EQ(StateOf({}), CompoundState::foreign);
    ByteVector cut = Load("test11--695187.doc");
    cut.resize(kSector - 1);
    EXPECT_EQ(StateOf(cut), CompoundState::foreign);
}

// Truncated anywhere after the header: nothing is read past the end, and the remaining parts of streams are read.
TEST(CompoundReader, TruncatedFiles) {
    const ByteVector whole = Load("test11--695187.doc");
    size_t most = 0;
    for (size_t size = kSector; size < whole.size() - kSector; size += 100) {
        const ByteVector cut(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size));
        const orlo::CompoundReader file = ReaderOf(cut);
        EXPECT_GE(file.State(), CompoundState::damaged) << size;
        for (const orlo::CompoundStream& stream : file.Streams())
            most = std::max(most, file.Read(stream).size());
    }
    EXPECT_GT(most, 3000u);
}

TEST(CompoundReader, LongSectorsWithEitherVersion) {
    constexpr size_t kLong = 4096;
    const struct {
        uint16_t version;
        uint32_t directories, highHalf;
        CompoundState state;
    } rows[] = {{4, 1, 0, CompoundState::intact},          {4, 0, 0, CompoundState::intact},
                {4, 2, 0, CompoundState::unsafe},          {3, 0, 0, CompoundState::intact},
                {3, 0, 0xCDCDCDCD, CompoundState::intact}, {4, 1, 1, CompoundState::damaged},
                {5, 1, 0, CompoundState::unsafe}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.version << " " << row.directories << " " << row.highHalf);
        ByteVector file = SyntheticFile(kLong, row.version, row.directories, 1);
        Put(file, 2 * kLong + 128 + kSize + 4, row.highHalf); // of the stream's size
        const orlo::CompoundReader reader = ReaderOf(file);
        EXPECT_EQ(reader.State(), row.state);
        ASSERT_EQ(reader.Streams().size(), 1u);
        EXPECT_EQ(reader.Read(reader.Streams()[0]).size() == 5000, row.highHalf != 1);
    }
}

TEST(CompoundReader, ReadsAdjacentAllocationSectorsAtOnce) {
    const ByteVector file = SyntheticFile(kSector, 3, 0, 100);
    size_t reads = 0;
    const orlo::ReadAt read = [&](uint64_t offset, void* buffer, size_t size) {
        ++reads;
        if (offset > file.size() || size > file.size() - offset) return false;
        std::memcpy(buffer, file.data() + offset, size);
        return true;
    };
    const orlo::CompoundReader reader(read, file.size());
    EXPECT_EQ(reader.State(), CompoundState::intact) << testing::PrintToString(reader.Damage());
    EXPECT_EQ(reader.Read(reader.Streams().at(0)).size(), 5000u);
    EXPECT_LT(reads, 10u);
}

// A table may have more sectors than the file.
TEST(SectorTable, DoesNotFollowChainsBeyondTheEndOfTheFile) {
    orlo::SectorTable table({1, 2, 3, orlo::kEndOfChain}, 2);
    EXPECT_EQ(table.Follow(0, 10), (std::vector<uint32_t>{0, 1}));
    EXPECT_EQ(table.Follow(0, 1), (std::vector<uint32_t>{0}));
    EXPECT_EQ(table.Follow(2, 10), (std::vector<uint32_t>{}));
    const orlo::SectorTable::Chain chain = table.Walk(0);
    EXPECT_EQ(chain.sectors, (std::vector<uint32_t>{0, 1}));
    EXPECT_EQ(chain.length, 4u);
    EXPECT_EQ(chain.fault, orlo::ChainFault::pastEnd);
}

struct Bend {
    const char* name;
    void (*bend)(ByteVector& file);
    CompoundState state;
};

const Bend kBends[] = {
    {"SectorsOfAnotherSize", [](ByteVector& file) { file[30] = 11; }, CompoundState::unsafe},
    {"ShortSectorsUnderTheVersionOfLongOnes", [](ByteVector& file) { file[26] = 4; }, CompoundState::unsafe},
    {"ShortSectorsOfAnotherSize", [](ByteVector& file) { file[32] = 7; }, CompoundState::unsafe},
    {"AnotherLimitOfShortStreams", [](ByteVector& file) { Put(file, 56, 512); }, CompoundState::unsafe},
    {"CountOfTablesTooHigh", [](ByteVector& file) { Put(file, 44, 0xFFFFFFFF); }, CompoundState::unsafe},
    {"CountOfTablesTooLow", [](ByteVector& file) { Put(file, 44, 0); }, CompoundState::unsafe},
    {"CountOfTableLists", [](ByteVector& file) { Put(file, 72, 1); }, CompoundState::unsafe},
    {"CountOfShortTables", [](ByteVector& file) { Put(file, 64, 2); }, CompoundState::unsafe},
    {"TableCallsItselfFree", [](ByteVector& file) { Put(file, NextOf(file, Number(file, 76)), 0xFFFFFFFF); },
     CompoundState::unsafe},
    {"TableListFollowsItself",
     [](ByteVector& file) {
         Put(file, 68, 1); // a list of further tables in sector 1
         Put(file, 72, 1);
         for (size_t i = 0; i < 127; ++i)
             Put(file, SectorAt(1) + 4 * i, 0xFFFFFFFF);
         Put(file, SectorAt(1) + 508, 1);
     },
     CompoundState::unsafe},
    {"TableTwice", [](ByteVector& file) { Put(file, 80, Number(file, 76)); }, CompoundState::unsafe},
    {"TableElsewhere", [](ByteVector& file) { Put(file, 76, 0x00FFFFFF); }, CompoundState::unsafe},
    {"DirectoryFollowsItself", [](ByteVector& file) { Put(file, NextOf(file, DirectoryOf(file)), DirectoryOf(file)); },
     CompoundState::unsafe},
    {"DirectoryElsewhere", [](ByteVector& file) { Put(file, 48, 0x00FFFFFF); }, CompoundState::unsafe},
    {"DirectoryIsAStream", [](ByteVector& file) { Put(file, 48, 3); }, CompoundState::unsafe},
    {"EntryIsItsOwnNeighbor",
     [](ByteVector& file) {
         const uint32_t first = Number(file, EntryAt(file, 0) + kChild);
         Put(file, EntryAt(file, first) + 68, first);
     },
     CompoundState::unsafe},
    {"EntryElsewhere", [](ByteVector& file) { Put(file, EntryAt(file, 0) + kChild, 0x00FFFFFF); },
     CompoundState::unsafe},
    {"EntryOfNoKind", [](ByteVector& file) { file[EntryAt(file, 1) + 66] = 3; }, CompoundState::unsafe},
    {"EntriesThatNothingLeadsTo", [](ByteVector& file) { Put(file, EntryAt(file, 0) + kChild, 0xFFFFFFFF); },
     CompoundState::damaged},
    {"NameWithoutItsEnd", [](ByteVector& file) { file[EntryAt(file, 1) + kName + 38] = 'x'; }, CompoundState::damaged},
    {"NamesOutOfOrder",
     [](ByteVector& file) { // left and right swapped
         const size_t entry = EntryAt(file, 1);
         const uint32_t left = Number(file, entry + 68);
         Put(file, entry + 68, Number(file, entry + 72));
         Put(file, entry + 72, left);
     },
     CompoundState::damaged},
    {"ShortStreamsRunIntoTheDirectory",
     [](ByteVector& file) { Put(file, EntryAt(file, 0) + kStart, DirectoryOf(file)); }, CompoundState::unsafe},
    {"ShortStreamsEndEarly",
     [](ByteVector& file) { Put(file, NextOf(file, Number(file, EntryAt(file, 0) + kStart)), 0xFFFFFFFE); },
     CompoundState::unsafe},
    {"StreamInACircle",
     [](ByteVector& file) {
         const uint32_t last = AddLongStream(file, 9 * kSector, 9 * kSector);
         Put(file, NextOf(file, last), last);
     },
     CompoundState::unsafe},
    {"StreamInACutSector", [](ByteVector& file) { AddLongStream(file, 9 * kSector, 9 * kSector - 200); },
     CompoundState::damaged},
    {"CutSectorBehindTheStream", [](ByteVector& file) { AddLongStream(file, 9 * kSector - 200, 9 * kSector - 200); },
     CompoundState::intact},
    {"StreamsShareSectors",
     [](ByteVector& file) { Put(file, EntryAt(file, 2) + kStart, Number(file, EntryAt(file, 1) + kStart)); },
     CompoundState::damaged},
    {"StreamRunsIntoTheTable",
     [](ByteVector& file) {
         Put(file, EntryAt(file, 1) + kStart, Number(file, 76));
         Put(file, EntryAt(file, 1) + kSize, 9000);
     },
     CompoundState::damaged},
    {"StreamTooLong", [](ByteVector& file) { Put(file, EntryAt(file, 1) + kSize, 4000); }, CompoundState::damaged},
    {"EmptyStreamWithSectors", [](ByteVector& file) { Put(file, EntryAt(file, 1) + kSize, 0); },
     CompoundState::damaged},
};

// Otherwise a hundred streams on one chain would be read as a hundred times the file.
TEST(CompoundReader, SharedSectorsAreReadAtMostOnceMore) {
    ByteVector file = Load("test11--695187.doc");
    AddLongStream(file, 60 * kSector, 60 * kSector);
    for (const uint32_t entry : {2u, 3u})
        for (const size_t field : {kStart, kSize})
            Put(file, EntryAt(file, entry) + field, Number(file, EntryAt(file, 1) + field));
    size_t all = 0;
    const orlo::CompoundReader reader = ReaderOf(file);
    for (const orlo::CompoundStream& stream : reader.Streams())
        all += reader.Read(stream).size();
    EXPECT_GT(all, 2 * 60 * kSector);
    EXPECT_LT(all, 2 * file.size());
}

// Otherwise their paths would exhaust memory.
TEST(CompoundReader, UnlimitedNestingOfStorages) {
    ByteVector file = Load("test11--695187.doc");
    constexpr uint32_t kStorages = 100;
    const auto first = static_cast<uint32_t>(file.size() / kSector - 1);
    file.resize(file.size() + kStorages / 4 * kSector);
    for (uint32_t sector = first; sector < first + kStorages / 4; ++sector)
        Put(file, NextOf(file, sector), sector + 1 < first + kStorages / 4 ? sector + 1 : 0xFFFFFFFE);
    uint32_t last = DirectoryOf(file), entries = 4;
    for (; Number(file, NextOf(file, last)) != 0xFFFFFFFE; last = Number(file, NextOf(file, last)))
        entries += 4;
    Put(file, NextOf(file, last), first);
    const ByteVector storage(file.begin() + static_cast<ptrdiff_t>(EntryAt(file, 1)),
                             file.begin() + static_cast<ptrdiff_t>(EntryAt(file, 2)));
    for (uint32_t i = 0; i < kStorages; ++i) {
        const size_t at = SectorAt(first) + 128 * i;
        std::copy(storage.begin(), storage.end(), file.begin() + static_cast<ptrdiff_t>(at));
        file[at + 66] = 1;
        Put(file, at + 68, 0xFFFFFFFF);
        Put(file, at + 72, 0xFFFFFFFF);
        Put(file, at + kChild, i + 1 < kStorages ? entries + i + 1 : 0xFFFFFFFF);
    }
    Put(file, EntryAt(file, 0) + kChild, entries);
    const orlo::CompoundReader reader = ReaderOf(file);
    const auto& damage = reader.Damage();
    const std::string message(damage.empty() ? "" : damage[0]);
    EXPECT_NE(message.find("nested deeper than 64"), std::string::npos) << message;
}

TEST(CompoundReader, EveryDamageIsFound) {
    for (const Bend& row : kBends) {
        ByteVector file = Load("test11--695187.doc");
        row.bend(file);
        EXPECT_EQ(StateOf(file), row.state) << row.name;
    }
}

} // namespace
