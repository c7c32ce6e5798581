// Numbers and texts in edit controls: what is read, what is refused, what is shown.

#include "exchange_dialog.h"

#include <cmath>
#include <random>

#include "orlo/exchange/ddx_text.h"

namespace {

// ---- Whole numbers

enum class Width { Byte, Int, Word, UInt };

struct WholeRow {
    const char* name;
    Width width;
    const char* typed;
    bool read;
    long long value;
};

const WholeRow kWholes[] = {
    {"BlanksAround", Width::Int, " \t12  ", true, 12},
    {"LeadingZeros", Width::Int, "007", true, 7},
    {"Zero", Width::Int, "0", true, 0},
    {"Negative", Width::Int, "-5", true, -5},
    {"BeyondTheRangeGivesTheLimit", Width::Int, "99999999999", true, 2147483647},
    {"LetterBehind", Width::Int, "12a", false, 0},
    {"TwoNumbers", Width::Int, "1 2", false, 0},
    {"Fraction", Width::Int, "1.5", false, 0},
    {"Empty", Width::Int, "", false, 0},
    {"Blanks", Width::Int, "  \t ", false, 0},
    {"LoneSign", Width::Int, "-", false, 0},
    {"SignedZero", Width::Int, "+0", false, 0},
    {"Indeterminate", Width::Int, "*****", false, 0},
    {"Text31Characters", Width::Int, "0000000000000000000000000000012", true, 12},
    {"TextBeyond31CharactersIsNotLookedAt", Width::Int, "0000000000000000000000000000012x", true, 12},
    {"LargestByte", Width::Byte, "255", true, 255},
    {"AboveAByte", Width::Byte, "256", false, 0},
    {"NegativeByteWraps", Width::Byte, "-1", true, 255},
    {"WordKeepsLowBits", Width::Word, "65537", true, 1},
    {"NegativeWordWraps", Width::Word, "-1", true, 65535},
    {"LargestUnsigned", Width::UInt, "4294967295", true, 4294967295},
    {"NegativeUnsignedWraps", Width::UInt, "-1", true, 4294967295},
};

class WholeText : public ExchangeDialog, public ::testing::WithParamInterface<WholeRow> {
protected:
    template <class Whole>
    void Check(UINT prompt) {
        const WholeRow& row = GetParam();
        SetText(IDC_EDIT, row.typed);
        Whole value = 77;
        EXPECT_EQ(row.read, DDX_Text(0, &m_save, IDC_EDIT, value));
        EXPECT_EQ(row.read ? static_cast<Whole>(row.value) : Whole{77}, value);
        if (row.read) return;
        MessageBoxWatcher boxes;
        EXPECT_TRUE(Refused([&] { DDX_Text(1, &m_save, IDC_EDIT, value); }));
        EXPECT_EQ(Whole{77}, value);
        CString expected;
        expected.LoadString(prompt);
        EXPECT_EQ(std::string(expected), boxes.OnlyText());
    }
};

TEST_P(WholeText, IsReadOrRefused) {
    switch (GetParam().width) {
    case Width::Byte:
        Check<unsigned char>(AFX_IDP_PARSE_BYTE);
        break;
    case Width::Int:
        Check<int>(AFX_IDP_PARSE_INT);
        Check<long>(AFX_IDP_PARSE_INT);
        break;
    case Width::Word:
        Check<unsigned short>(AFX_IDP_PARSE_UINT);
        break;
    case Width::UInt:
        Check<unsigned int>(AFX_IDP_PARSE_UINT);
        Check<unsigned long>(AFX_IDP_PARSE_UINT);
        break;
    }
}

INSTANTIATE_TEST_SUITE_P(Typed, WholeText, ::testing::ValuesIn(kWholes),
                         [](const auto& row) { return std::string(row.param.name); });

class TextExchange : public ExchangeDialog {
protected:
    template <class Value>
    std::string Shown(Value value) {
        EXPECT_EQ(1, DDX_Text(1, &m_load, IDC_EDIT, value));
        return Text(IDC_EDIT);
    }
};

TEST_F(TextExchange, WholeNumbersAreShownInTheirRange) {
    EXPECT_EQ("255", Shown<unsigned char>(255));
    EXPECT_EQ("65535", Shown<unsigned short>(65535));
    EXPECT_EQ("-2147483648", Shown<int>(-2147483647 - 1));
    EXPECT_EQ("-1", Shown<long>(-1));
    EXPECT_EQ("4294967295", Shown<unsigned int>(4294967295u));
    EXPECT_EQ("4294967295", Shown<unsigned long>(4294967295u));
}

TEST_F(TextExchange, AFailureReturnsToTheFieldWithItsTextSelected) {
    m_dialog.ShowWindow(SW_SHOW);
    ::SetFocus(Control(IDC_LIST));
    SetText(IDC_EDIT, "twelve");
    MessageBoxWatcher boxes;
    int value = 0;
    EXPECT_TRUE(Refused([&] { DDX_Text(1, &m_save, IDC_EDIT, value); }));
    EXPECT_EQ(Control(IDC_EDIT), ::GetFocus());
    EXPECT_EQ(MAKELRESULT(0, 6), Send(IDC_EDIT, EM_GETSEL));
}

TEST_F(TextExchange, ALongTextGoesThroughWhole) {
    const std::string text(10000, 'x');
    SetText(IDC_EDIT, text.c_str());
    CString value;
    EXPECT_EQ(1, DDX_Text(1, &m_save, IDC_EDIT, value));
    EXPECT_EQ(text, std::string(value));
    SetText(IDC_EDIT, "");
    EXPECT_EQ(1, DDX_Text(1, &m_load, IDC_EDIT, value));
    EXPECT_EQ(text, Text(IDC_EDIT));
}

// ---- Real numbers

struct RealRow {
    const char* name;
    const char* typed;
    bool read;
    float value;
};

const RealRow kReals[] = {
    {"Plain", "2.5", true, 2.5f},
    {"BlanksAround", "  -3.25\t", true, -3.25f},
    {"Zero", "0", true, 0.0f},
    {"ZeroWithFraction", "0.000", true, 0.0f},
    {"Exponent", "1e5", true, 1e5f},
    {"NotWrittenAsAZero", ".0", false, 0},
    {"Empty", "", false, 0},
    {"Blanks", "   ", false, 0},
    {"Word", "wide", false, 0},
    {"UnitBehind", "2.5 mm", false, 0},
    {"TwoPoints", "1.2.3", false, 0},
    {"BeyondAFloat", "1e39", false, 0},
    {"BeyondADouble", "1e999", false, 0},
    {"MarkerAndMore", "******", false, 0},
};

class RealText : public ExchangeDialog, public ::testing::WithParamInterface<RealRow> {};

TEST_P(RealText, IsReadOrRefused) {
    const RealRow& row = GetParam();
    SetText(IDC_EDIT, row.typed);
    float single = 77.0f;
    double value = 77.0;
    EXPECT_EQ(row.read, DDX_Text(0, &m_save, IDC_EDIT, single));
    EXPECT_EQ(row.read, DDX_Text(0, &m_save, IDC_EDIT, value));
    EXPECT_EQ(row.read ? row.value : 77.0f, single);
    // A double that cannot be read in silence becomes 0.
    EXPECT_EQ(row.read ? row.value : 0.0, value);
    if (row.read) return;

    MessageBoxWatcher boxes;
    value = 77.0;
    EXPECT_TRUE(Refused([&] { DDX_Text(1, &m_save, IDC_EDIT, value); }));
    EXPECT_EQ(77.0, value);
    CString expected;
    expected.LoadString(AFX_IDP_PARSE_REAL);
    EXPECT_EQ(std::string(expected), boxes.OnlyText());
}

INSTANTIATE_TEST_SUITE_P(Typed, RealText, ::testing::ValuesIn(kReals),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(TextExchange, VeryLargeAndVerySmallNumbersAreShownWithAnExponent) {
    const auto hasExponent = [this](double value) {
        return Shown(value).find_first_of("eE") != std::string::npos;
    };
    EXPECT_TRUE(hasExponent(0.000001));
    EXPECT_TRUE(hasExponent(-0.000001));
    EXPECT_FALSE(hasExponent(0.0));
    EXPECT_FALSE(hasExponent(100000.0));
    EXPECT_TRUE(hasExponent(100000.5));
}

TEST_F(TextExchange, SixDigitsAreShownAndTheNearestFloatIsSaved) {
    double value = 1.23456789;
    EXPECT_EQ("1.23457", Shown(value));
    EXPECT_EQ(1, DDX_Text(1, &m_save, IDC_EDIT, value));
    EXPECT_EQ(static_cast<double>(1.23457f), value);
}

// What is shown reads back to the same value within the shown digits, and is then shown alike.
TEST_F(TextExchange, ShownNumbersReadBack) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0), exponent(-30.0, 30.0);
    for (int i = 0; i < 300; ++i) {
        const double value = mantissa(random) * std::pow(10.0, std::floor(exponent(random)));
        const std::string shown = Shown(value);
        double back = 0.0;
        ASSERT_EQ(1, DDX_Text(0, &m_save, IDC_EDIT, back)) << shown;
        ASSERT_NEAR(value, back, std::fabs(value) * 6e-6) << shown;
        ASSERT_EQ(shown, Shown(back));
    }
}

