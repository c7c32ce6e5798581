// Lists of thousands of entries: each entry is measured once, and only visible items are drawn.

#include "control_dialog.h"

#include <drawcore/brushstyle.h>
#include <drawcore/linestyle.h>

#include <functional>
#include <random>

#include "orlo/controls/color_order.h"
#include "support/replaced_import.h"

namespace {

int g_contexts = 0;
HDC WINAPI CountedContext(HDC dc) {
    ++g_contexts;
    return ::CreateCompatibleDC(dc);
}

class LongLists : public ControlDialog {
protected:
    // Fills the control with the table while it is visible.
    void Show(int id, const char* table, unsigned selected) {
        m_dialog.ShowWindow(SW_SHOW);
        Pump();
        m_dialog.drawn = m_dialog.measured = 0;
        Fill(id, m_drawing.Table(table), selected);
        Pump();
    }
    // Opens and closes a combo box, and compares the number of drawn rows with that of visible rows. All names are
    // measured with one device context, because creating one takes longer than measuring.
    void ExpectOpenedWithin(CComboControl& combo) {
        m_dialog.drawn = 0;
        {
            const ReplacedImport counted("orlo.dll", "CreateCompatibleDC", CountedContext);
            g_contexts = 0;
            combo.SizeDropDown();
            EXPECT_LT(0, g_contexts);
            EXPECT_GT(10, g_contexts);
        }
        combo.ShowDropDown(TRUE);
        Pump();
        MEASUREITEMSTRUCT row = {};
        combo.MeasureItem(&row);
        const int rows = 320 / static_cast<int>(row.itemHeight);
        EXPECT_LE(rows / 2, m_dialog.drawn);
        EXPECT_GE(3 * rows, m_dialog.drawn);
        combo.ShowDropDown(FALSE);
    }
};

TEST_F(LongLists, OfLayersAndColors) {
    for (int i = 0; i < 10000; ++i)
        TableEntryAdd(m_drawing.Table(kTableLayers), ("layer " + std::to_string(i)).c_str(), nullptr);
    Show(IDC_LAYER, kTableLayers, 9000);
    CComboControl& layers = Get<CComboControl>(IDC_LAYER);
    EXPECT_EQ(layers.GetCount(), 10001);
    EXPECT_EQ(layers.GetCurSel(), 8999);
    EXPECT_GE(10001, m_dialog.measured);
    EXPECT_GE(3, m_dialog.drawn) << "the closed field";
    ExpectOpenedWithin(layers);

    std::mt19937 random(5);
    std::vector<DWORD> values(10000);
    for (DWORD& value : values) {
        value = random() & 0xFFFFFF;
        TableEntryAdd(m_drawing.Table(kTableColors), std::to_string(&value - &values[0]).c_str(), &value);
    }
    Show(IDC_COLOR, kTableColors, kColorNone);
    CComboControl& colors = Get<CComboControl>(IDC_COLOR);
    EXPECT_LE(10001, colors.GetCount());
    EXPECT_GE(3, m_dialog.drawn) << "at most the closed field";
    char name[kItemTextSize];
    for (int i = 1; i < 10000; ++i)
        ASSERT_LE(CompareHSVforRGBs(colors.GetControlItem(i - 1, name), colors.GetControlItem(i, name)), 0);
    ExpectOpenedWithin(colors);
    Fill(IDC_COLOR, nullptr);
}

TEST_F(LongLists, OfStyles) {
    const BrushLine line = {0.5, 0, 0, 0, 1, 0, {}};
    const double pattern[] = {1.0, -0.5};
    for (int i = 0; i < 2000; ++i) {
        const std::string name = "style " + std::to_string(i);
        LineStyleAdd(m_drawing.Table(kTableLineStyles), name.c_str(), nullptr, pattern, 2);
        BrushStyleAddLines(m_drawing.Table(kTableBrushStyles), name.c_str(), &line, 1);
    }
    for (const auto& [id, table] :
         {std::pair(IDC_LINE_STYLE_LIST, kTableLineStyles), {IDC_BRUSH_STYLE_LIST, kTableBrushStyles}}) {
        Show(id, table, 5);
        CListControl& list = Get<CListControl>(id);
        EXPECT_LE(2001, list.GetCount());
        EXPECT_GE(list.GetCount(), m_dialog.measured);
        CRect client;
        list.GetClientRect(client);
        EXPECT_LT(0, m_dialog.drawn);
        EXPECT_GE(3 * (client.Height() / list.SendMessage(LB_GETITEMHEIGHT) + 1), m_dialog.drawn);
    }
}

} // namespace
