// The style name control lists the blocks of one style tree.

#include "control_dialog.h"

#include "orlo/controls/style_name_control.h"

namespace {

class StyleNames : public ControlDialog {
protected:
    StyleNames() : m_blocks(BlocksFromDrawing(m_drawing.Get())), m_control(Get<CStyleNameControl>(IDC_STYLE_NAME)) {}

    uint16_t Add(const char* name, const char* tree) {
        GraphicStruct* const graphic = GraphicNewEx(kGraphicVertices, 0, 1);
        graphic->pszStyleName = tree;
        return BlocksAddBlock(m_blocks, name, graphic);
    }
    std::string Shown() const {
        char text[64] = "";
        ::GetWindowTextA(m_control.m_hWnd, text, sizeof text);
        return text;
    }

    TableStruct* m_blocks;
    CStyleNameControl& m_control;
};

TEST_F(StyleNames, ListTheTreeOfTheSelectedBlockSorted) {
    const uint16_t zebra = Add("Zebra", "doors");
    Add("Window", "windows");
    const uint16_t arch = Add("Arch", "doors");
    Add("Capital", "Doors");
    const uint16_t plain = Add("Plain", nullptr);
    Fill(IDC_STYLE_NAME, m_blocks, zebra);
    ASSERT_EQ(m_control.GetCount(), 2) << "case counts";
    EXPECT_EQ(Shown(), "Zebra");
    EXPECT_EQ(m_control.GetCurSel(), 1) << "at its sorted position";
    Fill(IDC_STYLE_NAME, m_blocks, arch);
    EXPECT_EQ(m_control.GetCurSel(), 0);
    EXPECT_EQ(m_control.m_nSelected, 0u) << "not preserved";
    for (const unsigned none : {0u, 0xFFFFu, 0x7777u, static_cast<unsigned>(plain)}) {
        Fill(IDC_STYLE_NAME, m_blocks, none);
        EXPECT_EQ(m_control.GetCount(), 0) << none;
    }
    Fill(IDC_STYLE_NAME, nullptr, zebra);
    EXPECT_EQ(m_control.m_pTable, nullptr);
}

TEST_F(StyleNames, OwnerDrawnItemsAreFramedNames) {
    CStyleNameControl control;
    ASSERT_TRUE(control.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, CRect(0, 0, 120, 100),
                               &m_host, 1));
    control.AddString("Zebra");
    DrawnPixels pixels(120, 40);
    const RECT all = {0, 0, 120, 40};
    const auto ink = [&](int item, int left, UINT state = 0) {
        pixels.Draw(control, item, {left, 10, 100, 30}, ODA_DRAWENTIRE, state);
        return pixels.Count(all, ::GetSysColor(COLOR_WINDOWTEXT));
    };
    EXPECT_EQ(ink(-1, 3), 0);
    EXPECT_LT(2 * 100 + 20, ink(0, 0)) << "frame and name";
    EXPECT_EQ(pixels.At(0, 10), RGB(0, 0, 0));
    ink(0, 3);
    EXPECT_EQ(pixels.At(2, 9), RGB(0, 0, 0)) << "the closed field is covered with its border";
    ink(0, 0, ODS_SELECTED);
    EXPECT_LT(200, pixels.Count(all, ::GetSysColor(COLOR_HIGHLIGHT))) << "the current row";
    const SchemeColors dark({{COLOR_WINDOW, RGB(0, 0, 0)}, {COLOR_WINDOWTEXT, RGB(255, 255, 0)}});
    EXPECT_LT(2 * 100 + 20, ink(0, 0));
    EXPECT_LT(1000, pixels.Count(all, RGB(0, 0, 0)));
    control.DestroyWindow();
}

} // namespace
