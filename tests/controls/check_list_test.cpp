// The check list box: check states, clicks, drawing.

#include "control_dialog.h"

#include "orlo/controls/check_list_box.h"

namespace {

class OpenCheckList : public CCheckListBox {
public:
    using CCheckListBox::DrawItem;
    using CCheckListBox::GetCheckRect;
    using CCheckListBox::InvalidateItem;
    using CCheckListBox::ItemFromPoint;
    using CCheckListBox::ItemHeight;
    void CheckItem(int nIndex, int bChecked) override {
        ++checks;
        CCheckListBox::CheckItem(nIndex, bChecked);
    }
    int checks = 0;
    bool hasCaret = true;

protected:
    // Windows has no caret item until one is selected; Wine reports the first.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == LB_GETCARETINDEX && !hasCaret ? LB_ERR : CCheckListBox::WindowProc(message, wParam, lParam);
    }
};

class CheckList : public ::testing::Test {
protected:
    CheckList() {
        m_host.SetWindowPos(nullptr, 0, 0, 200, 200, SWP_SHOWWINDOW);
        EXPECT_TRUE(m_list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY,
                                  CRect(0, 0, 120, 90), &m_host, 7));
    }
    ~CheckList() override { m_list.DestroyWindow(); }

    void Click(int x, int y) {
        m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        m_list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }
    void Draw(int item, UINT action, UINT state) { m_pixels.Draw(m_list, item, {}, action, state); }
    HostWindow m_host;
    OpenCheckList m_list;
    DrawnPixels m_pixels{120, 90};
};

TEST_F(CheckList, StoresTheFlagUnchanged) {
    EXPECT_EQ(m_list.AddString("off", 0), 0);
    EXPECT_EQ(m_list.AddString("seven", 7), 1);
    EXPECT_EQ(m_list.InsertString(0, "first", 1), 0);
    EXPECT_EQ(m_list.checks, 3) << "by the virtual function";
    EXPECT_EQ(m_list.IsItemChecked(0), 1);
    EXPECT_EQ(m_list.IsItemChecked(1), 0);
    EXPECT_EQ(m_list.IsItemChecked(2), 1);
    EXPECT_EQ(m_list.GetItemData(2), 7u);
    m_list.ToggleItem(2);
    EXPECT_EQ(m_list.GetItemData(2), 0u);
    m_list.ToggleItem(2);
    EXPECT_EQ(m_list.GetItemData(2), 1u) << "not the seven";
    EXPECT_EQ(m_list.IsItemChecked(99), 1) << "LB_ERR for an item that does not exist";
    EXPECT_EQ(m_list.InsertString(99, "nowhere", 1), LB_ERR);
    EXPECT_EQ(m_list.GetCount(), 3);
    EXPECT_EQ(m_list.InvalidateItem(99, 0), 0);
    EXPECT_EQ(m_list.InvalidateItem(2, 0), 1);
}

TEST_F(CheckList, ClickAnywhereOnAnItemTogglesAndSelectsIt) {
    for (const char* name : {"a", "b", "c"})
        m_list.AddString(name, 0);
    const int height = m_list.ItemHeight();
    Click(100, height + 3);
    EXPECT_EQ(m_list.IsItemChecked(1), 1);
    EXPECT_EQ(m_list.GetCurSel(), 1);
    Click(5, height + 3);
    EXPECT_EQ(m_list.IsItemChecked(1), 0);
    Click(5, 3 * height + 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(m_list.IsItemChecked(i), 0) << "below the last item";
    EXPECT_EQ(m_list.ItemFromPoint(CPoint(5, 3 * height + 3), 1), 3);
    EXPECT_EQ(m_list.ItemFromPoint(CPoint(5, 3 * height + 3), 0), -1);
    EXPECT_EQ(m_list.ItemFromPoint(CPoint(500, 3), 1), -1);

    Click(5, 3);
    m_list.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 3)); // second click of a double click
    EXPECT_EQ(m_list.IsItemChecked(0), 0);

    for (int i = 0; i < 20; ++i)
        m_list.AddString("more", 0);
    m_list.SendMessage(LB_SETTOPINDEX, 4, 0);
    EXPECT_EQ(m_list.ItemFromPoint(CPoint(5, height + 3), 0), 5) << "a scrolled list";
    m_list.SendMessage(LB_SETITEMHEIGHT, 0, 40);
    EXPECT_EQ(m_list.ItemFromPoint(CPoint(5, 42), 0), 5) << "rows of the host's own height";
}

TEST_F(CheckList, SpaceTogglesTheCurrentItem) {
    m_list.SendMessage(WM_KEYDOWN, VK_SPACE, 1); // no item
    EXPECT_EQ(m_list.checks, 0);
    for (const char* name : {"a", " b", "c"})
        m_list.AddString(name, 0);
    m_list.checks = 0;
    m_list.hasCaret = false;
    m_list.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
    EXPECT_EQ(m_list.checks, 0) << "the current item is -1, which would mean all";
    m_list.hasCaret = true;
    m_list.SetFocus();
    m_list.SetCurSel(2);
    const auto press = [&](LPARAM key) {
        m_list.SendMessage(WM_KEYDOWN, VK_SPACE, key);
        m_list.SendMessage(WM_CHAR, ' ', key);
    };
    press(1);
    press(0x40000001); // key held down
    EXPECT_EQ(m_list.IsItemChecked(2), 1);
    EXPECT_EQ(m_list.GetCurSel(), 2) << "a space does not select by first letter";
    press(1);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(m_list.IsItemChecked(i), 0) << i;
}

