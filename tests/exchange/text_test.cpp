// Numbers and texts in edit controls: parsing, rejection, display.

#include "exchange_dialog.h"

#include <cmath>
#include <random>

#include "orlo/exchange/ddx_text.h"

namespace {

class TextExchange : public ExchangeDialog {
protected:
    template <class Value>
    std::string Shown(Value value) {
        EXPECT_EQ(DDX_Text(1, &m_load, IDC_EDIT, value), 1);
        return Text(IDC_EDIT);
    }
    template <class Value>
    void ExpectRead(std::initializer_list<std::pair<const char*, Value>> rows) {
        for (const auto& [typed, expected] : rows) {
            SetText(IDC_EDIT, typed);
            Value value = 77;
            EXPECT_EQ(DDX_Text(0, &m_save, IDC_EDIT, value), 1) << typed;
            EXPECT_EQ(expected, value) << typed;
        }
    }
    // A silent exchange sets the variable to `left`; otherwise it is unchanged and the user sees the message.
    template <class Value>
    void ExpectRejected(UINT prompt, std::initializer_list<const char*> rows, Value left = 77) {
        for (const char* typed : rows) {
            SCOPED_TRACE(typed);
            SetText(IDC_EDIT, typed);
            Value value = 77;
            EXPECT_EQ(DDX_Text(0, &m_save, IDC_EDIT, value), 0);
            EXPECT_EQ(left, value);
            value = 77;
            MessageBoxWatcher boxes;
            EXPECT_TRUE(Fails([&] { DDX_Text(1, &m_save, IDC_EDIT, value); }));
            EXPECT_EQ(Value{77}, value);
            EXPECT_EQ(Prompt(prompt), boxes.OnlyText());
        }
    }
};

// ---- Integers

TEST_F(TextExchange, IntegersAreParsedOrRejected) {
    ExpectRead<int>({{" \t12  ", 12},
                     {"007", 7},
                     {"0", 0},
                     {"-5", -5},
                     {"99999999999", 2147483647}, // the limit
                     {"000000000000000000000000000000000000000012", 12},
                     {"                              12345", 12345}});
    ExpectRead<long>({{"-5", -5}});
    ExpectRead<unsigned char>({{"255", 255}, {"-1", 255}});
    ExpectRead<unsigned short>({{"65537", 1}, {"-1", 65535}}); // the low 16 bits
    ExpectRead<unsigned int>({{"4294967295", 4294967295u}, {"-1", 4294967295u}});
    ExpectRead<unsigned long>({{"4294967295", 4294967295u}, {"-1", 4294967295u}});
    ExpectRejected<int>(AFX_IDP_PARSE_INT,
                        {"12a", "1 2", "1.5", "", "  \t ", "-", "+0", "*****", "0000000000000000000000000000012x"});
    ExpectRejected<long>(AFX_IDP_PARSE_INT, {"12a"});
    ExpectRejected<unsigned char>(AFX_IDP_PARSE_BYTE, {"256", "x"});
    ExpectRejected<unsigned short>(AFX_IDP_PARSE_UINT, {"x"});
    ExpectRejected<unsigned int>(AFX_IDP_PARSE_UINT, {"x"});
    ExpectRejected<unsigned long>(AFX_IDP_PARSE_UINT, {"x"});
}

TEST_F(TextExchange, IntegersAreShownInTheirRange) {
    EXPECT_EQ(Shown<unsigned char>(255), "255");
    EXPECT_EQ(Shown<unsigned short>(65535), "65535");
    EXPECT_EQ(Shown<int>(-2147483647 - 1), "-2147483648");
    EXPECT_EQ(Shown<long>(-1), "-1");
    EXPECT_EQ(Shown<unsigned int>(4294967295u), "4294967295");
    EXPECT_EQ(Shown<unsigned long>(4294967295u), "4294967295");
}

TEST_F(TextExchange, FailureSelectsTheTextOfTheField) {
    m_dialog.ShowWindow(SW_SHOW);
    ::SetFocus(Control(IDC_LIST));
    SetText(IDC_EDIT, "twelve");
    MessageBoxWatcher boxes;
    int value = 0;
    EXPECT_TRUE(Fails([&] { DDX_Text(1, &m_save, IDC_EDIT, value); }));
    EXPECT_EQ(Control(IDC_EDIT), ::GetFocus());
    EXPECT_EQ(MAKELRESULT(0, 6), Send(IDC_EDIT, EM_GETSEL));
}

TEST_F(TextExchange, LongTextIsNotTruncated) {
    const std::string text(10000, 'x');
    SetText(IDC_EDIT, text.c_str());
    CString value;
    EXPECT_EQ(DDX_Text(1, &m_save, IDC_EDIT, value), 1);
    EXPECT_EQ(text, std::string(value));
    SetText(IDC_EDIT, "");
    EXPECT_EQ(DDX_Text(1, &m_load, IDC_EDIT, value), 1);
    EXPECT_EQ(text, Text(IDC_EDIT));
}

// ---- Real numbers

TEST_F(TextExchange, RealNumbersAreParsedOrRejected) {
    ExpectRead<float>({{"2.5", 2.5f}, {"  -3.25\t", -3.25f}, {"0", 0.0f}, {"0.000", 0.0f}, {"1e5", 1e5f}});
    ExpectRead<double>({{"2.5", 2.5},
                        {"0", 0.0},
                        {"1e5", 1e5},
                        {"                              12345", 12345},
                        {"1234.5+1234.5+1234.5+1234.5+1234.5", 6172.5}});
    for (const char* zero : {"-0", ".0", "+0", "1-1", "5*0", "(0)", "-0.0e5"}) // in any form
        ExpectRead<double>({{zero, 0.0}});
    const std::string tooLong(1000, '1');
    const auto rejected = {"",      "   ",  "-",     ".",      "()", "wide",         "2.5 mm",
                           "1.2.3", "1e39", "1e999", "******", "1-", tooLong.c_str()};
    ExpectRejected<float>(AFX_IDP_PARSE_REAL, rejected);
    ExpectRejected<double>(AFX_IDP_PARSE_REAL, rejected, 0.0); // a silent failure sets 0
}

TEST_F(TextExchange, VeryLargeAndVerySmallNumbersAreShownWithAnExponent) {
    const auto hasExponent = [this](double value) { return Shown(value).find_first_of("eE") != std::string::npos; };
    EXPECT_TRUE(hasExponent(0.000001));
    EXPECT_TRUE(hasExponent(-0.000001));
    EXPECT_FALSE(hasExponent(0.0));
    EXPECT_FALSE(hasExponent(100000.0));
    EXPECT_TRUE(hasExponent(100000.5));
}

TEST_F(TextExchange, SixDigitsAreShownAndTheNearestFloatIsSaved) {
    double value = 1.23456789;
    EXPECT_EQ(Shown(value), "1.23457");
    EXPECT_EQ(DDX_Text(1, &m_save, IDC_EDIT, value), 1);
    EXPECT_EQ(static_cast<double>(1.23457f), value);
}

// A displayed number is parsed back within the digits shown, and then displayed the same.
TEST_F(TextExchange, ShownNumbersAreReadBack) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0), exponent(-30.0, 30.0);
    for (int i = 0; i < 300; ++i) {
        const double value = mantissa(random) * std::pow(10.0, std::floor(exponent(random)));
        const std::string shown = Shown(value);
        double back = 0.0;
        ASSERT_EQ(DDX_Text(0, &m_save, IDC_EDIT, back), 1) << shown;
        ASSERT_NEAR(value, back, std::fabs(value) * 6e-6) << shown;
        ASSERT_EQ(shown, Shown(back));
    }
}

