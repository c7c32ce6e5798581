// Tables: entries, names, iteration, variables, kinds of tables, and tables that no longer exist but are still referred
// to.

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

#include <drawcore/brushstyle.h>
#include <drawcore/layer.h>
#include <drawcore/units.h>

#include "drawcore/kit.h"
#include "orlo/host/walk.h"

namespace {

std::vector<uint16_t> Walk(TableStruct* table) {
    std::vector<uint16_t> ids;
    for (const uint16_t id : orlo::host::Entries(table))
        ids.push_back(id);
    return ids;
}

std::string NameOf(TableStruct* table, uint16_t id) {
    char name[300];
    return TableEntryGetName(table, id, name, sizeof name) ? name : "(none)";
}

class Tables : public testing::Test {
protected:
    OwnDrawing drawing;
    TableStruct* table = DrawingAddTable(drawing, "Things");
};

TEST_F(Tables, KeepEntriesInOrderAndDoNotReuseIdentifiers) {
    int data[3];
    const uint16_t a = TableEntryAdd(table, "a", &data[0]), b = TableEntryAdd(table, "b", &data[1]);
    EXPECT_EQ(TableEntryGetData(table, b), &data[1]);
    EXPECT_TRUE(TableEntryDelete(table, a));
    const uint16_t c = TableEntryAdd(table, "c", &data[2]);
    EXPECT_NE(c, a);
    EXPECT_EQ(Walk(table), (std::vector<uint16_t>{b, c}));
    EXPECT_EQ(TableEntryGetData(table, a), nullptr);
    EXPECT_EQ(NameOf(table, a), "(none)");
    EXPECT_FALSE(TableEntryDelete(table, a));
    EXPECT_EQ(TableGetOwner(table), static_cast<DrawingStruct*>(drawing));
}

TEST_F(Tables, FindNamesIgnoringCaseAndKeepTheSpelling) {
    const uint16_t id = TableEntryAdd(table, "W\xE4nde AUSSEN", nullptr);
    EXPECT_EQ(TableEntryGetIDFirst(table, nullptr, "w\xE4nde aussen"), id);
    EXPECT_EQ(TableEntryGetIDFirst(table, nullptr, "W\xC4nde aussen"), 0) << "only A to Z are folded";
    EXPECT_EQ(TableEntryGetIDFirst(table, nullptr, "W\xE4nde"), 0);
    EXPECT_EQ(NameOf(table, id), "W\xE4nde AUSSEN");
    EXPECT_EQ(TableEntryAdd(table, "w\xE4nde aussen", nullptr), 0) << "taken";
    EXPECT_EQ(TableEntryAdd(table, "", nullptr), 0);
    EXPECT_EQ(TableEntryAdd(table, std::string(256, 'x').c_str(), nullptr), 0);
    EXPECT_NE(TableEntryAdd(table, std::string(255, 'x').c_str(), nullptr), 0);
    TableEntryDelete(table, id);
    EXPECT_EQ(TableEntryGetIDFirst(table, nullptr, "W\xE4nde AUSSEN"), 0);
}

TEST_F(Tables, TruncateNamesToTheBuffer) {
    const uint16_t id = TableEntryAdd(table, "abcdef", nullptr);
    char buffer[] = "........";
    EXPECT_TRUE(TableEntryGetName(table, id, buffer, 4));
    EXPECT_STREQ(buffer, "abc");
    EXPECT_EQ(buffer[4], '.') << "bytes after the size are unchanged";
    EXPECT_FALSE(TableEntryGetName(table, id, buffer, 0));
    EXPECT_FALSE(TableEntryGetName(table, id, nullptr, 8));
}

TEST_F(Tables, ReuseIdentifiersOnlyWhenTheyRunOut) {
    for (int i = 0; i < 0xFFF0; ++i)
        ASSERT_NE(TableEntryAdd(table, std::to_string(i).c_str(), nullptr), 0) << i;
    EXPECT_EQ(TableEntryAdd(table, "one more", nullptr), 0) << "greater values are markers";
    TableEntryDelete(table, 77);
    EXPECT_EQ(TableEntryAdd(table, "one more", nullptr), 77);
}

TEST_F(Tables, KeepTypedVariables) {
    long whole = 5;
    double real = 5;
    char text[8] = "5";
    EXPECT_FALSE(TableGetIntVar(table, 1, &whole));
    TableSetIntVar(table, 1, INT_MIN);
    TableSetNumericVar(table, 2, -0.5);
    TableSetStringVar(table, 3, "millimeters");
    EXPECT_TRUE(TableGetIntVar(table, 1, &whole));
    EXPECT_EQ(whole, INT_MIN);
    EXPECT_TRUE(TableGetNumericVar(table, 2, &real));
    EXPECT_EQ(real, -0.5);
    EXPECT_TRUE(TableGetStringVar(table, 3, text, sizeof text));
    EXPECT_STREQ(text, "millime");
    whole = 5;
    EXPECT_FALSE(TableGetIntVar(table, 2, &whole)) << "another type";
    EXPECT_FALSE(TableGetIntVar(table, 3, &whole));
    EXPECT_EQ(whole, 5);
    TableSetIntVar(table, 3, 8);
    EXPECT_FALSE(TableGetStringVar(table, 3, text, sizeof text)) << "replaced";
}

TEST_F(Tables, AcceptDataOfTheirKind) {
    const COLORREF teal = RGB(0, 128, 128);
    TableStruct* colors = drawing.Table(kTableColors);
    const uint16_t id = TableEntryAdd(colors, "Teal", const_cast<COLORREF*>(&teal));
    EXPECT_NE(TableEntryGetData(colors, id), &teal) << "copied";
    EXPECT_EQ(*static_cast<COLORREF*>(TableEntryGetData(colors, id)), teal);
    EXPECT_EQ(TableEntryAdd(colors, "Nothing", nullptr), 0);

    const uint16_t style = TableEntryAdd(drawing.Table(kTableLineStyles), "Wire", const_cast<char*>("a wire"));
    EXPECT_STREQ(static_cast<char*>(TableEntryGetData(drawing.Table(kTableLineStyles), style)), "a wire");

    LeakCheck balance;
    GraphicStruct* content = MakeSquare(0, 0, 1);
    TableStruct* blocks = drawing.Table(kTableBlocks);
    const uint16_t block = TableEntryAdd(blocks, "Box", content);
    EXPECT_EQ(TableEntryGetData(blocks, block), content);
    GraphicStruct* second = MakeSquare(0, 0, 1);
    EXPECT_EQ(TableEntryAdd(blocks, "BOX", second), 0);
    GraphicDispose(&second); // the caller owns the rejected one
    TableEntryDelete(blocks, block);
    EXPECT_TRUE(balance.HasNoLeaks());
}

TEST_F(Tables, ContainTheNumberedColors) {
    TableStruct* colors = drawing.Table(kTableColors);
    const struct {
        const char* name;
        COLORREF color;
    } kRows[] = {{"Red", RGB(255, 0, 0)},        {"Magenta", RGB(255, 0, 255)},     {"White", RGB(255, 255, 255)},
                 {"Color 10", RGB(255, 0, 0)},   {"Color 11", RGB(255, 127, 127)},  {"Color 30", RGB(255, 127, 0)},
                 {"Color 94", RGB(0, 127, 0)},   {"Color 171", RGB(127, 127, 255)}, {"Color 213", RGB(165, 82, 165)},
                 {"Color 249", RGB(38, 19, 23)}, {"Color 252", RGB(105, 105, 105)}, {"Color 255", RGB(255, 255, 255)}};
    for (const auto& row : kRows) {
        const uint16_t id = TableEntryGetIDFirst(colors, nullptr, row.name);
        ASSERT_NE(id, 0) << row.name;
        EXPECT_EQ(*static_cast<COLORREF*>(TableEntryGetData(colors, id)), row.color) << row.name;
    }
    EXPECT_EQ(Walk(colors).size(), 255u);
}

TEST_F(Tables, ReturnAtMostEightItemsOfAPattern) {
    TableStruct* styles = drawing.Table(kTableLineStyles);
    const double items[] = {1, -2, 3, -4, 5, -6, 7, -8, 9, -10};
    const uint16_t id = LineStyleAdd(styles, "Long", "", items, 10);
    double pattern[9] = {0, 0, 0, 0, 0, 0, 0, 0, 42};
    EXPECT_EQ(LineStyleGetDLItems(styles, id), 8);
    EXPECT_TRUE(LineStyleGetPattern(styles, id, pattern));
    EXPECT_EQ(pattern[7], -8);
    EXPECT_EQ(pattern[8], 42);
    EXPECT_EQ(LineStyleGetDLItems(styles, 1), 0) << "the solid style";
    EXPECT_FALSE(LineStyleGetPattern(styles, 999, pattern));
    EXPECT_EQ(LineStyleGetDLItems(drawing.Table(kTableColors), 1), 0) << "no table of line styles";
    const double bad[] = {1, -HUGE_VAL};
    EXPECT_EQ(LineStyleAdd(styles, "Bad", "", bad, 2), 0);
}

TEST_F(Tables, StoreLayers) {
    const uint16_t id = TableEntryAdd(drawing.Table(kTableLayers), "Walls", nullptr);
    EXPECT_TRUE(LayerSet(drawing, id, RGB(9, 8, 7), kLayerLocked, 1));
    EXPECT_EQ(LayerGetColor(drawing, id), static_cast<COLORREF>(RGB(9, 8, 7)));
    EXPECT_TRUE(LayerGetVisible(drawing, id));
    EXPECT_TRUE(LayerGetReadOnly(drawing, id));
    EXPECT_FALSE(LayerSet(drawing, id, 0xFFFFFFFD, 0, 1)) << "a layer cannot be by layer";
    for (const uint32_t flag : {kLayerOff, kLayerFrozen}) {
        LayerSet(drawing, id, 0, flag, 1);
        EXPECT_FALSE(LayerGetVisible(drawing, id));
        EXPECT_EQ(LayerGetFlags(drawing, id), flag);
    }
    EXPECT_EQ(LayerGetColor(drawing, 999), 0xFFFFFFFEu);
    EXPECT_FALSE(LayerGetVisible(drawing, 999));
}

TEST_F(Tables, BrushStylesReturnTheirKindAndLines) {
    TableStruct* styles = drawing.Table(kTableBrushStyles);
    const auto id = [&](const char* name) { return TableEntryGetIDFirst(styles, nullptr, name); };
    EXPECT_EQ(BrushStyleGetFlags(styles, id("Solid")), kBrushVector);
    EXPECT_EQ(BrushStyleGetFlags(styles, id("Cross")), kBrushVector | kBrushHasLines);
    EXPECT_EQ(BrushStyleGetFlags(styles, id("Dots 50%")), kBrushTakesColor);
    EXPECT_EQ(BrushStyleGetFlags(styles, id("Brick bitmap")), 0);
    EXPECT_EQ(BrushStyleGetFlags(styles, 9999), 0);

    const BrushLine lines[] = {{0.5, 1, 2, 0.25, 3, 2, {1, -0.5}}, {1.25, 0, 0, 0, 4, 0, {}}};
    const uint16_t added = BrushStyleAddLines(styles, "Weave", lines, 2);
    ASSERT_NE(added, 0);
    int cookie = 0, walked = 0;
    for (auto* line = BrushStyleGetFirstPattern(styles, added, &cookie); line;
         line = BrushStyleGetNextPattern(styles, added, &cookie), ++walked) {
        ASSERT_LT(walked, 2);
        BrushLine read{};
        BrushPatternGetData(line, &read.angle, &read.baseX, &read.baseY, &read.along, &read.spacing, &read.dashCount,
                            read.dashes);
        EXPECT_DOUBLE_EQ(read.angle, lines[walked].angle);
        EXPECT_DOUBLE_EQ(read.baseY, lines[walked].baseY);
        EXPECT_NEAR(read.along, lines[walked].along, 1e-12);
        EXPECT_NEAR(read.spacing, lines[walked].spacing, 1e-12);
        EXPECT_EQ(read.dashCount, lines[walked].dashCount);
        EXPECT_EQ(read.dashes[1], lines[walked].dashes[1]);
    }
    EXPECT_EQ(walked, 2);

    BrushLine bad = lines[1];
    bad.spacing = 0;
    EXPECT_EQ(BrushStyleAddLines(styles, "Flat", &bad, 1), 0);
    bad.spacing = NAN;
    EXPECT_EQ(BrushStyleAddLines(styles, "None", &bad, 1), 0);
    EXPECT_EQ(BrushStyleAddLines(styles, "weave", lines, 2), 0) << "the name exists";
}

// All functions are safe with a table or drawing that no longer exists.
TEST_F(Tables, BehaveLikeEmptyOnesAfterDeletion) {
    TableStruct* styles = drawing.Table(kTableLineStyles);
    TableStruct* units = drawing.Table(kTableUnits);
    DrawingStruct* closed = drawing;
    TableSetIntVar(styles, 1, 7);
    ASSERT_TRUE(DrawingDeleteTable(drawing, styles));
    EXPECT_EQ(drawing.Table(kTableLineStyles), nullptr);
    drawing.Close();

    char buffer[16] = "kept";
    double number = 5;
    long whole = 5;
    for (TableStruct* held : {styles, units}) {
        EXPECT_TRUE(Walk(held).empty());
        EXPECT_FALSE(TableEntryGetName(held, 1, buffer, sizeof buffer));
        EXPECT_EQ(TableEntryGetData(held, 1), nullptr);
        EXPECT_EQ(TableEntryGetIDFirst(held, nullptr, "Continuous"), 0);
        EXPECT_EQ(TableEntryAdd(held, "New", nullptr), 0);
        EXPECT_EQ(TableGetOwner(held), nullptr);
        EXPECT_FALSE(TableGetIntVar(held, 1, &whole));
        EXPECT_FALSE(TableSetIntVar(held, 1, 1));
        EXPECT_EQ(LineStyleGetDLItems(held, 1), 0);
        EXPECT_FALSE(UnitsTextToNumericEx(held, kUnitPenWidth, 0, "1", &number));
        EXPECT_FALSE(UnitsNumericToTextEx(held, 0, kUnitPenWidth, 1, buffer, sizeof buffer, 0, 1));
        EXPECT_EQ(UnitsGetScaleValue(held, "1 : 2"), 0.0);
    }
    EXPECT_EQ(DrawingGetTable(closed, kTableUnits), nullptr);
    EXPECT_EQ(DrawingGetRoot(closed), nullptr);
    EXPECT_FALSE(DrawingStdTextToNumeric(closed, "1", &number, 0));
    EXPECT_FALSE(LayerGetVisible(closed, 1));
    EXPECT_STREQ(buffer, "kept");
    EXPECT_EQ(number, 5);
    EXPECT_EQ(whole, 5);
}

} // namespace
