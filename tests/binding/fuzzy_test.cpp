// Bucket comparison: where buckets end, signs, infinities, and the properties of an order.

#include "orlo/binding/fuzzy.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

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

struct Pair {
    const char* name;
    double a, b;
    int order;
};

const Pair kPairs[] = {
    {"HalfABucketGoesDown", 1.0, WithHighWord(0x3FF00008), 0},
    {"MoreThanHalfGoesUp", 1.0, WithHighWord(0x3FF00009), -1},
    {"LowWordPlaysNoPart", WithHighWord(0x3FF00008, 0), WithHighWord(0x3FF00008, 0xFFFFFFFF), 0},
    {"AFifthDecimalOfAHundred", 100.0, 100.0005, 0},
    {"AThirdDecimalOfAHundred", 100.0, 100.001, -1},
    {"NegativeOrder", -1.0, -1.0000153, 1},
    {"Zeros", 0.0, -0.0, 0},
    {"TinyAgainstNegativeZero", WithHighWord(8), -0.0, 1},
    {"TinyOfOneSign", WithHighWord(8), 0.0, 0},
    {"SignsDecide", -1e-300, 1e300, -1},
    {"CarryIntoTheNextBinade", WithHighWord(0x3FFFFFFF), 2.0, 0},
    {"Infinity", HUGE_VAL, HUGE_VAL, 0},
    {"LargestFiniteIsInfinite", WithHighWord(0x7FEFFFF9), HUGE_VAL, 0},
    {"JustBelowThat", WithHighWord(0x7FEFFFF8), HUGE_VAL, -1},
    {"WrappedNan", WithHighWord(0x7FFFFFF9), 0.0, 0},
};

class DoublePairs : public ::testing::TestWithParam<Pair> {};

TEST_P(DoublePairs, CompareBothWays) {
    const Pair& pair = GetParam();
    EXPECT_EQ(pair.order, CompareDoubles(&pair.a, &pair.b));
    EXPECT_EQ(-pair.order, CompareDoubles(&pair.b, &pair.a));
}

INSTANTIATE_TEST_SUITE_P(Table, DoublePairs, ::testing::ValuesIn(kPairs),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(CompareFloatsTest, RoundsAtSixtyFour) {
    const float one = 1.0f, same = WithBits(0x3F800040), next = WithBits(0x3F800041);
    EXPECT_EQ(0, CompareFloats(&one, &same));
    EXPECT_EQ(-1, CompareFloats(&one, &next));
    const float zero = 0.0f, nearly = WithBits(0x8000003F), more = WithBits(0x80000040);
    EXPECT_EQ(0, CompareFloats(&zero, &nearly));
    EXPECT_EQ(1, CompareFloats(&zero, &more));
}

// Over random bit patterns that are close to each other: antisymmetric, transitive, and never against the numeric order.
TEST(CompareDoublesTest, IsAnOrderOfBuckets) {
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
        if (ab == 0 && bc == 0) {
            ASSERT_EQ(0, ac);
        }
        if (ab < 0) {
            ASSERT_LT(v[0], v[1]);
        }
        if (ab > 0) {
            ASSERT_GT(v[0], v[1]);
        }
    }
}

TEST(HexTest, EightDigitsAndANul) {
    char text[10];
    std::memset(text, 'x', sizeof text);
    DWord_to_Hex(255, text);
    EXPECT_STREQ("000000FF", text);
    EXPECT_EQ('x', text[9]);
    DWord_to_Hex(0xFEDCBA98, text);
    EXPECT_STREQ("FEDCBA98", text);
}

} // namespace
