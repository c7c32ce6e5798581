// Limits of values: inclusive, checked only when saving, reported with both limits.

#include "exchange_dialog.h"

#include <functional>

#include "orlo/exchange/ddv.h"
#include "orlo/resources/resource.h"

namespace {

class Limits : public ExchangeDialog {
protected:
    using Check = std::function<int(int, CDataExchange*)>;

    void ExpectPasses(const Check& check) {
        const MessageBoxWatcher boxes;
        for (const int report : {0, 1}) {
            EXPECT_EQ(check(report, &m_load), 1);
            EXPECT_EQ(check(report, &m_save), 1);
        }
        EXPECT_TRUE(boxes.Boxes().empty());
    }
    // message: a part of the displayed text.
    void ExpectFails(const std::string& message, const Check& check) {
        SCOPED_TRACE(message);
        MessageBoxWatcher boxes;
        EXPECT_EQ(check(1, &m_load), 1) << "loading does not validate";
        EXPECT_EQ(check(0, &m_save), 0);
        EXPECT_TRUE(boxes.Boxes().empty());
        EXPECT_TRUE(Fails([&] { check(1, &m_save); }));
        ASSERT_EQ(boxes.Boxes().size(), 1u);
        EXPECT_NE(std::string::npos, boxes.Boxes()[0].text.find(message)) << boxes.Boxes()[0].text;
        EXPECT_TRUE(boxes.Boxes()[0].exclamation);
    }
};

// Binds all but the first two arguments of a check.
template <class Function, class... Values>
std::function<int(int, CDataExchange*)> Of(Function function, Values... values) {
    return [=](int report, CDataExchange* dx) { return function(report, dx, values...); };
}

TEST_F(Limits, AreInclusiveAndCheckedWhenSaving) {
    ExpectPasses(Of(DDV_MinMaxInt, -7, -7, 7));
    ExpectPasses(Of(DDV_MinMaxUInt, 3000000000u, 2u, 4000000000u)); // above the signed range
    ExpectPasses(Of(DDV_MinMaxDouble, 2.0, 0.25, 2.0));
    ExpectPasses(Of(DDV_Radians, 6.3));
    ExpectPasses(Of(DDV_FontSize, 1e-7));
    ExpectPasses(Of(DDV_PositiveValue, 1e-300));
    ExpectPasses(Of(DDV_MaxChars, CString("abc"), 3));
    ExpectFails("255", Of(DDV_MinMaxByte, 9, 10, 255));
    ExpectFails("-7", Of(DDV_MinMaxInt, -8, -7, 7));
    ExpectFails("65534", Of(DDV_MinMaxUI2, 65535, 1, 65534));
    ExpectFails("7", Of(DDV_MinMaxLong, 8L, -7L, 7L));
    ExpectFails("4000000000", Of(DDV_MinMaxUInt, 1u, 2u, 4000000000u)); // as unsigned
    ExpectFails("4000000000", Of(DDV_MinMaxDWord, 4000000001ul, 2ul, 4000000000ul));
    ExpectFails("0.25", Of(DDV_MinMaxFloat, 2.5f, 0.25f, 2.0f));
    ExpectFails("2.00000000000001", Of(DDV_MinMaxDouble, 3.0, 0.125, 2.00000000000001)); // 15 digits
    ExpectFails(Prompt(IDS_ENTER_ANGLE), Of(DDV_Radians, -1.1e38));
    ExpectFails(Prompt(IDS_ENTER_FONT_SIZE), Of(DDV_FontSize, 0.0));
    ExpectFails(Prompt(IDS_ENTER_POSITIVE), Of(DDV_PositiveValue, 0.0));
    ExpectFails("3", Of(DDV_MaxChars, CString("abcd"), 3));
}

TEST_F(Limits, AreReportedWithStringsOfTheFramework) {
    EXPECT_EQ(Prompt(IDS_ENTER_SCALE), "Please enter a valid scale (i.e., '1 in = 1 ft' or '1 : 1').");
    EXPECT_EQ(Prompt(IDS_PROPERTIES), "Properties");
}

} // namespace
