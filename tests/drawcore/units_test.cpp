// Numbers and lengths as text: what is read, what is refused whole, and that what is written is read back.

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>

#include <drawcore/units.h>

#include "drawcore/kit.h"

namespace {

// --- plain numbers

struct NumberRow {
    const char* text;
    double value;
    int taken; // characters; 0: none
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

TEST(PlainNumber, IsReadFromTheStart) {
    for (const NumberRow& row : kNumbers) {
        char* end = nullptr;
        EXPECT_EQ(StringToDouble(0, row.text, &end), row.value) << row.text;
        EXPECT_EQ(end - row.text, row.taken) << row.text;
    }
    const std::string digits(10000, '9');
    char* end = nullptr;
    EXPECT_EQ(StringToDouble(0, digits.c_str(), &end), 0.0);
    EXPECT_EQ(end, digits.c_str()) << "too large for a double: refused";
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

TEST(PlainNumber, StaysInTheBufferWhateverTheValue) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i) {
        const uint64_t bits = random();
        double value;
        std::memcpy(&value, &bits, sizeof value);
        char buffer[33];
        buffer[32] = '#';
        DoubleToString(0, value, 1 + static_cast<int>(random() % 17), buffer, 0,
                       static_cast<int>(random() % 2), 1);
        ASSERT_LT(std::strlen(buffer), 32u) << value;
        ASSERT_EQ(buffer[32], '#');
    }
}

// --- lengths

struct LengthRow {
    const char* text;
    double inches;
};

const LengthRow kLengths[] = {{"2", 2},           {" 2.5 ", 2.5}, {"-2.5", -2.5},       {"1in", 1},
                              {"1 IN", 1},        {"25.4 mm", 1}, {"2.54cm", 1},        {"1 ft", 12},
                              {"1'", 12},         {"6\"", 6},     {"1/4", 0.25},        {"3 1/2\"", 3.5},
                              {"1'6", 18},        {"1'-6\"", 18}, {"1'-6 1/2\"", 18.5}, {"-1'6\"", -18},
                              {"1' 1/2\"", 12.5}, {"2 yd", 72},   {"72 pt", 1},         {"1000 mil", 1},
                              {"1e1", 10},        {"+0", 0},      {".5 ft", 6}};

const char* const kNoLengths[] = {"",         " ",   "-",     "+",   "abc",    "2x",      "2 apples",
                                  "2 2",      "1,5", "1e999", "nan", "inf",    "0x10",    "1/0",
                                  "1/",       "/2",  "1 1/",  "mm",  "1 mm 2", "1' 2 mm", "1'-",
                                  "1' 2' 3'", "--1", "1-6",   "5%",  "1..2",   "1e308 mi"};

class Lengths : public testing::Test {
protected:
    Lengths() { TableSetStringVar(units, kUnitDrawing, "in"); }
    OwnDrawing drawing;
    TableStruct* units = drawing.Table("_Units_");
};

TEST_F(Lengths, AreReadWithAllTheirUnits) {
    for (const LengthRow& row : kLengths) {
        double value = 999;
        EXPECT_TRUE(DrawingStdTextToNumeric(drawing, row.text, &value, 0)) << row.text;
        EXPECT_NEAR(value, row.inches, 1e-12) << row.text;
    }
}

TEST_F(Lengths, AreRefusedWholeIfAnyPartIsWrong) {
    std::vector<std::string> texts(std::begin(kNoLengths), std::end(kNoLengths));
    texts.push_back(std::string(10000, '1'));
    texts.push_back("1" + std::string(10000, ' ') + "x");
    for (const std::string& text : texts) {
        double value = 999;
        EXPECT_FALSE(DrawingStdTextToNumeric(drawing, text.c_str(), &value, 0)) << text.substr(0, 40);
        EXPECT_EQ(value, 999) << text.substr(0, 40);
    }
}

TEST_F(Lengths, ShowFourDecimalsOrFourDigits) {
    const struct {
        double value;
        const char* text;
    } kRows[] = {{1, "1"},
                 {0.5, "0.5"},
                 {1234.56789, "1234.5679"},
                 {-0.00001234567, "-0.00001235"},
                 {1e-7, "0.0000001"},
                 {0, "0"},
                 {-0.0, "0"},
                 {1e20, "1e+20"},
                 {2.00000000001, "2"}};
    for (const auto& row : kRows) {
        char buffer[64];
        EXPECT_TRUE(DrawingStdNumericToText(drawing, row.value, buffer, sizeof buffer, 0));
        EXPECT_STREQ(buffer, row.text);
    }
    char buffer[8] = "kept";
    EXPECT_FALSE(DrawingStdNumericToText(drawing, HUGE_VAL, buffer, sizeof buffer, 0));
    EXPECT_FALSE(DrawingStdNumericToText(drawing, NAN, buffer, sizeof buffer, 0));
    EXPECT_FALSE(DrawingStdNumericToText(drawing, 123.4567, buffer, 8, 0))
        << "cut off, it would be another number";
    EXPECT_STREQ(buffer, "kept");
}

// What is written is read back within the digits that it shows, and then written the same.
TEST_F(Lengths, ComeBackFromTheirText) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> exponent(-12, 18), mantissa(-10, 10);
    const char* const kUnitNames[] = {"mm", "cm", "m", "in", "ft", "mil", "pt"};
    for (int i = 0; i < 20000; ++i) {
        TableSetStringVar(units, kUnitPenWidth, kUnitNames[random() % std::size(kUnitNames)]);
        TableSetIntVar(units, kUnitLinearDigits, static_cast<int>(random() % 9));
        const double value = mantissa(random) * std::pow(10, exponent(random));
        char text[64], again[64];
        double back = 0;
        ASSERT_TRUE(UnitsNumericToTextEx(units, 0, kUnitPenWidth, value, text, sizeof text, 0, 1)) << value;
        ASSERT_TRUE(UnitsTextToNumericEx(units, kUnitPenWidth, 0, text, &back)) << text;
        ASSERT_NEAR(back, value, std::fabs(value) * 0.00051) << text;
        ASSERT_TRUE(UnitsNumericToTextEx(units, 0, kUnitPenWidth, back, again, sizeof again, 0, 1));
        ASSERT_STREQ(again, text);
    }
}

