// The scale combo box: finds a scale by value, and adds one that is not in the list.

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

TEST_F(ScaleExchange, UnlistedScaleIsInsertedInDescendingOrder) {
    const double big = UnitsGetScaleValue(m_units, "1 : 2"), middle = UnitsGetScaleValue(m_units, "1 : 50"),
                 small = UnitsGetScaleValue(m_units, "1 : 100");
    ASSERT_NE(middle, 0.0);
    if (big > small)
        Fill({"1 : 2", "1 : 100"});
    else
        Fill({"1 : 100", "1 : 2"});

    CString text;
    double scale = middle;
    EXPECT_EQ(DDX_CBScale(1, &m_load, IDC_COMBO, text, m_units, &scale), 1);
    EXPECT_EQ(Count(), 3);
    EXPECT_EQ(Selected(), 1);
    EXPECT_EQ(std::string(text), ComboItem(IDC_COMBO, 1));
    EXPECT_DOUBLE_EQ(middle, UnitsGetScaleValue(m_units, text));

    text = "1 : 50";
    DDX_CBScale(1, &m_load, IDC_COMBO, text, m_units, &scale);
    EXPECT_EQ(Count(), 3) << "once";
}

TEST_F(ScaleExchange, TypedScaleIsReplacedByTheTextOfAnEqualItem) {
    Fill({"1 : 1"});
    SetText(IDC_COMBO, "2 : 2");
    CString text;
    double scale = 0.0;
    EXPECT_EQ(DDX_CBScale(1, &m_save, IDC_COMBO, text, m_units, &scale), 1);
    EXPECT_EQ(std::string(text), "1 : 1");
    EXPECT_EQ(Selected(), 0);
    EXPECT_EQ(scale, 1.0);

    SetText(IDC_COMBO, "1 : 7");
    EXPECT_EQ(DDX_CBScale(1, &m_save, IDC_COMBO, text, m_units, nullptr), 1);
    EXPECT_EQ(Count(), 2) << "also when saving";
    EXPECT_EQ(Text(IDC_COMBO), "1 : 7");
}

TEST_F(ScaleExchange, FailsWithoutAScale) {
    SetText(IDC_COMBO, "large");
    CString text;
    double scale = 3.0;
    EXPECT_EQ(DDX_CBScale(0, &m_save, IDC_COMBO, text, m_units, &scale), 0);
    MessageBoxWatcher boxes;
    EXPECT_TRUE(Fails([&] { DDX_CBScale(1, &m_save, IDC_COMBO, text, m_units, &scale); }));
    EXPECT_EQ(Prompt(IDS_ENTER_SCALE), boxes.OnlyText());
    EXPECT_EQ(scale, 3.0);
    EXPECT_EQ(Count(), 0);
    text.Empty(); // nothing to load
    boxes.Clear();
    EXPECT_EQ(DDX_CBScale(0, &m_load, IDC_COMBO, text, m_units, nullptr), 0);
    EXPECT_TRUE(Fails([&] { DDX_CBScale(1, &m_load, IDC_COMBO, text, m_units, nullptr); }));
    EXPECT_TRUE(boxes.Boxes().empty()) << "the caller was not prompted";
}

} // namespace
