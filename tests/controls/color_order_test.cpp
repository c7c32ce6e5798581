// The order of colours, and HSV there and back.

#include "orlo/controls/color_order.h"
#include "orlo/host/words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace {

struct HsvRow {
    const char* name;
    double r, g, b, h, s, v;
};

const HsvRow kHsv[] = {
    {"RedIsAtTheUpperEnd", 1, 0, 0, 1, 1, 1}, {"Yellow", 1, 1, 0, 1 / 6.0, 1, 1},
    {"Green", 0, 1, 0, 2 / 6.0, 1, 1},        {"Cyan", 0, 1, 1, 0.5, 1, 1},
    {"Blue", 0, 0, 1, 4 / 6.0, 1, 1},         {"Magenta", 1, 0, 1, 5 / 6.0, 1, 1},
    {"Grey", 0.5, 0.5, 0.5, 0, 0, 0.5},       {"Black", 0, 0, 0, 0, 0, 0},
    {"Pale", 1, 0.5, 0.5, 1, 0.5, 1},         {"DarkOrange", 0.5, 0.25, 0, 0.5 / 6, 1, 0.5},
};

class Hsv : public ::testing::TestWithParam<HsvRow> {};

TEST_P(Hsv, ThereAndBack) {
    const HsvRow& row = GetParam();
    double h, s, v, r, g, b;
    RGB_to_HSV(row.r, row.g, row.b, &h, &s, &v);
    EXPECT_DOUBLE_EQ(row.h, h);
    EXPECT_DOUBLE_EQ(row.s, s);
    EXPECT_DOUBLE_EQ(row.v, v);
    HSV_to_RGB(h, s, v, &r, &g, &b);
    EXPECT_NEAR(row.r, r, 1e-12);
    EXPECT_NEAR(row.g, g, 1e-12);
    EXPECT_NEAR(row.b, b, 1e-12);
}

INSTANTIATE_TEST_SUITE_P(Colors, Hsv, ::testing::ValuesIn(kHsv),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(HsvValues, ComeBackForEveryColor) {
    std::mt19937 random(7);
    for (int i = 0; i < 20000; ++i) {
        const DWORD color = random() & 0xFFFFFF;
        double h, s, v, r, g, b;
        RGB_to_HSV(GetRValue(color) / 255.0, GetGValue(color) / 255.0, GetBValue(color) / 255.0, &h, &s, &v);
        ASSERT_TRUE(h >= 0 && h <= 1 && s >= 0 && s <= 1 && v >= 0 && v <= 1);
        HSV_to_RGB(h, s, v, &r, &g, &b);
        ASSERT_EQ(color, RGB(std::lround(r * 255), std::lround(g * 255), std::lround(b * 255)));
    }
}

TEST(HsvValues, OutOfRangeGiveColorsInRange) {
    const double wild[] = {-1e300, -1, -0.0, 0.5, 2, 1e300, HUGE_VAL, NAN};
    for (const double h : wild) {
        for (const double s : wild) {
            double r = 9, g = 9, b = 9;
            HSV_to_RGB(h, s, 0.0, &r, &g, &b);
            EXPECT_EQ(0.0, r + g + b);
            HSV_to_RGB(h, 0.5, s, &r, &g, &b);
            EXPECT_FALSE(r > 1 || g > 1 || b > 1 || r < 0 || g < 0 || b < 0);
        }
    }
}

struct OrderRow {
    const char* name;
    DWORD first, second;
    int order;
};

const OrderRow kOrders[] = {
    {"Same", 0xFF, 0xFF, 0},
    {"BlackBeforeDarkGrey", 0, RGB(1, 1, 1), -1},
    {"GreysByValue", RGB(200, 200, 200), RGB(90, 90, 90), 1},
    {"WhiteBeforeAnyHue", 0xFFFFFF, RGB(2, 2, 0), -1},
    {"RedBehindMagenta", RGB(255, 0, 0), RGB(255, 0, 255), 1},
    {"ValueBeforeSaturation", RGB(200, 0, 0), RGB(255, 128, 128), -1},
    {"SaturationLast", RGB(255, 128, 128), RGB(255, 0, 0), -1},
    {"BlackBeforeAMarker", 0, kColorByLayer, -1},
    {"MarkersByNumber", kColorByLayer, kColorOfPen, 1},
    {"MarkerCountsAsBlack", kColorByLayer, 0x00808080, -1},
};

class Order : public ::testing::TestWithParam<OrderRow> {};

TEST_P(Order, HoldsBothWays) {
    const OrderRow& row = GetParam();
    EXPECT_EQ(row.order, CompareHSVforRGBs(row.first, row.second));
    EXPECT_EQ(-row.order, CompareHSVforRGBs(row.second, row.first));
}

INSTANTIATE_TEST_SUITE_P(Colors, Order, ::testing::ValuesIn(kOrders),
                         [](const auto& row) { return std::string(row.param.name); });

// A total order: sorting relies on it, and so does the equality of sorted and inserted lists.
TEST(ColorOrder, IsTotal) {
    std::mt19937 random(11);
    std::vector<DWORD> colors = {0, 0xFFFFFF, kColorOfPen, kColorByBlock, kColorByLayer, 0x01FF0000};
    for (int i = 0; i < 150; ++i)
        colors.push_back(random() & (i % 2 ? 0x0F0F0F : 0xFFFFFF));
    std::sort(colors.begin(), colors.end(), [](DWORD a, DWORD b) { return CompareHSVforRGBs(a, b) < 0; });
    for (size_t i = 0; i < colors.size(); ++i) {
        for (size_t j = i; j < colors.size(); ++j)
            ASSERT_EQ(colors[i] == colors[j] ? 0 : -1, CompareHSVforRGBs(colors[i], colors[j]));
    }
}

} // namespace
