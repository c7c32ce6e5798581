// Numbers as text: parsing, calculations, and formatting.

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include "orlo/host/units.h"

namespace {

struct NumberRow {
    const char* text;
    double value;
    int taken; // number of characters parsed; 0 for none
};

const NumberRow kNumbers[] = {{"12", 12, 2},    {"  -1.5e3x", -1500, 8},
                              {"+.5", 0.5, 3},  {"7.", 7, 2},
                              {"0x10", 0, 1},   {"1,5", 1, 1},
                              {"1e", 1, 1},     {"1e+", 1, 1},
                              {"", 0, 0},       {"-", 0, 0},
                              {".", 0, 0},      {"- 1", 0, 0},
                              {"e5", 0, 0},     {"inf", 0, 0},
                              {"nan", 0, 0},    {"1e999", 0, 0},
                              {"-1e999", 0, 0}, {"--1", 0, 0},
                              {"+-1", 0, 0},    {"1.7976931348623157e308", 1.7976931348623157e308, 22}};

// The longest valid calculation at the start; the caller checks the rest.
const NumberRow kCalculations[] = {{"2*3+1/8", 6.125, 7},
                                   {"2*3-1/8", 5.875, 7},
                                   {"90/4", 22.5, 4},
                                   {" ( 1 + 2 ) * 3 x", 9, 14},
                                   {"2-3-4", -5, 5},
                                   {"8/4/2", 1, 5},
                                   {"1.5/12/4", 0.03125, 8},
                                   {"-2*-3", 6, 5},
                                   {"-(1+2)", -3, 6},
                                   {"8/(1+3)", 2, 7},
                                   {"1e2+1e-2", 100.01, 8},
                                   {"1/2", 0.5, 3},
                                   {"-6 1/2", -6.5, 6},
                                   {"6-1/2 ", 6.5, 5}, // without more, a single number
                                   {"6 - 1/2", 5.5, 7},
                                   {"6-1/2+3", 8.5, 7},
                                   {"1 -2", -1, 4},
                                   {"2*", 2, 1},
                                   {"3+/4", 3, 1},
                                   {"2 + 3*", 5, 5},
                                   {"2+(3", 2, 1},
                                   {"1/0", 1, 1},
                                   {"1/(2-2)", 1, 1},
                                   {"1e308*10", 1e308, 5},
                                   {"1e308+1e308", 1e308, 5},
                                   {"1e-300*1e-300", 1e-300, 6},
                                   {"1e-300/1e300", 1e-300, 6},
                                   {"3+-2", 1, 4},
                                   {"3 - +2", 1, 6},
                                   {"2*3+-1/8", 5.875, 8},
                                   {"3+-", 3, 1},
                                   {"5--3", 5, 1},
                                   {"5++3", 5, 1},
                                   {"2(3)", 2, 1},
                                   {"(1", 0, 0},
                                   {"()", 0, 0},
                                   {"-", 0, 0},
                                   {"*2", 0, 0},
                                   {"(((((((((((((((((1)))))))))))))))))", 1, 35}};

TEST(PlainNumber, IsReadFromTheStart) {
    for (const auto& [rows, count] :
         {std::pair(kNumbers, std::size(kNumbers)), std::pair(kCalculations, std::size(kCalculations))})
        for (const NumberRow& row : std::vector<NumberRow>(rows, rows + count)) {
            char* end = nullptr;
            EXPECT_DOUBLE_EQ(StringToDouble(0, row.text, &end), row.value) << row.text;
            EXPECT_EQ(end - row.text, row.taken) << row.text;
        }
    const std::string brackets = std::string(100000, '(') + "1" + std::string(100000, ')');
    const std::string digits(10000, '9');
    char* end = nullptr;
    EXPECT_EQ(StringToDouble(0, digits.c_str(), &end), 0.0);
    EXPECT_EQ(end, digits.c_str()) << "too large for a double: rejected";
    EXPECT_EQ(StringToDouble(0, brackets.c_str(), &end), 0.0);
    EXPECT_EQ(end, brackets.c_str()) << "endlessly nested brackets";
}

struct WrittenRow {
    double value;
    int digits;
    int exponent;
    const char* text;
};

const WrittenRow kWritten[] = {{0, 6, 0, "0"},
                               {1.5, 6, 0, "1.5"},
                               {-0.25, 6, 0, "-0.25"},
                               {123456.7, 6, 0, "123457"},
                               {99999.96, 6, 0, "100000"},
                               {9.9999996, 6, 0, "10"},
                               {1e-5, 6, 0, "0.00001"},
                               {1.17549435e-38, 6, 1, "1.17549e-38"},
                               {1234567, 6, 1, "1.23457e+06"},
                               {1e300, 6, 0, "1e+300"},
                               {100, 15, 0, "100"},
                               {0.1, 15, 0, "0.1"},
                               {-1000.0, 15, 0, "-1000"}};

TEST(PlainNumber, IsWrittenWithSignificantDigits) {
    for (const WrittenRow& row : kWritten) {
        char buffer[32];
        DoubleToString(0, row.value, row.digits, buffer, 0, row.exponent, 1);
        EXPECT_STREQ(buffer, row.text);
    }
}

TEST(PlainNumber, NeverExceedsTheBuffer) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i) {
        const uint64_t bits = random();
        double value;
        std::memcpy(&value, &bits, sizeof value);
        char buffer[33];
        buffer[32] = '#';
        DoubleToString(0, value, 1 + static_cast<int>(random() % 17), buffer, 0, static_cast<int>(random() % 2), 1);
        ASSERT_LT(std::strlen(buffer), 32u) << value;
        ASSERT_EQ(buffer[32], '#');
    }
}

} // namespace