TEST_F(TextExchange, IndeterminateMarkerSurvivesAnUneditedField) {
    double value = HUGE_VAL;
    EXPECT_EQ(Shown(value), "*****");
    for (const int bReport : {0, 1}) {
        value = HUGE_VAL;
        EXPECT_EQ(DDX_Text(bReport, &m_save, IDC_EDIT, value), 0) << "nothing was read";
        EXPECT_EQ(value, HUGE_VAL);
    }
    value = 3.0;
    DDX_Text(0, &m_save, IDC_EDIT, value);
    EXPECT_EQ(value, 3.0);
}

// ---- Blank fields

TEST_F(TextExchange, BlankFieldIsZero) {
    SetText(IDC_EDIT, " \t ");
    double real = 5.0;
    unsigned int whole = 5;
    EXPECT_EQ(DDX_TextBlank(1, &m_save, IDC_EDIT, real), 1);
    EXPECT_EQ(DDX_TextBlank(1, &m_save, IDC_EDIT, whole), 1);
    EXPECT_EQ(real, 0.0);
    EXPECT_EQ(whole, 0u);

    SetText(IDC_EDIT, (std::string(70, ' ') + "4").c_str());
    DDX_TextBlank(1, &m_save, IDC_EDIT, real);
    DDX_TextBlank(1, &m_save, IDC_EDIT, whole);
    EXPECT_EQ(real, 4.0);
    EXPECT_EQ(whole, 4u);

    SetText(IDC_EDIT, "none");
    EXPECT_EQ(DDX_TextBlank(0, &m_save, IDC_EDIT, whole), 0);
    EXPECT_EQ(whole, 4u);
}

TEST_F(TextExchange, DisabledFieldIsShownEmpty) {
    double real = 5.0;
    unsigned int whole = 5;
    SetText(IDC_DISABLED_EDIT, "old");
    EXPECT_EQ(DDX_TextBlank(1, &m_load, IDC_DISABLED_EDIT, real), 1);
    EXPECT_EQ(Text(IDC_DISABLED_EDIT), "");
    SetText(IDC_DISABLED_EDIT, "old");
    EXPECT_EQ(DDX_TextBlank(1, &m_load, IDC_DISABLED_EDIT, whole), 1);
    EXPECT_EQ(Text(IDC_DISABLED_EDIT), "");
    EXPECT_EQ(DDX_TextBlank(1, &m_load, IDC_EDIT, whole), 1);
    EXPECT_EQ(Text(IDC_EDIT), "5");
}

} // namespace
