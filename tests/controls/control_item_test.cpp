// The text of an item, taken apart.

#include "orlo/controls/control_item.h"

#include <gtest/gtest.h>

#include <string>

#include "orlo/controls/control_fill.h"

namespace {

struct ItemRow {
    const char* name;
    const char* item;
    unsigned long number;
    const char* left;
};

const ItemRow kItems[] = {
    {"Plain", "000000FF\tRed", 255, "Red"},
    {"CaseOfDigits", "0000abCD\tBlue", 0xABCD, "Blue"},
    {"AllBits", "FFFFFFFD\tBy layer", 0xFFFFFFFD, "By layer"},
    {"NoTab", "Red", 0, "Red"},
    {"EmptyName", "00000001\t", 1, ""},
    {"TabInName", "00000001\ta\tb", 1, "a\tb"},
    {"NoDigits", "\tname", 0, "name"},
    {"Empty", "", 0, ""},
};

class Item : public ::testing::TestWithParam<ItemRow> {};

TEST_P(Item, IsTakenApart) {
    std::string text = GetParam().item;
    EXPECT_EQ(GetParam().number, ParseControlItem(&text[0]));
    EXPECT_STREQ(GetParam().left, text.c_str());
}

INSTANTIATE_TEST_SUITE_P(Texts, Item, ::testing::ValuesIn(kItems),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
