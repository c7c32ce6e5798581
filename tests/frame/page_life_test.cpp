// A page's notifications: which ones mark controls as dirty and inform the sheet, and when the preview is updated.

#include <gtest/gtest.h>

#include <string>

#include "frame/width_page.h"

namespace {

// A page with a number and a list that updates the preview.
struct PageLife : ::testing::Test {
    PageLife() : sheet((kit.Add({{"Width", 1.0}}), kit)), width(sheet), page(&width.page) { page->hasPreview = true; }

    void Send(SheetDriver& user, int id, int code) {
        ::SendMessageA(user.Page(), WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(user.Control(id)));
    }

    GraphicKit kit;
    TestSheet sheet;
    WidthPage width;
    ExchangePage* page;
};

TEST_F(PageLife, LoadingLeavesThePageCleanAndUpdatesThePreviewOnce) {
    sheet.Run([&](SheetDriver& user) {
        EXPECT_EQ(page->IsModified(), 0);
        EXPECT_EQ(page->GetControlStatus(kEdit), 0);
        EXPECT_EQ(page->previewCalls, std::vector<int>{1});
        EXPECT_EQ(user.Text(kEdit), "1");
    });
}

TEST_F(PageLife, NotificationsMarkControlsByTheirTables) {
    const struct {
        int id, code;
        bool change; // marks the control as dirty
    } rows[] = {
        {kEdit, EN_CHANGE, true},          {kEdit, EN_UPDATE, false},        {kEdit, EN_KILLFOCUS, false},
        {kCheck, BN_CLICKED, true},        {kCheck, BN_DOUBLECLICKED, true}, {kCheck, BN_SETFOCUS, false},
        {kCombo, CBN_EDITCHANGE, true},    {kCombo, CBN_SELCHANGE, true},    {kCombo, CBN_SELENDOK, true},
        {kCombo, CBN_SELENDCANCEL, false}, {kCombo, CBN_DROPDOWN, false},    {kList, LBN_SELCHANGE, true},
        {kList, LBN_DBLCLK, false},
    };
    sheet.Run([&](SheetDriver& user) {
        for (const auto& row : rows) {
            page->SetControlStatus(row.id, 0);
            page->SetModifiedFlag(0);
            page->previewCalls.clear();
            Send(user, row.id, row.code);
            EXPECT_EQ(row.change, page->GetControlStatus(row.id) != 0) << row.id << " " << row.code;
            EXPECT_EQ(row.change, page->IsModified() != 0) << row.id << " " << row.code;
            EXPECT_EQ(row.change, !page->previewCalls.empty()) << row.id << " " << row.code;
        }
    });
}

// The end of an edit informs the sheet but does not update the preview, which was updated after each change.
TEST_F(PageLife, EndOfAnEditUpdatesNoPreview) {
    sheet.Run([&](SheetDriver& user) {
        Send(user, kEdit, EN_KILLFOCUS); // not dirty: no effect
        EXPECT_EQ(page->IsModified(), 0);
        user.Type(kEdit, "2");
        const size_t calls = page->previewCalls.size();
        EXPECT_GT(calls, 1u);
        EXPECT_EQ(page->previewCalls.back(), 0);
        Send(user, kEdit, EN_KILLFOCUS);
        EXPECT_EQ(calls, page->previewCalls.size());
    });
}

TEST_F(PageLife, RadioButtonsAreTrackedAsTheFirstOfTheirGroup) {
    sheet.Run([&](SheetDriver& user) {
        user.Click(kRadio + 1);
        EXPECT_EQ(page->GetControlStatus(kRadio), 1);
        EXPECT_EQ(page->GetControlStatus(kRadio + 1), 0);
        user.Click(kLoneRadio); // no group starts before it
        EXPECT_EQ(page->GetControlStatus(kLoneRadio), 1);
    });
}

TEST_F(PageLife, IgnoredControlsAndUnrequestedRefreshesChangeNothing) {
    page->IgnoreApply(kOtherEdit);
    sheet.Run([&](SheetDriver& user) {
        user.Type(kOtherEdit, "x");
        EXPECT_EQ(page->IsModified(), 0);
        EXPECT_EQ(page->GetControlStatus(kOtherEdit), 0);
        EXPECT_EQ(page->GetControlStatus(9999), 1) << "no such control";
        EXPECT_EQ(page->SetControlStatus(9999, 1), 0);
        kit[0].properties["Width"].number = 8;
        ::SendMessageA(user.Page(), WM_COMMAND, 0xFFFF, 0); // a refresh that was not requested
        EXPECT_EQ(user.Text(kEdit), "1");
    });
}

// The page lists its controls once, and again when others follow the last one.
TEST_F(PageLife, ControlsThatJoinLaterAreTracked) {
    sheet.Run([&](SheetDriver& user) {
        const auto add = [&](const char* windowClass, int id) {
            return ::CreateWindowExA(0, windowClass, "", WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, 0, 0, 60, 60,
                                     user.Page(), reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr);
        };
        const auto reopen = [&] {
            user.SelectPage(0);
            user.SelectPage(1);
        };
        constexpr int kFirst = 900, kSecond = 901;
        const HWND combo = add("COMBOBOX", kFirst);
        EXPECT_EQ(page->GetControlStatus(kFirst), 1) << "not tracked yet";
        ::SendMessageA(combo, CB_SHOWDROPDOWN, TRUE, 0);
        ::SetWindowPos(user.Sheet(), nullptr, 5, 5, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        EXPECT_FALSE(::SendMessageA(combo, CB_GETDROPPEDSTATE, 0, 0));
        reopen();
        EXPECT_EQ(page->GetControlStatus(kFirst), 0);
        ::DestroyWindow(combo);
        add("EDIT", kSecond);
        reopen();
        EXPECT_EQ(page->GetControlStatus(kFirst), 1);
        EXPECT_EQ(page->GetControlStatus(kSecond), 0);
    });
}

TEST_F(PageLife, LeavingWritesAndReturningIsClean) {
    sheet.Run([&](SheetDriver& user) {
        user.Type(kEdit, "5");
        EXPECT_EQ(kit[0].Number("Width"), 1);
        user.SelectPage(0);
        EXPECT_EQ(kit[0].Number("Width"), 5);
        kit[0].properties["Width"].number = 8;
        user.SelectPage(1);
        EXPECT_EQ(page->GetControlStatus(kEdit), 0);
        EXPECT_EQ(user.Text(kEdit), "5");
        EXPECT_NE(page->IsModified(), 0);
    });
    EXPECT_EQ(kit[0].Number("Width"), 8); // Cancel writes nothing more and undoes nothing
}

} // namespace
