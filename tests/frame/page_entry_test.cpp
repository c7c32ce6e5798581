// Changing the page when a page throws or memory runs out: the visible page remains the active one.

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "frame/width_page.h"
#include "orlo/win/child_windows.h"
#include "support/failing_memory.h"
#include "support/message_box_watcher.h"

namespace {

constexpr const char* kReason = "no disk";

// A page that throws when it is activated or left.
struct ThrowingPage : ExchangePage {
    ThrowingPage() : ExchangePage([](CDataExchange*) {}) {}
    BOOL OnSetActive() override {
        const BOOL result = ExchangePage::OnSetActive(); // including its window
        if (throwsOnEntry) throw std::runtime_error(kReason);
        return result;
    }
    BOOL OnKillActive() override {
        if (throwsOnLeaving) throw std::runtime_error(kReason);
        return ExchangePage::OnKillActive();
    }
    bool throwsOnEntry = false;
    bool throwsOnLeaving = false;
};

struct PageEntry : ::testing::Test {
    PageEntry() : sheet((kit.Add({{"Width", 1.0}}), kit)), width(sheet), other(new ThrowingPage) {
        sheet.Sheet().AddPage(other);
    }

    // The ways to move from the previous page to the next.
    static constexpr const char* kActions[] = {"click", "Ctrl+Tab", "Ctrl+Page Down", "call"};
    void ChangePage(SheetDriver& user, const std::string& action) {
        const int next = user.ActivePage() + 1;
        if (action == "click") user.SelectPage(next);
        if (action == "Ctrl+Tab") user.Key(VK_TAB, false, true);
        if (action == "Ctrl+Page Down") user.Key(VK_NEXT, false, true);
        if (action == "call") sheet.Sheet().SetActivePage(next);
    }
    void ExpectOn(int page, const std::string& action) {
        EXPECT_EQ(page, sheet.Sheet().GetActiveIndex()) << action;
        EXPECT_EQ(page, sheet.Sheet().GetTabControl()->GetCurSel()) << action;
        for (int i = 0; i < sheet.Sheet().GetPageCount(); ++i)
            EXPECT_EQ(i == page, ::IsWindowVisible(sheet.Sheet().GetPage(i)->m_hWnd) != FALSE) << action << i;
    }

    GraphicKit kit;
    TestSheet sheet;
    WidthPage width;
    ThrowingPage* other;
};

TEST_F(PageEntry, PageThatThrowsIsReportedAndThePreviousOneStays) {
    MessageBoxWatcher boxes;
    EXPECT_EQ(sheet.Run([&](SheetDriver& user) {
        for (const bool visited : {false, true}) {
            other->throwsOnEntry = true;
            for (const char* action : kActions) {
                boxes.Clear();
                user.Focus(kEdit);
                ChangePage(user, action);
                EXPECT_EQ(boxes.OnlyText(), kReason) << action << visited;
                ExpectOn(1, action);
                EXPECT_TRUE(::IsWindowVisible(::GetFocus())) << action << visited;
            }
            other->throwsOnEntry = false;
            ChangePage(user, "click");
            ExpectOn(2, "without a fault");
            user.SelectPage(1);
        }
        other->throwsOnEntry = true;
        ChangePage(user, "click");
        user.Type(kEdit, "5");
        user.Ok();
    }),
              IDOK);
    EXPECT_EQ(kit[0].Number("Width"), 5) << "typed into the visible page";
}

TEST_F(PageEntry, PageThatThrowsWhenLeftIsReportedAndStays) {
    sheet.Add([](CDataExchange*) {}); // a page to activate
    MessageBoxWatcher boxes;
    sheet.Run([&](SheetDriver& user) {
        user.SelectPage(2);
        other->throwsOnLeaving = true;
        for (const char* action : kActions) {
            boxes.Clear();
            ChangePage(user, action);
            EXPECT_EQ(boxes.OnlyText(), kReason) << action;
            ExpectOn(2, action);
        }
        boxes.Clear();
        user.Ok();
        EXPECT_EQ(boxes.OnlyText(), kReason);
        ASSERT_TRUE(::IsWindow(user.Sheet()));
        other->throwsOnLeaving = false;
    });
}

TEST_F(PageEntry, RemovingAPageShowsTheNextUsableOne) {
    sheet.Add([](CDataExchange*) {});
    MessageBoxWatcher boxes;
    sheet.Run([&](SheetDriver&) {
        other->throwsOnEntry = true;
        sheet.Sheet().RemovePage(1);
        EXPECT_EQ(boxes.OnlyText(), kReason);
        EXPECT_EQ(sheet.Sheet().GetActiveIndex(), 2);
        EXPECT_TRUE(::IsWindowVisible(sheet.Sheet().GetPage(2)->m_hWnd));
        EXPECT_FALSE(::IsWindowVisible(other->m_hWnd));
    });
    sheet.Sheet().AddPage(&width.page); // the sheet owns it again
}

// Each memory allocation fails once, in the library and in the framework, until changing pages makes no more of them.
TEST(PageEntryMemory, OutOfMemoryKeepsThePreviousPageOrCompletesTheNewOne) {
    for (const char* module : {"orlo.dll", "afx.dll"}) {
        bool failed = true;
        for (int nth = 1; failed; ++nth) {
            SCOPED_TRACE(module + std::to_string(nth));
            GraphicKit kit;
            kit.Add({{"Width", 1.0}});
            TestSheet sheet(kit);
            const WidthPage width(sheet), second(sheet);
            const MessageBoxWatcher boxes;
            EXPECT_EQ(sheet.Run([&](SheetDriver& user) {
                user.Type(kEdit, "5");
                {
                    const FailingMemory memory(module, nth);
                    user.SelectPage(2);
                    failed = memory.HasFailed();
                }
                const int active = user.ActivePage();
                EXPECT_TRUE(::IsWindowVisible(user.Page()));
                EXPECT_EQ(active, sheet.Sheet().GetTabControl()->GetCurSel());
                EXPECT_TRUE(active == 1 || kit[0].Number("Width") == 5) << "left without saving";
                user.Type(kEdit, "7");
                user.Ok();
            }),
                      IDOK);
            EXPECT_EQ(kit[0].Number("Width"), 7);
            if (nth > 2000) FAIL();
        }
    }
}

TEST(PageEntryMemory, StatusTableOutlivesAFailedActivation) {
    GraphicKit kit;
    kit.Add({{"Width", 1.0}});
    TestSheet sheet(kit);
    const WidthPage width(sheet);
    const MessageBoxWatcher boxes;
    sheet.Run([&](SheetDriver& user) {
        user.Type(kEdit, "5");
        bool failed = true;
        for (int nth = 1; failed; ++nth) {
            const FailingMemory memory("orlo.dll", nth);
            try {
                width.page.OnSetActive();
            } catch (const std::bad_alloc&) {
            }
            failed = memory.HasFailed();
            size_t rows = 0;
            ForEachChild(user.Page(), [&](HWND) { ++rows; });
            // Reuses the memory of a freed table.
            const std::vector<std::vector<ControlStatus>> others(
                100, std::vector<ControlStatus>(rows, ControlStatus{kEdit, 0}));
            EXPECT_EQ(failed ? 1 : 0, width.page.GetControlStatus(kEdit)) << nth;
        }
    });
}

} // namespace
