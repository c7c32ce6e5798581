// The scale combo: finds a scale by its value, and adds one that is not in the list.

#include "exchange_dialog.h"

#include "orlo/exchange/ddx_scale.h"
#include "orlo/resources/resource.h"
#include "support/test_drawing.h"

namespace {

class ScaleExchange : public ExchangeDialog {
protected:
    ScaleExchange() : m_units(m_drawing.Get()->pUnits) {}

    void Fill(std::initializer_list<const char*> scales) {
        for (const char* scale : scales)
            Send(IDC_COMBO, CB_ADDSTRING, 0, scale);
    }
    int Selected() { return static_cast<int>(Send(IDC_COMBO, CB_GETCURSEL)); }
    int Count() { return static_cast<int>(Send(IDC_COMBO, CB_GETCOUNT)); }

    TestDrawing m_drawing;
    TableStruct* m_units;
};

TEST_F(ScaleExchange, AScaleInNoListIsInsertedInFallingOrder) {
    const double big = UnitsGetScaleValue(m_units, "1 : 2"), middle = UnitsGetScaleValue(m_units, "1 : 50"),
                 small = UnitsGetScaleValue(m_units, "1 : 100");
    ASSERT_NE(0.0, middle);
    if (big > small)
        Fill({"1 : 2", "1 : 100"});
    else
        Fill({"1 : 100", "1 : 2"});

    CString text;
    double scale = middle;
    EXPECT_EQ(1, DDX_CBScale(1, &m_load, IDC_COMBO, text, m_units, &scale));
    EXPECT_EQ(3, Count());
    EXPECT_EQ(1, Selected());
    EXPECT_EQ(std::string(text), ComboItem(IDC_COMBO, 1));
    EXPECT_DOUBLE_EQ(middle, UnitsGetScaleValue(m_units, text));

    text = "1 : 50";
    DDX_CBScale(1, &m_load, IDC_COMBO, text, m_units, &scale);
    EXPECT_EQ(3, Count()) << "once";
}

TEST_F(ScaleExchange, ATypedScaleTakesOverTheTextOfAnEqualItem) {
    Fill({"1 : 1"});
    SetText(IDC_COMBO, "2 : 2");
    CString text;
    double scale = 0.0;
    EXPECT_EQ(1, DDX_CBScale(1, &m_save, IDC_COMBO, text, m_units, &scale));
    EXPECT_EQ("1 : 1", std::string(text));
    EXPECT_EQ(0, Selected());
    EXPECT_EQ(1.0, scale);

    SetText(IDC_COMBO, "1 : 7");
    EXPECT_EQ(1, DDX_CBScale(1, &m_save, IDC_COMBO, text, m_units, nullptr));
    EXPECT_EQ(2, Count()) << "also when saving";
    EXPECT_EQ("1 : 7", Text(IDC_COMBO));
}

TEST_F(ScaleExchange, WithoutAScaleItIsRefused) {
    SetText(IDC_COMBO, "large");
    CString text;
    double scale = 3.0;
    EXPECT_EQ(0, DDX_CBScale(0, &m_save, IDC_COMBO, text, m_units, &scale));
    MessageBoxWatcher boxes;
    EXPECT_TRUE(Refused([&] { DDX_CBScale(1, &m_save, IDC_COMBO, text, m_units, &scale); }));
    EXPECT_EQ(Prompt(IDS_ENTER_SCALE), boxes.OnlyText());
    EXPECT_EQ(3.0, scale);
    EXPECT_EQ(0, Count());
    text.Empty(); // nothing to load
    boxes.Clear();
    EXPECT_EQ(0, DDX_CBScale(0, &m_load, IDC_COMBO, text, m_units, nullptr));
    EXPECT_TRUE(Refused([&] { DDX_CBScale(1, &m_load, IDC_COMBO, text, m_units, nullptr); }));
    EXPECT_TRUE(boxes.Boxes().empty()) << "the caller has not asked the user anything";
}

} // namespace
