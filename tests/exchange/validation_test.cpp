// Limits of values: inclusive, checked when saving only, told to the user with both limits.

#include "exchange_dialog.h"

#include <functional>

#include "orlo/entry/entry.h"
#include "orlo/exchange/ddv.h"
#include "orlo/resources/resource.h"

namespace {

struct LimitRow {
    const char* name;
    std::function<int(int, CDataExchange*)> check;
    bool passes;
    std::string says; // of one that does not pass: what the message contains
};

template <class Value, class Function>
LimitRow Row(const char* name, Function function, Value value, Value min, Value max, bool passes,
             const char* says = "") {
    return {name, [=](int report, CDataExchange* dx) { return function(report, dx, value, min, max); },
            passes, says};
}

template <class Function>
LimitRow Fixed(const char* name, Function function, double value, bool passes, UINT prompt = 0) {
    CString says;
    if (prompt) says.LoadString(prompt);
    return {name, [=](int report, CDataExchange* dx) { return function(report, dx, value); }, passes,
            std::string(says)};
}

std::vector<LimitRow> Limits() {
    PropPageInit(); // the library's strings are found from now on
    return {
        Row<unsigned char>("Byte", DDV_MinMaxByte, 9, 10, 255, false, "255"),
        Row<int>("IntBelow", DDV_MinMaxInt, -8, -7, 7, false, "-7"),
        Row<int>("IntAtLimit", DDV_MinMaxInt, -7, -7, 7, true),
        Row<unsigned short>("Word", DDV_MinMaxUI2, 65535, 1, 65534, false, "65534"),
        Row<long>("Long", DDV_MinMaxLong, 8, -7, 7, false, "7"),
        Row<unsigned int>("UIntIsUnsigned", DDV_MinMaxUInt, 1, 2, 4000000000u, false, "4000000000"),
        Row<unsigned int>("UIntAboveSignedRange", DDV_MinMaxUInt, 3000000000u, 2, 4000000000u, true),
        Row<unsigned long>("DWord", DDV_MinMaxDWord, 4000000001u, 2, 4000000000u, false, "4000000000"),
        Row<float>("Float", DDV_MinMaxFloat, 2.5f, 0.25f, 2.0f, false, "0.25"),
        Row<double>("DoubleAtLimit", DDV_MinMaxDouble, 2.0, 0.25, 2.0, true),
        Row<double>("DoubleShows15Digits", DDV_MinMaxDouble, 3.0, 0.125, 2.00000000000001, false,
                    "2.00000000000001"),
        Fixed("Angle", DDV_Radians, 6.3, true),
        Fixed("NoAngle", DDV_Radians, -1.1e38, false, IDS_ENTER_ANGLE),
        Fixed("NoFontSize", DDV_FontSize, 0.0, false, IDS_ENTER_FONT_SIZE),
        Fixed("SmallestFontSize", DDV_FontSize, 1e-7, true),
        Fixed("NotPositive", DDV_PositiveValue, 0.0, false, IDS_ENTER_POSITIVE),
        Fixed("Positive", DDV_PositiveValue, 1e-300, true),
        {"TextThatFits", [](int r, CDataExchange* dx) { return DDV_MaxChars(r, dx, CString("abc"), 3); },
         true, ""},
        {"LongText", [](int r, CDataExchange* dx) { return DDV_MaxChars(r, dx, CString("abcd"), 3); }, false,
         "3"},
    };
}

class LimitTest : public ExchangeDialog, public ::testing::WithParamInterface<LimitRow> {};

TEST_P(LimitTest, IsCheckedWhenSaving) {
    const LimitRow& row = GetParam();
    MessageBoxWatcher boxes;
    EXPECT_EQ(1, row.check(1, &m_load)) << "loading checks nothing";
    EXPECT_EQ(row.passes, row.check(0, &m_save));
    EXPECT_TRUE(boxes.Boxes().empty()) << boxes.OnlyText();

    EXPECT_EQ(!row.passes, Refused([&] { row.check(1, &m_save); }));
    if (row.passes) return;
    ASSERT_EQ(1u, boxes.Boxes().size());
    EXPECT_NE(std::string::npos, boxes.Boxes()[0].text.find(row.says)) << boxes.Boxes()[0].text;
    EXPECT_TRUE(boxes.Boxes()[0].exclamation);
}

INSTANTIATE_TEST_SUITE_P(Values, LimitTest, ::testing::ValuesIn(Limits()),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(LibraryStrings, AreFoundByTheFramework) {
    PropPageInit();
    CString text;
    EXPECT_TRUE(text.LoadString(IDS_ENTER_SCALE));
    EXPECT_EQ("Please enter a valid scale (i.e., '1 in = 1 ft' or '1 : 1').", std::string(text));
    EXPECT_TRUE(text.LoadString(IDS_PROPERTIES));
    EXPECT_EQ("Properties", std::string(text));
}

} // namespace
