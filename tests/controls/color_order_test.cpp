// The order of colors, and conversion to HSV and back.

#include "orlo/controls/color_order.h"
#include "orlo/host/words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace {

TEST(HsvValues, OfKnownColors) {
    const struct {
        double r, g, b, h, s, v;
    } rows[] = {
        {1, 0, 0, 1, 1, 1}, // red is at the upper end of the hues
        {1, 1, 0, 1 / 6.0, 1, 1}, {0, 1, 0, 2 / 6.0, 1, 1}, {0, 1, 1, 0.5, 1, 1},
        {0, 0, 1, 4 / 6.0, 1, 1}, {1, 0, 1, 5 / 6.0, 1, 1}, {0.5, 0.5, 0.5, 0, 0, 0.5},
        {0, 0, 0, 0, 0, 0},       {1, 0.5, 0.5, 1, 0.5, 1}, {0.5, 0.25, 0, 0.5 / 6, 1, 0.5},
    };
    for (const auto& row : rows) {
        double h, s, v;
        RGB_to_HSV(row.r, row.g, row.b, &h, &s, &v);
        EXPECT_DOUBLE_EQ(row.h, h);
        EXPECT_DOUBLE_EQ(row.s, s);
        EXPECT_DOUBLE_EQ(row.v, v);
    }
}

TEST(HsvValues, ConvertBackToEveryColor) {
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

TEST(HsvValues, OutOfRangeAreClampedToColors) {
    const double wild[] = {-1e300, -1, -0.0, 0.5, 2, 1e300, HUGE_VAL, NAN};
    for (const double h : wild) {
        for (const double s : wild) {
            double r = 9, g = 9, b = 9;
            HSV_to_RGB(h, s, 0.0, &r, &g, &b);
            EXPECT_EQ(r + g + b, 0.0);
            HSV_to_RGB(h, 0.5, s, &r, &g, &b);
            EXPECT_FALSE(r > 1 || g > 1 || b > 1 || r < 0 || g < 0 || b < 0);
        }
    }
}

TEST(ColorOrder, IsAntisymmetric) {
    const struct {
        DWORD first, second;
        int order;
    } rows[] = {
        {0xFF, 0xFF, 0},
        {0, RGB(1, 1, 1), -1},
        {RGB(200, 200, 200), RGB(90, 90, 90), 1}, // grays by value
        {0xFFFFFF, RGB(2, 2, 0), -1},             // white precedes any hue
        {RGB(255, 0, 0), RGB(255, 0, 255), 1},    // red after magenta
        {RGB(200, 0, 0), RGB(255, 128, 128), -1}, // value before saturation
        {RGB(255, 128, 128), RGB(255, 0, 0), -1}, // saturation last
        {0, kColorByLayer, -1},                   // markers sort as black, and by number
        {kColorByLayer, kColorOfPen, 1},
        {kColorByLayer, 0x00808080, -1},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.order, CompareHSVforRGBs(row.first, row.second)) << std::hex << row.first;
        EXPECT_EQ(-row.order, CompareHSVforRGBs(row.second, row.first)) << std::hex << row.first;
    }
}

// Sorting, and the equality of sorted and inserted lists, require a total order.
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