TEST_F(Lengths, OnPaperAreMillimetresInWhateverUnitTheTextIs) {
    TableSetStringVar(units, kUnitPenWidth, "in");
    double value = 0;
    EXPECT_TRUE(UnitsTextToNumericEx(units, kUnitPenWidth, 0, "0.01", &value));
    EXPECT_NEAR(value, 0.254, 1e-12);
    EXPECT_TRUE(UnitsTextToNumericEx(units, kUnitPenWidth, 0, "0.35 mm", &value));
    EXPECT_NEAR(value, 0.35, 1e-12);
    EXPECT_TRUE(UnitsTextToNumericEx(units, kUnitPenWidth, kUnitMillimetre, "0.5", &value))
        << "shown in another unit";
    EXPECT_NEAR(value, 0.5, 1e-12);
    char text[64];
    EXPECT_TRUE(UnitsNumericToTextEx(units, 0, kUnitPenWidth, 25.4, text, sizeof text, 0, 1));
    EXPECT_STREQ(text, "1 in");
    EXPECT_TRUE(UnitsNumericToTextEx(units, kUnitMillimetre, kUnitPenWidth, 25.4, text, sizeof text, 0, 0));
    EXPECT_STREQ(text, "25.4");
    TableSetStringVar(units, kUnitPenWidth, "cubits");
    EXPECT_FALSE(UnitsTextToNumericEx(units, kUnitPenWidth, 0, "1", &value));
    EXPECT_FALSE(UnitsTextToNumericEx(units, 0x1234, 0, "1", &value)) << "no unit variable";
}