TEST_F(TextExchange, TheIndeterminateMarkerSurvivesAnUntouchedField) {
    double value = HUGE_VAL;
    EXPECT_EQ("*****", Shown(value));
    for (const int bReport : {0, 1}) {
        value = HUGE_VAL;
        EXPECT_EQ(0, DDX_Text(bReport, &m_save, IDC_EDIT, value)) << "nothing was read";
        EXPECT_EQ(HUGE_VAL, value);
    }
    value = 3.0;
    DDX_Text(0, &m_save, IDC_EDIT, value);
    EXPECT_EQ(3.0, value);
}

// ---- Blank fields

TEST_F(TextExchange, ABlankFieldIsZero) {
    SetText(IDC_EDIT, " \t ");
    double real = 5.0;
    unsigned int whole = 5;
    EXPECT_EQ(1, DDX_TextBlank(1, &m_save, IDC_EDIT, real));
    EXPECT_EQ(1, DDX_TextBlank(1, &m_save, IDC_EDIT, whole));
    EXPECT_EQ(0.0, real);
    EXPECT_EQ(0u, whole);

    SetText(IDC_EDIT, "4");
    DDX_TextBlank(1, &m_save, IDC_EDIT, real);
    DDX_TextBlank(1, &m_save, IDC_EDIT, whole);
    EXPECT_EQ(4.0, real);
    EXPECT_EQ(4u, whole);

    SetText(IDC_EDIT, "none");
    EXPECT_EQ(0, DDX_TextBlank(0, &m_save, IDC_EDIT, whole));
    EXPECT_EQ(4u, whole);
}

TEST_F(TextExchange, ADisabledFieldIsShownEmpty) {
    double real = 5.0;
    unsigned int whole = 5;
    SetText(IDC_DISABLED_EDIT, "old");
    EXPECT_EQ(1, DDX_TextBlank(1, &m_load, IDC_DISABLED_EDIT, real));
    EXPECT_EQ("", Text(IDC_DISABLED_EDIT));
    SetText(IDC_DISABLED_EDIT, "old");
    EXPECT_EQ(1, DDX_TextBlank(1, &m_load, IDC_DISABLED_EDIT, whole));
    EXPECT_EQ("", Text(IDC_DISABLED_EDIT));
    EXPECT_EQ(1, DDX_TextBlank(1, &m_load, IDC_EDIT, whole));
    EXPECT_EQ("5", Text(IDC_EDIT));
}

} // namespace
