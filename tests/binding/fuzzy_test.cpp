// Bucket comparison: bucket boundaries, signs, infinities, and the properties of an order.

#include "orlo/binding/fuzzy.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>

namespace {

double WithHighWord(uint32_t high, uint32_t low = 0) {
    const uint64_t bits = (static_cast<uint64_t>(high) << 32) | low;
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

float WithBits(uint32_t bits) {
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

TEST(CompareDoublesTest, ComparesBucketsInBothDirections) {
    const struct {
        double a, b;
        int order;
    } rows[] = {
        {1.0, WithHighWord(0x3FF00008), 0}, // half a bucket is rounded down
        {1.0, WithHighWord(0x3FF00009), -1},
        {WithHighWord(0x3FF00008, 0), WithHighWord(0x3FF00008, 0xFFFFFFFF), 0},
        {100.0, 100.0005, 0},
        {100.0, 100.001, -1},
        {-1.0, -1.0000153, 1},
        {0.0, -0.0, 0},
        {WithHighWord(8), -0.0, 1},
        {WithHighWord(8), 0.0, 0},
        {-1e-300, 1e300, -1},
        {WithHighWord(0x3FFFFFFF), 2.0, 0}, // carries into the next binade
        {HUGE_VAL, HUGE_VAL, 0},
        {WithHighWord(0x7FEFFFF9), HUGE_VAL, 0}, // the largest finite numbers count as infinite
        {WithHighWord(0x7FEFFFF8), HUGE_VAL, -1},
        {WithHighWord(0x7FFFFFF9), 0.0, 0}, // a NaN that wraps
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.order, CompareDoubles(&row.a, &row.b)) << row.a << " " << row.b;
        EXPECT_EQ(-row.order, CompareDoubles(&row.b, &row.a)) << row.a << " " << row.b;
    }
}

TEST(CompareFloatsTest, RoundsAtSixtyFour) {
    const float one = 1.0f, same = WithBits(0x3F800040), next = WithBits(0x3F800041);
    EXPECT_EQ(CompareFloats(&one, &same), 0);
    EXPECT_EQ(CompareFloats(&one, &next), -1);
    const float zero = 0.0f, nearly = WithBits(0x8000003F), more = WithBits(0x80000040);
    EXPECT_EQ(CompareFloats(&zero, &nearly), 0);
    EXPECT_EQ(CompareFloats(&zero, &more), 1);
}

// Random similar bit patterns: antisymmetric, transitive, and never contrary to the numeric order.
TEST(CompareDoublesTest, IsATotalOrderOfBuckets) {
    std::mt19937 random(20260801);
    std::uniform_int_distribution<uint32_t> base(0x00100000, 0x7FE00000), near(0, 40), sign(0, 1);
    for (int i = 0; i < 20000; ++i) {
        const uint32_t start = base(random);
        double v[3];
        for (double& value : v)
            value = WithHighWord((start + near(random)) | (sign(random) << 31), random());
        const int ab = CompareDoubles(&v[0], &v[1]), bc = CompareDoubles(&v[1], &v[2]),
                  ac = CompareDoubles(&v[0], &v[2]);
        ASSERT_EQ(-ab, CompareDoubles(&v[1], &v[0]));
        ASSERT_TRUE(ab != 0 || bc != 0 || ac == 0);
        ASSERT_TRUE(ab == 0 || (ab < 0) == (v[0] < v[1]));
    }
}

TEST(HexTest, WritesEightDigitsAndANul) {
    char text[10];
    std::memset(text, 'x', sizeof text);
    DWord_to_Hex(255, text);
    EXPECT_STREQ(text, "000000FF");
    EXPECT_EQ(text[9], 'x');
    DWord_to_Hex(0xFEDCBA98, text);
    EXPECT_STREQ(text, "FEDCBA98");
}

} // namespace
