// Focus, default button and tabs when pages change, and the fitting of a page's controls.

#include <gtest/gtest.h>

#include "frame/width_page.h"
#include "orlo/win/gdi.h"
#include "support/message_box_watcher.h"

#include <commctrl.h>

namespace {

class Keyboard : public ::testing::Test {
protected:
    Keyboard() : sheet((kit.Add({{"Width", 1.0}}), kit)), width(sheet) {
        sheet.Add([](CDataExchange*) {}, kWordsPage);
    }
    HWND Tabs() { return sheet.Sheet().GetTabControl()->m_hWnd; }

    GraphicKit kit;
    TestSheet sheet;
    WidthPage width;
};

TEST_F(Keyboard, PageWithoutFieldsLeavesTheFocusToTheTabs) {
    sheet.Run([&](SheetDriver& user) {
        user.Focus(kEdit);
        const HWND field = user.Control(kEdit);
        ::ShowWindow(Tabs(), SW_HIDE);
        sheet.Sheet().SetActivePage(2);
        EXPECT_EQ(::GetDlgItem(user.Sheet(), IDOK), ::GetFocus());
        sheet.Sheet().SetActivePage(1);
        ::ShowWindow(Tabs(), SW_SHOW);
        user.Focus(kEdit);
        user.Key(VK_TAB, false, true);
        EXPECT_EQ(user.ActivePage(), 2);
        EXPECT_EQ(Tabs(), ::GetFocus());
        ::PostMessageA(::GetFocus(), WM_CHAR, '7', 1);
        user.Pump();
        EXPECT_EQ(::GetWindowTextLengthA(field), 1);
    });
}

TEST_F(Keyboard, TabsShowTheActivePageAfterAFailedValidation) {
    for (const UINT key : {VK_LEFT, VK_RIGHT}) {
        MessageBoxWatcher boxes;
        sheet.Run([&](SheetDriver& user) {
            user.Type(kEdit, "bad");
            user.Focus(Tabs());
            user.Key(key);
            EXPECT_EQ(boxes.Boxes().size(), 1u);
            EXPECT_EQ(user.ActivePage(), 1);
            EXPECT_EQ(::SendMessageA(Tabs(), TCM_GETCURSEL, 0, 0), 1);
            EXPECT_EQ(::SendMessageA(Tabs(), TCM_GETCURFOCUS, 0, 0), 1);
            user.Type(kEdit, "4");
            const int wanted = key == VK_LEFT ? 0 : 2;
            user.SelectPage(wanted);
            EXPECT_EQ(wanted, user.ActivePage());
        });
    }
}

// A page can prevent leaving without Fail, which would move the focus; the focus then stays.
TEST_F(Keyboard, StaysInTheFieldIfThePageCannotBeLeft) {
    bool rejects = true;
    sheet.Add([&](CDataExchange* pDX) {
        if (pDX->m_bSaveAndValidate && rejects) AfxThrowUserException();
    });
    sheet.Run([&](SheetDriver& user) {
        user.SelectPage(3);
        user.Focus(kOtherEdit);
        const HWND field = ::GetFocus();
        sheet.Sheet().SetActivePage(1);
        EXPECT_EQ(user.ActivePage(), 3);
        EXPECT_EQ(::GetFocus(), field);
        rejects = false;
        sheet.Sheet().SetActivePage(1);
        EXPECT_EQ(user.ActivePage(), 1);
    });
}

UINT TypeOf(HWND button) {
    return static_cast<UINT>(::GetWindowLongPtrA(button, GWL_STYLE)) & BS_TYPEMASK;
}

TEST_F(Keyboard, OkIsTheDefaultAgainAfterAPushButton) {
    sheet.Run([&](SheetDriver& user) {
        const HWND ok = ::GetDlgItem(user.Sheet(), IDOK), push = user.Control(kButton);
        user.Focus(kEdit);
        while (::GetFocus() != push)
            user.Key(VK_TAB);
        EXPECT_EQ(TypeOf(push), UINT{BS_DEFPUSHBUTTON});
        EXPECT_EQ(TypeOf(ok), UINT{BS_PUSHBUTTON});
        user.SelectPage(0);
        EXPECT_EQ(user.ActivePage(), 0);
        EXPECT_EQ(TypeOf(ok), UINT{BS_DEFPUSHBUTTON});
        EXPECT_EQ(TypeOf(push), UINT{BS_PUSHBUTTON});
    });
}

TEST(FittedControls, AreThoseOfAPageThatRequestsIt) {
    for (const bool wished : {false, true}) {
        SCOPED_TRACE(wished);
        GraphicKit kit;
        TestSheet sheet(kit);
        ExchangePage& page = sheet.Add([](CDataExchange*) {}, kWideFieldPage);
        if (wished) page.FitControls();
        sheet.Run([&](SheetDriver& user) {
            RECT room, field, units = {0, 0, 220, 0};
            ::GetClientRect(user.Page(), &room);
            ::GetWindowRect(user.Control(kEdit), &field);
            ::MapDialogRect(user.Page(), &units);
            EXPECT_EQ(wished, field.right - field.left < units.right);
            for (const int label : {int{kLabel}, 143})
                EXPECT_EQ(wished, !(::GetWindowLongPtrA(user.Control(label), GWL_STYLE) & WS_TABSTOP)) << label;
            RECT group, box;
            ::GetWindowRect(user.Control(140), &group);
            ::GetWindowRect(user.Control(141), &box);
            EXPECT_LE(box.right, group.right - 3) << "the line of the group";
        });
    }
}

// A label starts a group, which would end the group of radio buttons that its field is in.
void ExpectLabelBeforeFieldInGroup(unsigned int nIDTemplate) {
    GraphicKit kit;
    TestSheet sheet(kit);
    sheet.Add([](CDataExchange*) {}, nIDTemplate).FitControls();
    sheet.Run([&](SheetDriver& user) {
        EXPECT_EQ(::GetWindow(user.Control(kEdit), GW_HWNDPREV), user.Control(kLabel));
        for (HWND next = user.Control(kRadio); next != user.Control(kRadio + 1);) {
            next = ::GetWindow(next, GW_HWNDNEXT);
            EXPECT_FALSE(::GetWindowLongPtrA(next, GWL_STYLE) & WS_GROUP) << ::GetDlgCtrlID(next);
        }
    });
}

TEST(FittedControls, KeepTheirGroupsWhenALabelMovesToItsField) {
    for (const DWORD layout : {DWORD{0}, DWORD{LAYOUT_RTL}})
        for (const unsigned int page : {kGroupPage, kExtendedPage}) {
            SCOPED_TRACE(testing::Message() << page << (layout ? " from right to left" : ""));
            ::SetProcessDefaultLayout(layout);
            ExpectLabelBeforeFieldInGroup(page);
            ::SetProcessDefaultLayout(0);
        }
}

TEST(FittedControls, DoNotTakeTheLabelsOfOthers) {
    GraphicKit kit;
    TestSheet sheet(kit);
    sheet.Add([](CDataExchange*) {}, kLabelsPage).FitControls();
    sheet.Run([&](SheetDriver& user) {
        const auto before = [&](int id) { return ::GetDlgCtrlID(::GetWindow(user.Control(id), GW_HWNDPREV)); };
        constexpr int kComboLabel = 132, kArrows = 144;
        EXPECT_EQ(before(kCombo), kComboLabel);
        EXPECT_EQ(before(kEdit), kLabel);
        EXPECT_EQ(before(kArrows), kEdit);
    });
}

// Returns the number of pixels in the color of texts.
int CountTextPixels(HWND control) {
    ::RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    const orlo::WindowDC dc(control);
    RECT client;
    ::GetClientRect(control, &client);
    int count = 0;
    for (int y = 0; y < client.bottom; ++y)
        for (int x = 0; x < client.right; ++x)
            count += ::GetPixel(dc.get(), x, y) == ::GetSysColor(COLOR_BTNTEXT);
    return count;
}

TEST(FittedControls, ShowTheWholeLabelBesideALargerBox) {
    const orlo::WindowDC screen(nullptr);
    if (::GetDeviceCaps(screen.get(), LOGPIXELSX) == 96) GTEST_SKIP() << "boxes are as large as in the template";
    GraphicKit kit;
    TestSheet sheet(kit);
    sheet.Add([](CDataExchange*) {}, kWideFieldPage).FitControls();
    sheet.Run([&](SheetDriver& user) {
        const HWND box = user.Control(142);
        const int shown = CountTextPixels(box);
        RECT rect;
        ::GetWindowRect(box, &rect);
        ::SetWindowPos(box, nullptr, 0, 0, 2 * (rect.right - rect.left), rect.bottom - rect.top,
                       SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_EQ(shown, CountTextPixels(box));
    });
}

} // namespace
