// Controls of table variables: display, writing, and failures that leave the table unchanged.

#include "exchange_dialog.h"

#include "orlo/exchange/ddx_button.h"
#include "orlo/exchange/ddx_variable.h"
#include "orlo/resources/resource.h"
#include "support/test_drawing.h"

namespace {

constexpr uint16_t kVariable = 0x6001;
constexpr unsigned long kLong = 0x12340000ul | kVariable; // only the low half is used

class VariableExchange : public ExchangeDialog {
protected:
    VariableExchange() : m_table(m_drawing.Get()->pUnits) {}

    double Real() const {
        double value = -99.0;
        TableGetNumericVar(m_table, kVariable, &value);
        return value;
    }
    long Whole() const {
        long value = -99;
        TableGetIntVar(m_table, kVariable, &value);
        return value;
    }
    int Checked() const {
        for (const int id : {IDC_RADIO_FIRST, IDC_RADIO_SECOND, IDC_RADIO_THIRD})
            if (::SendMessageA(Control(id), BM_GETCHECK, 0, 0)) return id;
        return 0;
    }
    void Check(int id) {
        for (const int button : {IDC_RADIO_FIRST, IDC_RADIO_SECOND, IDC_RADIO_THIRD})
            Send(button, BM_SETCHECK, button == id);
    }

