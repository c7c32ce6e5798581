// Structures of compound files, whole ones and ones bent on purpose. Runs without windows too, under the sanitizers.

#include "orlo/summary/compound_check.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "picture_bytes.h"

using orlo::CompoundState;
namespace fs = std::filesystem;

namespace {

constexpr size_t kSector = 512;

CompoundState StateOf(const ByteVector& file) {
    const orlo::ReadAt read = [&file](uint64_t offset, void* buffer, size_t size) {
        if (offset > file.size() || size > file.size() - offset) return false;
        std::memcpy(buffer, file.data() + offset, size);
        return true;
    };
    return orlo::CheckCompoundFile(read, file.size());
}

ByteVector Load(const std::string& name) {
    std::ifstream file(fs::path(ORLO_TEST_DATA) / "ole" / name, std::ios::binary);
    return ByteVector(std::istreambuf_iterator<char>(file), {});
}

uint32_t Number(const ByteVector& file, size_t offset) {
    uint32_t number;
    std::memcpy(&number, file.data() + offset, sizeof number);
    return number;
}

void Put(ByteVector& file, size_t offset, uint32_t number) {
    std::memcpy(file.data() + offset, &number, sizeof number);
}

size_t SectorAt(uint32_t sector) {
    return (sector + 1) * kSector;
}
// Where the allocation table (of one sector) names what follows the sector.
size_t NextOf(const ByteVector& file, uint32_t sector) {
    return SectorAt(Number(file, 76)) + 4 * sector;
}
uint32_t DirectoryOf(const ByteVector& file) {
    return Number(file, 48);
}

TEST(CompoundCheck, RealFiles) {
    const struct {
        const char* name;
        CompoundState state;
    } rows[] = {{"test11--695187.doc", CompoundState::sound},
                {"input-bw-one-band--340370.fpx", CompoundState::sound},
                {"sent--da96eb.msg", CompoundState::sound},
                {"bug55030--18fccf.ppt", CompoundState::sound},
                {"clusterfuzz-testcase-minimized-POIHSLFFu--efffb2.ppt", CompoundState::torn},
                {"loop-in-open-1--b587ad.bin", CompoundState::unsafe},
                {"loop-in-alloc--d3743f.bin", CompoundState::unsafe},
                {"expected.json", CompoundState::foreign}};
    for (const auto& row : rows)
        EXPECT_EQ(StateOf(Load(row.name)), row.state) << row.name;
}

TEST(CompoundCheck, NoFileAtAll) {
    EXPECT_EQ(StateOf({}), CompoundState::foreign);
    ByteVector cut = Load("test11--695187.doc");
    cut.resize(kSector - 1);
    EXPECT_EQ(StateOf(cut), CompoundState::foreign);
}

// Cut anywhere behind the header it is torn: nothing is read past its end.
TEST(CompoundCheck, CutFiles) {
    const ByteVector whole = Load("test11--695187.doc");
    for (size_t size = kSector; size < whole.size() - kSector; size += 100) {
        const ByteVector cut(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size));
        EXPECT_EQ(StateOf(cut), CompoundState::torn) << size;
    }
}

struct Bend {
    const char* name;
    void (*bend)(ByteVector& file);
    CompoundState state;
};

const Bend kBends[] = {
    {"DirectoryFollowsItself",
     [](ByteVector& file) { Put(file, NextOf(file, DirectoryOf(file)), DirectoryOf(file)); },
     CompoundState::unsafe},
    {"DirectoryElsewhere", [](ByteVector& file) { Put(file, 48, 0x00FFFFFF); }, CompoundState::torn},
    {"TableListFollowsItself",
     [](ByteVector& file) {
         Put(file, 68, 1); // a list of further tables in sector 1
         Put(file, 72, 1);
         for (size_t i = 0; i < 127; ++i)
             Put(file, SectorAt(1) + 4 * i, 0xFFFFFFFF);
         Put(file, SectorAt(1) + 508, 1);
     },
     CompoundState::unsafe},
    {"TableTwice", [](ByteVector& file) { Put(file, 80, Number(file, 76)); }, CompoundState::torn},
    {"TableElsewhere", [](ByteVector& file) { Put(file, 76, 0x00FFFFFF); }, CompoundState::torn},
    {"EntryIsItsOwnNeighbour",
     [](ByteVector& file) {
         const size_t directory = SectorAt(DirectoryOf(file));
         const uint32_t first = Number(file, directory + 76);
         Put(file, directory + 128 * first + 68, first);
     },
     CompoundState::unsafe},
    {"EntryElsewhere", [](ByteVector& file) { Put(file, SectorAt(DirectoryOf(file)) + 76, 0x00FFFFFF); },
     CompoundState::torn},
    {"StreamRunsIntoTheDirectory",
     [](ByteVector& file) { Put(file, SectorAt(DirectoryOf(file)) + 116, DirectoryOf(file)); },
     CompoundState::torn},
};

class Bent : public testing::TestWithParam<Bend> {};

TEST_P(Bent, IsFound) {
    ByteVector file = Load("test11--695187.doc");
    GetParam().bend(file);
    EXPECT_EQ(StateOf(file), GetParam().state);
}

INSTANTIATE_TEST_SUITE_P(CompoundCheck, Bent, testing::ValuesIn(kBends),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