TEST_F(CheckList, SubclassesAWindowWithItsOwnRowHeight) {
    const HWND window = ::CreateWindowExA(0, "ListBox", "", WS_CHILD | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, 0, 0, 90,
                                          90, m_host.m_hWnd, reinterpret_cast<HMENU>(8), nullptr, nullptr);
    ::SendMessageA(window, LB_SETITEMHEIGHT, 0, 40);
    OpenCheckList taken;
    ASSERT_TRUE(taken.SubclassDlgItem(8, &m_host));
    EXPECT_EQ(taken.ItemHeight(), taken.SendMessage(LB_GETITEMHEIGHT, 0, 0));
    taken.DestroyWindow();
}

TEST_F(CheckList, HasAGapBetweenTheEdgeOfTheSelectionAndTheText) {
    m_list.AddString("|||", 0);
    Draw(0, ODA_DRAWENTIRE, ODS_SELECTED);
    const auto columnHas = [&](int x, COLORREF color) { return m_pixels.Count({x, 0, x + 1, 12}, color) > 0; };
    int edge = 0;
    while (edge < 120 && !columnHas(edge, ::GetSysColor(COLOR_HIGHLIGHT)))
        ++edge;
    int text = edge;
    while (text < 120 && !columnHas(text, ::GetSysColor(COLOR_HIGHLIGHTTEXT)))
        ++text;
    EXPECT_LE(3, text - edge);
    EXPECT_GE(8, text - edge);
}

TEST_F(CheckList, DrawsTheCheckMarkInABoxInTheWindowColor) {
    m_list.AddString("on", 1);
    m_list.AddString("off", 0);
    m_list.UpdateWindow(); // loads the bitmap
    CRect on, off;
    ASSERT_EQ(m_list.GetCheckRect(0, on), 0);
    ASSERT_EQ(m_list.GetCheckRect(1, off), 0);
    EXPECT_EQ(CSize(12, 12), on.Size());
    EXPECT_EQ((m_list.ItemHeight() - 12) / 2, on.left);
    EXPECT_EQ(m_list.GetCheckRect(2, off), -1);
    m_list.GetCheckRect(1, off);

    const COLORREF gray = RGB(0x80, 0x80, 0x80), black = RGB(0, 0, 0), white = RGB(255, 255, 255);
    for (const UINT state : {0u, static_cast<UINT>(ODS_SELECTED)}) {
        Draw(0, ODA_DRAWENTIRE, state);
        EXPECT_EQ(m_pixels.Count(on, gray), 23) << "the sunken edges";
        EXPECT_LT(20, m_pixels.Count(on, black));
        EXPECT_EQ(m_pixels.Count(on, gray) + m_pixels.Count(on, black) + m_pixels.Count(on, white), 12 * 12);
        EXPECT_EQ(gray, m_pixels.At(on.left, on.top));
        Draw(1, ODA_DRAWENTIRE, state);
        const COLORREF window = ::GetSysColor(COLOR_WINDOW);
        EXPECT_LE(23, m_pixels.CountWhere(off, [=](COLORREF c) { return c != window; })) << "also sunken";
        EXPECT_EQ(m_pixels.Count({off.left + 2, off.top + 2, off.right - 2, off.bottom - 2}, window), 8 * 8);
        const CRect text(40, off.top, 120, off.bottom);
        EXPECT_LT(200, m_pixels.Count(text, ::GetSysColor(state ? COLOR_HIGHLIGHT : COLOR_WINDOW)));
    }
    const SchemeColors dark({{COLOR_WINDOW, black}, {COLOR_WINDOWTEXT, white}});
    Draw(1, ODA_DRAWENTIRE, 0);
    EXPECT_LE(12, m_pixels.CountWhere(off, [=](COLORREF c) { return c != black; }));
    Draw(0, ODA_DRAWENTIRE, 0);
    const CRect inside(on.left + 2, on.top + 2, on.right - 2, on.bottom - 2);
    EXPECT_LT(10, m_pixels.Count(inside, white)) << "the mark";
    EXPECT_LT(20, m_pixels.Count(inside, black)) << "the check box";
    const int objects = GdiObjectCount();
    for (int i = 0; i < 100; ++i)
        Draw(0, ODA_DRAWENTIRE, ODS_FOCUS | ODS_SELECTED);
    EXPECT_EQ(objects, GdiObjectCount());
    Draw(0, 0, 0);
    EXPECT_EQ(m_pixels.Count({0, 0, 120, 90}, DrawnPixels::kUntouched), 120 * 90) << "an action of 0 draws nothing";
}

} // namespace