    TestDrawing m_drawing;
    TableStruct* m_table;
};

TEST_F(VariableExchange, NumbersAreCheckedAndWritten) {
    EXPECT_EQ(DDX_TextVarNumeric(1, &m_load, IDC_EDIT, m_table, kLong, 1, 5), 1);
    EXPECT_EQ(Text(IDC_EDIT), "0") << "no such variable";
    const struct {
        const char* typed;
        double min, max;
        int saved;
        double real; // the value stored then
    } rows[] = {{"2.5", 1, 5, 1, 2.5}, {"6", 1, 5, 0, 2.5}, {"6", 0, 0, 1, 6.0}, {"six", 5, 1, 0, 6.0}};
    for (const auto& row : rows) {
        SetText(IDC_EDIT, row.typed);
        EXPECT_EQ(row.saved, DDX_TextVarNumeric(0, &m_save, IDC_EDIT, m_table, kLong, row.min, row.max));
        EXPECT_EQ(row.real, Real()) << row.typed;
    }
    MessageBoxWatcher boxes;
    EXPECT_TRUE(Fails([&] { DDX_TextVarNumeric(1, &m_save, IDC_EDIT, m_table, kLong, 1, 5); }));
    EXPECT_EQ(boxes.Boxes().size(), 1u);
    EXPECT_EQ(DDX_TextVarNumeric(0, &m_load, IDC_EDIT, m_table, kLong, 1, 5), 1);
    EXPECT_EQ(Text(IDC_EDIT), "6");

    SetText(IDC_EDIT, "-12");
    EXPECT_EQ(DDX_TextVarInt(0, &m_save, IDC_EDIT, m_table, kLong, 0, 100), 0);
    EXPECT_EQ(Whole(), -99) << "not an integer";
    EXPECT_EQ(DDX_TextVarInt(0, &m_save, IDC_EDIT, m_table, kLong, 100, 0), 1) << "without limits";
    EXPECT_EQ(Whole(), -12);
    SetText(IDC_EDIT, "1.5");
    EXPECT_EQ(DDX_TextVarInt(0, &m_save, IDC_EDIT, m_table, kLong, 0, 0), 0);
    EXPECT_EQ(DDX_TextVarInt(0, &m_load, IDC_EDIT, m_table, kLong, 0, 0), 1);
    EXPECT_EQ(Text(IDC_EDIT), "-12");
}

TEST_F(VariableExchange, TextsKeepTheirLength) {
    const std::string text(300, 'x');
    TableSetStringVar(m_table, kVariable, text.c_str());
    EXPECT_EQ(DDX_TextVarString(1, &m_load, IDC_EDIT, m_table, kLong), 1);
    EXPECT_EQ(text.substr(0, 127), Text(IDC_EDIT));
    EXPECT_EQ(DDX_CBVarString(1, &m_load, IDC_COMBO, m_table, kLong), 1);
    EXPECT_EQ(text.substr(0, 255), Text(IDC_COMBO));
    SetText(IDC_EDIT, "short");
    EXPECT_EQ(DDX_TextVarString(1, &m_save, IDC_EDIT, m_table, kLong), 1);
    EXPECT_EQ(DDX_CBVarString(1, &m_load, IDC_COMBO, m_table, kLong), 1);
    EXPECT_EQ(Text(IDC_COMBO), "short");
    SetText(IDC_COMBO, "other");
    EXPECT_EQ(DDX_CBVarString(1, &m_save, IDC_COMBO, m_table, kLong), 1);
    EXPECT_EQ(DDX_TextVarString(1, &m_load, IDC_EDIT, m_table, kLong), 1);
    EXPECT_EQ(Text(IDC_EDIT), "other");
}

TEST_F(VariableExchange, DeviceInchesAreConvertedToMillimeters) {
    TableStruct* const units = m_drawing.Get()->pUnits;
    const auto exchange = [&](int bReport, CDataExchange& dx, double min, double max) {
        return DDX_TextVarDeviceInches(bReport, &dx, IDC_EDIT, units, m_table, kVariable, min, max,
                                       AFX_IDP_PARSE_REAL_RANGE);
    };
    EXPECT_EQ(exchange(1, m_load, 0, 0), 1);
    EXPECT_EQ(Text(IDC_EDIT), "0.635 mm") << "no such variable";
    SetText(IDC_EDIT, "1 in");
    EXPECT_EQ(exchange(1, m_save, 0, 2), 1);
    EXPECT_NEAR(1.0, Real(), 1e-12);
    EXPECT_EQ(exchange(0, m_save, 0, Real()), 1) << "the limits are inclusive";
    EXPECT_EQ(exchange(0, m_save, Real(), 2), 1);
    SetText(IDC_EDIT, "3 in");
    EXPECT_EQ(exchange(0, m_save, 0, 2), 0);
    {
        MessageBoxWatcher boxes;
        EXPECT_TRUE(Fails([&] { exchange(1, m_save, 0, 2); }));
        SetText(IDC_EDIT, "thick");
        EXPECT_TRUE(Fails([&] { exchange(1, m_save, 0, 2); }));
        ASSERT_EQ(boxes.Boxes().size(), 2u);
        EXPECT_EQ(boxes.Boxes()[0].text, boxes.Boxes()[1].text) << "the limits, also for invalid text";
    }
    {
        MessageBoxWatcher boxes;
        EXPECT_TRUE(Fails([&] { exchange(1, m_save, 2, 0); }));
        EXPECT_EQ(Prompt(AFX_IDP_PARSE_REAL), boxes.OnlyText()) << "without limits";
    }
    EXPECT_EQ(exchange(0, m_save, 0, 2), 0);
    EXPECT_NEAR(1.0, Real(), 1e-12);
    EXPECT_EQ(exchange(0, m_load, 0, 2), 1);
    EXPECT_EQ(Text(IDC_EDIT), "25.4 mm");
    EXPECT_EQ(DDX_TextVarDeviceInches(0, &m_load, IDC_EDIT, nullptr, m_table, kVariable, 0, 0, 0), 0);
}

TEST_F(VariableExchange, BoxesAndButtonsExchangeIntegers) {
    TableSetIntVar(m_table, kVariable, 2);
    DDX_CheckVarInt(1, &m_load, IDC_THREE_STATE, m_table, kLong);
    EXPECT_EQ(Send(IDC_THREE_STATE, BM_GETCHECK), 2);
    Send(IDC_THREE_STATE, BM_SETCHECK, 1);
    DDX_CheckVarInt(1, &m_save, IDC_THREE_STATE, m_table, kLong);
    EXPECT_EQ(Whole(), 1);
    DDX_RadioVarInt(1, &m_load, IDC_RADIO_FIRST, m_table, kLong);
    EXPECT_EQ(Checked(), IDC_RADIO_SECOND);
    Check(0);
    DDX_RadioVarInt(1, &m_save, IDC_RADIO_FIRST, m_table, kLong);
    EXPECT_EQ(Whole(), -1);
    Check(IDC_RADIO_THIRD);
    DDX_RadioVarInt(1, &m_load, IDC_RADIO_FIRST, m_table, kVariable + 1);
    EXPECT_EQ(Checked(), 0) << "no such variable";
}

TEST_F(VariableExchange, MapDefinesTheButtonsValues) {
    int map[] = {-1, 1, 0, 1};
    const struct {
        int value, button, saved;
    } kRows[] = {{0, IDC_RADIO_SECOND, 0}, {1, IDC_RADIO_THIRD, 1}, {5, 0, -1}, {-1, 0, -1}};
    for (const auto& row : kRows) {
        int value = row.value;
        EXPECT_EQ(DDX_RadioMap(1, &m_load, IDC_RADIO_FIRST, value, map, 4), 1);
        EXPECT_EQ(row.button, Checked()) << row.value;
        EXPECT_EQ(DDX_RadioMap(1, &m_save, IDC_RADIO_FIRST, value, map, 4), 1);
        EXPECT_EQ(row.saved, value);

        long longMap[] = {-1, 1, 0, 1};
        TableSetIntVar(m_table, kVariable, row.value);
        EXPECT_EQ(DDX_RadioVarIntMap(1, &m_load, IDC_RADIO_FIRST, m_table, kLong, longMap, 4), 1);
        EXPECT_EQ(row.button, Checked()) << row.value;
        EXPECT_EQ(DDX_RadioVarIntMap(1, &m_save, IDC_RADIO_FIRST, m_table, kLong, longMap, 4), 1);
        EXPECT_EQ(row.saved, Whole());
    }
    Check(IDC_RADIO_THIRD);
    int value = 7;
    EXPECT_EQ(DDX_RadioMap(0, &m_save, IDC_RADIO_FIRST, value, map, 3), 0) << "the map has two buttons";
    EXPECT_TRUE(Fails([&] { DDX_RadioMap(1, &m_save, IDC_RADIO_FIRST, value, map, 3); }));
    EXPECT_EQ(value, 7);
}

TEST_F(VariableExchange, IndexHasABaseAndLimits) {
    for (const char* item : {"one", "two", "three", "four", "five", "six"})
        Send(IDC_DROP_LIST, CB_ADDSTRING, 0, item);
    const struct { int selected, stored; } kRows[] = {{0, 1}, {1, 2}, {2, 3}, {3, 2}, {5, 2}, {-1, 2}};
    for (const auto& row : kRows) {
        Send(IDC_DROP_LIST, CB_SETCURSEL, static_cast<WPARAM>(row.selected));
        EXPECT_EQ(DDX_CBVarIndex(1, &m_save, IDC_DROP_LIST, m_table, kLong, 1, 3, 2), 1);
        EXPECT_EQ(row.stored, Whole()) << row.selected;
        EXPECT_EQ(DDX_CBVarIndex(1, &m_load, IDC_DROP_LIST, m_table, kLong, 1, 3, 2), 1);
        EXPECT_EQ(row.stored - 1, Send(IDC_DROP_LIST, CB_GETCURSEL));
    }
    TableSetIntVar(m_table, kVariable, 50);
    DDX_CBVarIndex(1, &m_load, IDC_DROP_LIST, m_table, kLong, 1, 3, 2);
    EXPECT_EQ(Send(IDC_DROP_LIST, CB_GETCURSEL), CB_ERR);
}

TEST_F(VariableExchange, TheScaleIsThatOfTheDrawing) {
    DrawingSetScaleString(m_drawing.Get(), "1 : 48");
    EXPECT_EQ(DDX_CBVarScale(1, &m_load, IDC_COMBO, m_drawing.Get()), 1);
    EXPECT_EQ(Text(IDC_COMBO), "1 : 48");
    SetText(IDC_COMBO, "1 : 20");
    EXPECT_EQ(DDX_CBVarScale(1, &m_save, IDC_COMBO, m_drawing.Get()), 1);
    SetText(IDC_COMBO, "large");
    EXPECT_EQ(DDX_CBVarScale(0, &m_save, IDC_COMBO, m_drawing.Get()), 1);
    char text[64] = "";
    DrawingGetScaleString(m_drawing.Get(), text, sizeof text);
    EXPECT_STREQ(text, "1 : 20");
}

} // namespace
