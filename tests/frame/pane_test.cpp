// A pane: its buttons, and scrolling a sheet that is larger than the pane.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "demo/automation/sheet_pages.h"
#include "orlo/entry/entry.h"
#include "orlo/frame/sheet_pane.h"
#include "orlo/resources/resource.h"
#include "orlo/win/child_windows.h"
#include "support/graphic_kit.h"
#include "support/test_sheet.h"

namespace {

class TestPane : public CSheetPane {
public:
    explicit TestPane(GraphicKit& kit) : m_kit(kit) {}
    ~TestPane() override { DestroyWindow(); }
    HWND SheetWindow() const { return Sheet()->m_hWnd; }
    HWND Page() const { return Sheet()->GetActivePage()->m_hWnd; }
    CSize FullSize() const { return SheetSize(); }

protected:
    CGraphicPropertySheet* NewSheet() override {
        m_sheet.reset(::InitGraphicPropertySheet(this, nullptr, m_kit.Drawing(), m_kit.Selection(), kAllGraphics));
        ::AddGraphicPropertyPage(nullptr, m_kit[0].graphic, m_sheet.get());
        return m_sheet.get();
    }
    void DeleteSheet() override { m_sheet.reset(); }
    bool HasGraphics() const override { return true; }

private:
    GraphicKit& m_kit;
    std::unique_ptr<CGraphicPropertySheet> m_sheet;
};

class Pane : public ::testing::Test {
protected:
    Pane() {
        ::PropPageInit();
        kit.Add({});
        pane.CreatePane(WS_POPUP, nullptr, 0);
        pane.MoveWindow(0, 0, 900, 900);
        pane.Open();
    }
    // Makes the client area that much smaller than the sheet.
    void Shrink(int width, int height) {
        const CSize size = pane.FullSize();
        pane.MoveWindow(0, 0, size.cx - width, size.cy - height);
    }
    CPoint Scrolled() { return CRect(PlaceIn(pane.m_hWnd, pane.SheetWindow())).TopLeft(); }
    LONG Scroll(int code) {
        pane.SendMessage(WM_VSCROLL, static_cast<WPARAM>(code));
        return Scrolled().y;
    }
    bool HasBar(LONG style) { return (::GetWindowLongA(pane.m_hWnd, GWL_STYLE) & style) != 0; }

    GraphicKit kit;
    TestPane pane{kit};
};

// In the place of the buttons of a modal sheet.
TEST_F(Pane, HasItsButtonsInTheColumnBesideThePage) {
    const HWND sheet = pane.SheetWindow();
    CRect client, units(4, 4, 50, 14);
    ::GetClientRect(sheet, client);
    ::MapDialogRect(pane.Page(), units);
    CRect wanted(CPoint(client.right - 2 * units.left - units.right, PlaceIn(sheet, pane.Page()).top + units.top),
                 CSize(units.right, units.bottom));
    constexpr int kHelp = 0xE145, kPreview = 3999;
    for (const int id : {IDOK, int{kPaneReset}, int{kPaneClose}, kHelp}) {
        EXPECT_EQ(CRect(PlaceIn(sheet, ::GetDlgItem(sheet, id))), wanted) << id;
        ::OffsetRect(wanted, 0, wanted.Height() + units.top);
    }
    EXPECT_LE(wanted.top, PlaceIn(sheet, ::GetDlgItem(sheet, kPreview)).top);
}

TEST_F(Pane, ScrollsByLinesPagesAndEnds) {
    EXPECT_FALSE(HasBar(WS_VSCROLL) || HasBar(WS_HSCROLL));
    const int hidden = 150, bar = ::GetSystemMetrics(SM_CXVSCROLL);
    Shrink(-bar, hidden);
    ASSERT_TRUE(HasBar(WS_VSCROLL));
    EXPECT_FALSE(HasBar(WS_HSCROLL)) << "the bar has its room";
    const LONG page = pane.FullSize().cy - hidden, line = -Scroll(SB_LINEDOWN);
    EXPECT_GT(line, 0);
    EXPECT_EQ(Scroll(SB_LINEDOWN), -2 * line);
    EXPECT_EQ(Scroll(SB_LINEUP), -line);
    EXPECT_EQ(Scroll(SB_PAGEDOWN), -std::min<LONG>(line + page, hidden));
    EXPECT_EQ(Scroll(SB_BOTTOM), -hidden);
    EXPECT_EQ(Scroll(SB_PAGEUP), -std::max<LONG>(hidden - page, 0));
    EXPECT_EQ(Scroll(SB_BOTTOM), -hidden);
    EXPECT_EQ(Scroll(SB_TOP), 0);
    for (const int notches : {-1, 1}) {
        pane.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, notches * WHEEL_DELTA), 0);
        EXPECT_EQ(Scrolled().y, notches < 0 ? -3 * line : 0);
    }
}

// The horizontal scroll bar covers a part of the sheet that would fit without it.
TEST_F(Pane, HasBothBarsIfOneTakesTheRoomOfTheOther) {
    Shrink(50, 0);
    EXPECT_TRUE(HasBar(WS_HSCROLL) && HasBar(WS_VSCROLL));
    EXPECT_EQ(Scroll(SB_BOTTOM), -::GetSystemMetrics(SM_CYHSCROLL));
    pane.SendMessage(WM_HSCROLL, SB_BOTTOM);
    EXPECT_EQ(Scrolled().x, -50 - ::GetSystemMetrics(SM_CXVSCROLL));
    Shrink(50, -::GetSystemMetrics(SM_CYHSCROLL));
    EXPECT_TRUE(HasBar(WS_HSCROLL));
    EXPECT_FALSE(HasBar(WS_VSCROLL));
    EXPECT_EQ(Scrolled().y, 0);
    EXPECT_EQ(pane.FittingWidth(pane.FullSize().cy), pane.FullSize().cx);
    EXPECT_EQ(pane.FittingWidth(pane.FullSize().cy - 1), pane.FullSize().cx + ::GetSystemMetrics(SM_CXVSCROLL));
}

// The message box has a message loop, which handles what was posted.
TEST_F(Pane, FollowsAfterAPageThatRejectsToBeLeft) {
    UserInput user(0);
    pane.ShowWindow(SW_SHOW);
    ASSERT_TRUE(ClickTab(user, pane.SheetWindow(), 1));
    const HWND page = pane.Page();
    user.Replace(::GetDlgItem(page, IDC_PEN_SCALE), "x");
    user.InDialog([&] { EXPECT_FALSE(ClickTab(user, pane.SheetWindow(), 0)); },
                  [&](HWND box) {
                      pane.Follow();
                      pane.Renew();
                      EXPECT_FALSE(pane.Apply());
                      pane.Close();
                      user.Wait(200);
                      EXPECT_EQ(pane.Page(), page);
                      user.Click(::GetDlgItem(box, IDOK));
                  });
    EXPECT_TRUE(pane.IsOpen());
    user.Wait(200);
    EXPECT_FALSE(::IsWindow(page)) << "of the sheet before";
}

} // namespace
