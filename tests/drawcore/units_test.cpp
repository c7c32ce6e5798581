// Lengths and angles as text: accepted and rejected texts, and that formatted values are parsed back.

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <random>

#include <drawcore/application.h>
#include <drawcore/units.h>

#include "drawcore/kit.h"

namespace {

// --- lengths

struct LengthRow {
    const char* text;
    double inches;
};

const LengthRow kLengths[] = {{"2", 2},
                              {" 2.5 ", 2.5},
                              {"-2.5", -2.5},
                              {"1in", 1},
                              {"1 IN", 1},
                              {"25.4 mm", 1},
                              {"2.54cm", 1},
                              {"1 ft", 12},
                              {"1'", 12},
                              {"6\"", 6},
                              {"1/4", 0.25},
                              {"3 1/2\"", 3.5},
                              {"1'6", 18},
                              {"1'-6\"", 18},
                              {"1'-6 1/2\"", 18.5},
                              {"-1'6\"", -18},
                              {"1' 1/2\"", 12.5},
                              {"2 yd", 72},
                              {"72 pt", 1},
                              {"1000 mil", 1},
                              {"1e1", 10},
                              {"+0", 0},
                              {".5 ft", 6},
                              {"6-1/2\"", 6.5},
                              {"1 1/2'", 18},
                              {"-1'-6-1/2\"", -18.5},
                              {"1'6.5\"", 18.5},
                              {"1 m", 1000 / 25.4},
                              {"2*3+1/8", 6.125},
                              {"6-1/2 + 3", 8.5}, // without units, the hyphen is a minus
                              // a single unit at the end applies to the whole text
                              {"100+50 mm", 150 / 25.4},
                              {"(1+2)*3 ft", 108},
                              {"(100 + 50) mm", 150 / 25.4},
                              {"100*2/4mm", 50 / 25.4},
                              {"10.5/4 ft", 31.5},
                              {"-(1+2) ft", -36},
                              // several units: a number without one is in the drawing's unit
                              {"2 ft + 3", 27},
                              {"3 + 2 ft - 1 in", 26},
                              {"1'-6\" + 2 in", 20},
                              {"2 - 1'-6\"", -16},
                              {"1' - 6\"", 6},
                              {"10' - 6'", 48},
                              {"1'-6 1/2\"*2", 37},
                              {"2*(1' + 6\")/3", 12},
                              {"2*-1'", -24},
                              {"(1+2) ft + 1 in", 37},
                              {"25.4 mm*1/2", 0.5},
                              {"1 ft/4/2", 1.5}};

const char* const kNoLengths[] = {"", " ", "-", "+", "abc", "2x", "2 apples", "2 2", "1,5", "1e999", "nan", "inf",
                                  "0x10", "1/0", "1/", "/2", "1 1/", "mm", "1 mm 2", "1' 2 mm", "1'-", "--1", "5%",
                                  "1..2", "1e308 mi", "1.5 1/2", "- 1", "1' 2' 3'", "1'--6", "1e-999", "2*", "3+/4",
                                  "(1", "1)", "()", "1/(2-2)", "1e308*10", "2 in*", "2 in + x", "(1 in", "1 in/0",
                                  "1 in*1 in", "1 in/1 in", "4/(2 in)", "1 in 1/2", "2(3)", "(2)3", "(1 in) in",
                                  "(1+2)x", "2 ft--1", "1e300 mi*1e10", "1e-300*1e-300",
                                  // ambiguous with units: one number or a difference
                                  "2*3-1/8 in", "1' + 6-1/2\"", "2 ft + 6-1/2", "1'-6'", "10'-6'", "2 + 1'-6'"};

class Lengths : public testing::Test {
protected:
    Lengths() { TableSetStringVar(units, kUnitDrawing, "in"); }
    OwnDrawing drawing;
    TableStruct* units = drawing.Table(kTableUnits);
};

TEST_F(Lengths, AreParsedWithAllUnits) {
    for (const LengthRow& row : kLengths) {
        double value = 999;
        EXPECT_TRUE(DrawingStdTextToNumeric(drawing, row.text, &value, 0)) << row.text;
        EXPECT_NEAR(value, row.inches, 1e-12) << row.text;
    }
}

TEST_F(Lengths, AreRejectedIfAnyPartIsInvalid) {
    std::vector<std::string> texts(std::begin(kNoLengths), std::end(kNoLengths));
    texts.push_back(std::string(10000, '1'));
    texts.push_back("1" + std::string(10000, ' ') + "x");
    texts.push_back(std::string(9998, '0') + ".5");
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
    for (const char* unit : {"mm", "m"}) { // rounded up, the largest number would be infinite
        char text[64];
        double back = 0;
        TableSetStringVar(units, kUnitPenWidth, unit);
        EXPECT_TRUE(UnitsNumericToTextEx(units, 0, kUnitPenWidth, DBL_MAX, text, sizeof text, 0, 1));
        EXPECT_TRUE(UnitsTextToNumericEx(units, kUnitPenWidth, 0, text, &back)) << text;
        EXPECT_NEAR(back / DBL_MAX, 1, 1e-9);
    }
    char buffer[8] = "kept";
    EXPECT_FALSE(DrawingStdNumericToText(drawing, HUGE_VAL, buffer, sizeof buffer, 0));
    EXPECT_FALSE(DrawingStdNumericToText(drawing, NAN, buffer, sizeof buffer, 0));
    EXPECT_FALSE(DrawingStdNumericToText(drawing, 123.4567, buffer, 8, 0)) << "truncated, it would be another number";
    EXPECT_STREQ(buffer, "kept");
}

struct FormRow {
    int system, digits;
    double inches;
    const char* text;
};

const FormRow kForms[] = {{1, 4, 18.5, "1.85e+01"},
                          {1, 2, -0.0625, "-6.25e-02"},
                          {1, 0, 1234.5, "1.234e+03"},
                          {2, 4, 18.5, "18.5"},
                          {3, 4, 18.5, "1'-6.5\""},
                          {3, 2, -18.5, "-1'-6.5\""},
                          {3, 0, 11.99, "11.99\""},
                          {3, 1, 23.9999, "2'-0\""},
                          {3, 4, 0, "0\""},
                          {3, 2, 0.00123, "0.00123\""},
                          {3, 4, 1e20, "1e+20\""},
                          {4, 1, 18.5, "1'-6 1/2\""},
                          {4, 4, -18.5, "-1'-6 1/2\""},
                          {4, 4, 0.5, "1/2\""},
                          {4, 4, 12, "1'-0\""},
                          {4, 4, 11.99, "1'-0\""},
                          {4, 8, 6.00390625, "6 1/256\""},
                          {4, 3, 126.125, "10'-6 1/8\""},
                          {4, 2, 0.01, "0.01\""},
                          {4, 4, -0.0, "0\""},
                          {4, 4, 1e20, "1e+20\""},
                          {5, 4, 18.5, "18 1/2"},
                          {5, 4, -0.1875, "-3/16"},
                          {5, 0, 2.4, "2"},
                          {5, 3, 0.01, "0.01"},
                          {5, 4, 144, "144"}};

TEST_F(Lengths, AreWrittenInTheFormatOfTheDrawing) {
    for (const FormRow& row : kForms) {
        TableSetIntVar(units, kUnitLinearSystem, row.system);
        TableSetIntVar(units, kUnitLinearDigits, row.digits);
        char text[64] = "";
        double back = 0;
        EXPECT_TRUE(DrawingStdNumericToText(drawing, row.inches, text, sizeof text, 0)) << row.text;
        EXPECT_STREQ(text, row.text);
        const double step = row.system >= 4 ? std::pow(2, -row.digits) / 2 : std::fabs(row.inches) * 0.0005;
        EXPECT_TRUE(DrawingStdTextToNumeric(drawing, row.text, &back, 0)) << row.text;
        EXPECT_NEAR(back, row.inches, step) << row.text;
    }
    char text[64];
    TableSetStringVar(units, kUnitDrawing, "cm");
    TableSetIntVar(units, kUnitLinearSystem, 4);
    EXPECT_TRUE(DrawingStdNumericToText(drawing, 46.99, text, sizeof text, 0));
    EXPECT_STREQ(text, "1'-6 1/2\"") << "true feet and inches in a metric drawing";
    EXPECT_TRUE(UnitsNumericToTextEx(units, 0, kUnitPenWidth, 0.35, text, sizeof text, 0, 1));
    EXPECT_STREQ(text, "0.35 mm") << "lengths on paper are not in feet";
    for (const int wrong : {-1, 0, 6}) {
        TableSetIntVar(units, kUnitLinearSystem, wrong);
        EXPECT_TRUE(DrawingStdNumericToText(drawing, 2.5, text, sizeof text, 0));
        EXPECT_STREQ(text, "2.5") << "decimal, because there is no such format";
    }
}

TEST_F(Lengths, InEveryFormatAreParsedBack) {
    std::mt19937_64 random(11);
    std::uniform_real_distribution<double> exponent(-8, 12), mantissa(-10, 10);
    for (int i = 0; i < 20000; ++i) {
        const int system = 1 + static_cast<int>(random() % 5), digits = static_cast<int>(random() % 9);
        TableSetIntVar(units, kUnitLinearSystem, system);
        TableSetIntVar(units, kUnitLinearDigits, digits);
        TableSetStringVar(AppGetCurrentApp()->pVariables, kVarDecimalMark, random() % 2 ? "," : ".");
        const double value = mantissa(random) * std::pow(10, exponent(random));
        char text[64], again[64];
        double back = 0;
        ASSERT_TRUE(DrawingStdNumericToText(drawing, value, text, sizeof text, 0)) << value;
        ASSERT_TRUE(DrawingStdTextToNumeric(drawing, text, &back, 0)) << text;
        const double fraction = system >= 4 ? 0.5000001 * std::pow(2, -digits) : 0;
        ASSERT_NEAR(back, value, std::max(fraction, std::fabs(value) * 0.00051)) << text;
        ASSERT_NE(back, 0) << text;
        ASSERT_TRUE(DrawingStdNumericToText(drawing, back, again, sizeof again, 0));
        ASSERT_STREQ(again, text);
    }
    TableSetStringVar(AppGetCurrentApp()->pVariables, kVarDecimalMark, ".");
}

TEST_F(Lengths, ReadAndWriteTheDecimalMarkOfTheApplication) {
    TableStruct* const settings = AppGetCurrentApp()->pVariables;
    TableSetStringVar(settings, kVarDecimalMark, ",");
    double value = 7;
    char text[64];
    EXPECT_TRUE(DrawingStdTextToNumeric(drawing, "1'-6,5\"", &value, 0));
    EXPECT_NEAR(value, 18.5, 1e-12);
    EXPECT_FALSE(DrawingStdTextToNumeric(drawing, "2.5", &value, 0)) << "2.5 must not be parsed as 2 or 25";
    EXPECT_TRUE(DrawingStdTextToAngle(drawing, "22,5", &value, 0));
    EXPECT_TRUE(DrawingStdAngleToText(drawing, value, text, sizeof text, 0));
    EXPECT_STREQ(text, "22,5");
    EXPECT_TRUE(UnitsMakeScaleString(units, 2.5, text, sizeof text));
    EXPECT_STREQ(text, "1 : 2,5");
    EXPECT_NEAR(UnitsGetScaleValue(units, text), 2.5, 1e-12);
    char* end = nullptr;
    EXPECT_EQ(StringToDouble(0, "-1,5e3", &end), -1500);
    EXPECT_EQ(StringToDouble(0, "1,5*(2,5-,5)", &end), 3);
    DoubleToString(0, 0.25, 6, text, 0, 0, 1);
    EXPECT_STREQ(text, "0,25");
    TableSetStringVar(settings, kVarDecimalMark, ".");
}

// A formatted value is parsed back within the digits shown, and then formatted the same.
TEST_F(Lengths, AreParsedBack) {
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

TEST_F(Lengths, OnPaperAreMillimetersAndTextInAnyUnit) {
    TableSetStringVar(units, kUnitPenWidth, "in");
    double value = 0;
    EXPECT_TRUE(UnitsTextToNumericEx(units, kUnitPenWidth, 0, "0.01", &value));
    EXPECT_NEAR(value, 0.254, 1e-12);
    EXPECT_TRUE(UnitsTextToNumericEx(units, kUnitPenWidth, 0, "0.35 mm", &value));
    EXPECT_NEAR(value, 0.35, 1e-12);
    EXPECT_TRUE(UnitsTextToNumericEx(units, kUnitPenWidth, kUnitMillimeter, "0.5", &value)) << "shown in another unit";
    EXPECT_NEAR(value, 0.5, 1e-12);
    char text[64];
    EXPECT_TRUE(UnitsNumericToTextEx(units, 0, kUnitPenWidth, 25.4, text, sizeof text, 0, 1));
    EXPECT_STREQ(text, "1 in");
    EXPECT_TRUE(UnitsNumericToTextEx(units, kUnitMillimeter, kUnitPenWidth, 25.4, text, sizeof text, 0, 0));
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
    EXPECT_STREQ(text, "2.5 cm") << "millimeters, shown in the unit of text sizes";
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
}

// --- angles

constexpr double kDegree = 0.017453292519943295;

struct AngleRow {
    const char* text;
    double degrees;
};

const AngleRow kAngles[] = {{"45", 45},
                            {" -12.5 ", -12.5},
                            {"45d", 45},
                            {"45\xB0", 45},
                            {"12d30'", 12.5},
                            {"12 d 30 ' 36 \"", 12.51},
                            {"-12d30'36.0\"", -12.51},
                            {"30'", 0.5},
                            {"36\"", 0.01},
                            {"12d36\"", 12.01},
                            {"100g", 90},
                            {"-50 GRAD", -45},
                            {"3.141592653589793r", 180},
                            {"1 rad", 1 / kDegree},
                            {"720", 720},
                            {"N", 90},
                            {" e ", 0},
                            {"W", 180},
                            {"s", 270},
                            {"N 45d E", 45},
                            {"n45dw", 135},
                            {"S 30d30' E", 300.5},
                            {"S 30 W", 240},
                            {"N 0 E", 90},
                            {"90/4", 22.5},
                            {"1/2", 0.5},
                            {"(30+15)*2", 90},
                            {"20+30g", 45}, // a unit at the end applies to the whole text
                            {"12d30' + 5", 17.5},
                            {"45d -3'", 44.95},
                            {"2*12d30'", 25},
                            {"6-1/2", 6.5},
                            {"N 90/4 E", 67.5}};

const char* const kNoAngles[] = {"",        " ",      "-",       "d",        "'",          "45x",     "45dd", "45 45",
                                 "12d60'",  "12d1.5", "1.5d30'", "30'12d",   "12d30'60\"", "--4",     "- 4",  "1e999",
                                 "nan",     "inf",    "0x10",    "NE",       "N 91 E",     "N -4 E",  "45 E", "N 45",
                                 "N 45 S",  "-N",     "50g30'",  "1,5",      "1/0",        "2*",      "3+/4", "(1",
                                 "45d--3'", "2d*2d",  "4/(2d)",  "N 90*2 E", "N 45 E + 1", "N 1d W E"};

class Angles : public Lengths {};

TEST_F(Angles, AreParsedWithAllUnits) {
    for (const AngleRow& row : kAngles) {
        double value = 999;
        EXPECT_TRUE(DrawingStdTextToAngle(drawing, row.text, &value, 0)) << row.text;
        EXPECT_NEAR(value, row.degrees * kDegree, 1e-12) << row.text;
    }
    const double kBare[] = {kDegree, kDegree, kDegree * 0.9, 1, kDegree};
    for (int system = 0; system < 5; ++system) {
        TableSetIntVar(units, kUnitAngularSystem, system);
        double value = 0;
        EXPECT_EQ(UnitsGetAngularSystem(units), system);
        EXPECT_TRUE(DrawingStdTextToAngle(drawing, "6", &value, 0));
        EXPECT_NEAR(value, 6 * kBare[system], 1e-12) << system;
    }
}

TEST_F(Angles, AreRejectedIfAnyPartIsInvalid) {
    std::vector<std::string> texts(std::begin(kNoAngles), std::end(kNoAngles));
    texts.push_back(std::string(10000, '1'));
    texts.push_back("N " + std::string(10000, ' ') + "4 E");
    for (const std::string& text : texts) {
        double value = 999;
        EXPECT_FALSE(DrawingStdTextToAngle(drawing, text.c_str(), &value, 0)) << text.substr(0, 40);
        EXPECT_EQ(value, 999) << text.substr(0, 40);
    }
}

TEST_F(Angles, AreWrittenInTheFormatOfTheDrawing) {
    const struct {
        int system, digits;
        double degrees;
        const char* text;
    } kRows[] = {{0, 0, 22.5, "22.5"},
                 {0, 4, -45, "-45"},
                 {0, 2, 12.3456, "12.35"},
                 {1, 0, 45, "45d"},
                 {1, 4, -12.51, "-12d30'36\""},
                 {1, 2, 22.5, "22d30'"},
                 {1, 0, 22.5, "22d30'"},
                 {1, 4, 12.01, "12d0'36\""},
                 {1, 6, 0.001, "0d0'3.6\""},
                 {1, 4, 59.99999, "60d"},
                 {1, 0, 349 + 1 / 6.0, "349d10'"}, // four digits of this number, not of a smaller one
                 {1, 4, -1e-14, "0d"},             // a tiny difference left by a calculation
                 {0, 4, 1e-14, "0"},
                 {2, 0, 45, "50"},
                 {3, 4, 180, "3.1416"},
                 {4, 0, 0, "E"},
                 {4, 0, 90, "N"},
                 {4, 0, 180, "W"},
                 {4, 0, 270, "S"},
                 {4, 0, 45, "N 45d E"},
                 {4, 2, 120.5, "N 30d30' W"},
                 {4, 4, 200, "S 70d W"},
                 {4, 4, 300, "S 30d E"},
                 {4, 4, 90 + 1e-13, "N"}, // within the precision of a bearing
                 {4, 0, 269.999, "S"},
                 {4, 4, -0.0001, "E"},
                 {4, 4, 359.99999, "E"},
                 {4, 4, 180.00001, "W"},
                 {4, 0, 90.4, "N 0d24' W"},
                 {4, 4, 90 - 10 / 3600.0, "N 0d0'10\" E"},
                 {4, 4, -45, "-45d"},
                 {4, 4, 405, "405d"},
                 {1, 4, 1e18, "1e+18d"}};
    for (const auto& row : kRows) {
        TableSetIntVar(units, kUnitAngularSystem, row.system);
        TableSetIntVar(units, kUnitAngularDigits, row.digits);
        char text[64] = "";
        EXPECT_TRUE(DrawingStdAngleToText(drawing, row.degrees * kDegree, text, sizeof text, 0)) << row.text;
        EXPECT_STREQ(text, row.text);
    }
    char text[8] = "kept";
    for (int system = 0; system < 5; ++system) {
        TableSetIntVar(units, kUnitAngularSystem, system);
        for (const double value : {HUGE_VAL, -HUGE_VAL, static_cast<double>(NAN)})
            EXPECT_FALSE(DrawingStdAngleToText(drawing, value, text, sizeof text, 0));
        EXPECT_FALSE(DrawingStdAngleToText(drawing, 0.123456, text, 2, 0));
    }
    EXPECT_STREQ(text, "kept");
}

TEST_F(Angles, AreParsedBack) {
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> exponent(-10, 4), mantissa(-10, 10);
    for (int i = 0; i < 20000; ++i) {
        TableSetIntVar(units, kUnitAngularSystem, static_cast<int>(random() % 5));
        TableSetIntVar(units, kUnitAngularDigits, static_cast<int>(random() % 9));
        const double value = mantissa(random) * std::pow(10, exponent(random));
        char text[64];
        double back = 0;
        ASSERT_TRUE(DrawingStdAngleToText(drawing, value, text, sizeof text, 0)) << value;
        ASSERT_TRUE(DrawingStdTextToAngle(drawing, text, &back, 0)) << text;
        ASSERT_NEAR(back, value, std::fabs(value) * 0.00051 + (text[0] > '9' ? 0.0008 : 0)) << text;
    }
}

// --- scales

TEST_F(Lengths, OfAUnitAndTheScaleOfADrawing) {
    double value = 7;
    EXPECT_FALSE(UnitsGetLUnitValue(units, 0x1234, &value));
    EXPECT_EQ(value, 7);
    EXPECT_TRUE(UnitsGetLUnitValue(units, kUnitDrawing, &value));
    EXPECT_NEAR(value, 25.4, 1e-12);
    char text[64];
    EXPECT_TRUE(DrawingGetScaleString(drawing, text, sizeof text));
    EXPECT_STREQ(text, "1 : 1");
    EXPECT_TRUE(DrawingSetScaleString(drawing, "1/4\" = 1'"));
    EXPECT_FALSE(DrawingSetScaleString(drawing, "one to two"));
    EXPECT_FALSE(DrawingSetScaleString(drawing, nullptr));
    EXPECT_TRUE(DrawingGetScaleString(drawing, text, sizeof text));
    EXPECT_STREQ(text, "1/4\" = 1'");
}

TEST_F(Lengths, FormScales) {
    const struct {
        const char* text;
        double scale;
    } kRows[] = {{"1 : 48", 48},     {"1:48", 48},         {"2 : 1", 0.5},   {"1 in = 1 ft", 12},
                 {"1/4\" = 1'", 48}, {"1 mm = 1 m", 1000}, {"1=1", 1},       {"1 : 0", 0},
                 {"0 : 1", 0},       {"-1 : 1", 0},        {"48", 0},        {"", 0},
                 {"1 :", 0},         {": 1", 0},           {"1 : 2 : 3", 0}, {"one : two", 0},
                 {"1 : 1e999", 0},   {"1 : 2*25", 50},     {"1 : 2*", 0}};
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
