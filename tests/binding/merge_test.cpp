// Merging and writing over graphics, and the records of pending writes, without windows.

#include "orlo/binding/ddp_record.h"
#include "orlo/binding/property_merge.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <vector>

#include "memory_graphics.h"

using namespace orlo::binding;

namespace {

class Graphics : public ::testing::Test {
protected:
    void Fill(const std::vector<double>& numbers, const std::vector<std::string>& texts = {}) {
        all.members.clear();
        for (size_t i = 0; i < std::max(numbers.size(), texts.size()); ++i) {
            MemoryGraphic& graphic = all.members.emplace_back();
            if (i < numbers.size()) graphic.number = numbers[i];
            if (i < texts.size()) graphic.text = texts[i];
        }
    }
    MemoryGraphic& At(int place) { return *std::next(all.members.begin(), place); }

    MemorySet all{};
    ObjectSet set{&all, kAllGraphics, false};
    std::set<const GraphicStruct*> unchanged;
    WriteTarget target{set, &unchanged};
};

TEST_F(Graphics, MergeToTheCommonValueOrTheMarker) {
    struct Row {
        std::vector<double> numbers;
        double width;
        int check;
        unsigned short mask, bits;
    };
    const double marker = Indeterminate<double>::Value();
    for (const Row& row : {Row{{1, 1, 1}, 1, 1, 0, 1}, Row{{1, 1.000007, 1}, 1, 1, 0, 1},
                           Row{{4, 6, 5}, marker, 1, 3, 4}, Row{{0, 2}, marker, kIndeterminateCheck, 2, 0}}) {
        Fill(row.numbers);
        double width = -1;
        int check = -1;
        unsigned short pair[2];
        EXPECT_EQ(Merge<Double>(set, "Any", &width), 1);
        EXPECT_EQ(row.width, width);
        EXPECT_EQ(Merge<Check>(set, "Any", &check), 1);
        EXPECT_EQ(row.check, check);
        EXPECT_EQ(MergeBits(set, "Any", pair), 1);
        EXPECT_EQ(row.mask, pair[0]);
        EXPECT_EQ(row.bits, pair[1]);
    }
}

TEST_F(Graphics, WithoutThePropertyNothingIsMerged) {
    Fill({1, 2});
    for (MemoryGraphic& graphic : all.members)
        graphic.has = false;
    double width = -1;
    EXPECT_EQ(Merge<Double>(set, "Any", &width), 0);
    EXPECT_EQ(Merge<Double>(ObjectSet(nullptr, 0, false), "Any", &width), 0);
    EXPECT_EQ(width, -1);
    unsigned short pair[] = {9, 9};
    EXPECT_EQ(MergeBits(set, "Any", pair), 0);
    EXPECT_EQ(pair[0], 0);
}

TEST_F(Graphics, MergingStopsAtTheFirstDifference) {
    Fill({}, {"wall", "wall", "door", "wall"});
    CString text;
    EXPECT_EQ(MergeText(set, "Any", &text), 1);
    EXPECT_TRUE(IsIndeterminate(text));
    EXPECT_EQ(At(2).reads, 1);
    EXPECT_EQ(At(3).reads, 0);
    At(2).text = "wall";
    EXPECT_EQ(MergeText(set, "Any", &text), 1);
    EXPECT_STREQ(text, "wall");
}

TEST_F(Graphics, WritingReturnsTheGraphicsThatKeepTheirValue) {
    Fill({1, 2, 3, 4});
    EXPECT_EQ(Write<Double>(target, "Any", Indeterminate<double>::Value()), 0);
    At(1).rejects = true;
    EXPECT_EQ(Write<Double>(target, "Any", 9), 1);
    EXPECT_EQ(At(0).number, 9);
    EXPECT_EQ(At(1).number, 2);
    EXPECT_EQ(unchanged, std::set<const GraphicStruct*>{&At(1)});

    unchanged.clear();
    At(2).throws = true;
    EXPECT_THROW(WriteText(target, "Any", "new"), std::runtime_error);
    EXPECT_EQ(At(0).text, "new");
    EXPECT_EQ(unchanged, (std::set<const GraphicStruct*>{&At(1), &At(2), &At(3)}));
}

TEST_F(Graphics, DifferingBitsAreNotWritten) {
    Fill({0x11, 0x12});
    const unsigned short pair[] = {0x03, 0x20};
    EXPECT_EQ(WriteBits(target, "Any", pair), 1);
    EXPECT_EQ(At(0).number, 0x21);
    EXPECT_EQ(At(1).number, 0x22);
}

void Nothing(CDataExchange*, int, void*, const char*) {}

// Members 64 KB apart have the same key.
TEST(Records, WithEqualKeysAreChained) {
    const std::vector<char> memory(0x20001);
    CMapWordToOb records;
    const auto lay = [&](size_t offset, int nID) {
        AddRecord(records, new CDDPRecord(Nothing, nID, const_cast<char*>(&memory[offset]), "Any"));
    };
    lay(0, 1);
    lay(0x10000, 2);
    lay(0x20000, 3);
    lay(0x10000, 4); // replaces the second one
    const std::unique_ptr<CDDPRecord> chain(TakeRecords(records));
    EXPECT_TRUE(records.IsEmpty());
    std::set<int> ids;
    for (const CDDPRecord* record = chain.get(); record != nullptr; record = record->m_pNext)
        ids.insert(record->m_nID);
    EXPECT_EQ(ids, (std::set<int>{1, 3, 4}));
}

} // namespace