TEST_F(Lengths, FollowTheSpaceOfTheDrawing) {
    TableSetStringVar(units, kUnitTextSize, "cm");
    char text[64], standard[64];
    double value = 7;
    EXPECT_EQ(DrawingGetCoordSpace(drawing), 0);
    EXPECT_TRUE(DrawingStdNumericToTextEx(drawing, 2.5, text, sizeof text, 0, kUnitDrawing));
    EXPECT_STREQ(text, "2.5") << "drawing units";
    EXPECT_TRUE(DrawingStdTextToNumericEx(drawing, "25.4 mm", &value, 0, kUnitDrawing));
    EXPECT_NEAR(value, 1, 1e-12);

    ASSERT_TRUE(DrawingSetCoordSpace(drawing, 1));
    EXPECT_TRUE(DrawingStdNumericToTextEx(drawing, 25, text, sizeof text, 1, kUnitTextSize));
    EXPECT_STREQ(text, "2.5 cm") << "millimetres, shown in the unit of text sizes";
    EXPECT_TRUE(DrawingStdNumericToText(drawing, 25, standard, sizeof standard, 1));
    EXPECT_STREQ(standard, text) << "a text size follows the drawing";
    EXPECT_TRUE(DrawingStdNumericToText(drawing, 25, standard, sizeof standard, 0));
    EXPECT_STREQ(standard, "25") << "a length does not";
    EXPECT_TRUE(DrawingStdTextToNumericEx(drawing, "1", &value, 1, kUnitTextSize));
    EXPECT_NEAR(value, 10, 1e-12);

    ASSERT_TRUE(DrawingSetCoordSpace(drawing, 2));
    EXPECT_FALSE(DrawingStdTextToNumericEx(drawing, "1", &value, 2, kUnitTextSize));
    EXPECT_FALSE(DrawingStdNumericToTextEx(drawing, 1, text, sizeof text, 2, kUnitTextSize));
    EXPECT_NEAR(value, 10, 1e-12);
    EXPECT_FALSE(DrawingSetCoordSpace(drawing, 3));
    EXPECT_EQ(DrawingGetCoordSpace(drawing), 2);
    EXPECT_TRUE(TableGetStringVar(units, kUnitFontName, text, sizeof text));
    EXPECT_STREQ(text, "Arial");
}

// --- scales

TEST_F(Lengths, MakeScales) {
    const struct {
        const char* text;
        double scale;
    } kRows[] = {{"1 : 48", 48},     {"1:48", 48},         {"2 : 1", 0.5},   {"1 in = 1 ft", 12},
                 {"1/4\" = 1'", 48}, {"1 mm = 1 m", 1000}, {"1=1", 1},       {"1 : 0", 0},
                 {"0 : 1", 0},       {"-1 : 1", 0},        {"48", 0},        {"", 0},
                 {"1 :", 0},         {": 1", 0},           {"1 : 2 : 3", 0}, {"one : two", 0},
                 {"1 : 1e999", 0}};
    for (const auto& row : kRows)
        EXPECT_NEAR(UnitsGetScaleValue(units, row.text), row.scale, 1e-9) << row.text;
    std::mt19937 random(3);
    std::uniform_real_distribution<double> exponent(-6, 6);
    for (int i = 0; i < 1000; ++i) {
        const double scale = std::pow(10, exponent(random));
        char text[64];
        ASSERT_TRUE(UnitsMakeScaleString(units, scale, text, sizeof text));
        ASSERT_NEAR(UnitsGetScaleValue(units, text), scale, scale * 1e-9) << text;
    }
    char text[8] = "kept";
    for (const double scale : {0.0, -1.0, static_cast<double>(NAN), HUGE_VAL})
        EXPECT_FALSE(UnitsMakeScaleString(units, scale, text, sizeof text));
    EXPECT_STREQ(text, "kept");
}

} // namespace
