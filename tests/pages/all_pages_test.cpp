// All pages in one sheet for real graphics of every kind.

#include <gtest/gtest.h>

#include <afxwin.h>

#include <commctrl.h>

#include <set>
#include <string>
#include <vector>

#include "drawcore/object_counts.h"
#include "drawcore/undo.h"
#include "orlo/resources/resource.h"
#include "orlo/win/child_windows.h"
#include "pages/every_kind.h"
#include "support/drawing_state.h"
#include "support/host_frame.h"
#include "support/message_box_watcher.h"
#include "support/object_counts.h"
#include "support/sheet_driver.h"

namespace {

using Titles = std::vector<std::string>;

class AllPages : public ::testing::Test {
protected:
    AllPages() : frame(kinds.Drawing()) {}

    static Titles TitlesOf(CPropertySheet& sheet) {
        Titles titles;
        for (int i = 0; i < sheet.GetPageCount(); ++i) {
            char title[64] = "";
            TCITEMA item = {};
            item.mask = TCIF_TEXT;
            item.pszText = title;
            item.cchTextMax = sizeof title;
            sheet.GetTabControl()->SendMessage(TCM_GETITEMA, i, reinterpret_cast<LPARAM>(&item));
            titles.emplace_back(title);
        }
        return titles;
    }

    DrawingState State() const { return DrawingState(kinds.Drawing()); }
    void ExpectUnchanged(const DrawingState& before) const {
        EXPECT_EQ(before.DifferencesTo(State(), 1), std::vector<std::string>());
    }

    EveryKind kinds;
    HostFrame frame;
};

TEST_F(AllPages, EverySelectionGetsItsPages) {
    const std::pair<int, Titles> rows[] = {
        {0, {"General"}},
        {kShapes, {"General", "Pen", "Brush"}},
        {kTexts, {"General", "Text"}},
        {kInsertions, {"General", "Block Insertion"}},
        {kShapes | kInsertions, {"General", "Pen", "Brush", "Block Insertion"}},
        {kEverything, {"General", "Pen", "Brush", "Text", "Block Insertion"}},
    };
    for (const auto& [content, titles] : rows) {
        EveryKind some;
        some.Select(content);
        const auto sheet = some.NewSheet();
        SheetDriver().Run(*sheet, [&, wanted = titles](SheetDriver&) { EXPECT_EQ(wanted, TitlesOf(*sheet)); });
    }
}

// Every page is activated and left by its tab, then OK.
TEST_F(AllPages, UneditedPagesWriteNothing) {
    kinds.Select(kEverything);
    const DrawingState before = State();
    for (const bool ok : {true, false}) {
        ::DrawingBeginUndo(kinds.Drawing());
        auto sheet = kinds.NewSheet();
        SheetDriver().Run(*sheet, [&](SheetDriver& user) {
            for (int page = 0; page < sheet->GetPageCount(); ++page) {
                user.SelectPage(page);
                EXPECT_EQ(page, user.ActivePage());
            }
            user.SelectPage(0);
            ok ? user.Ok() : user.Cancel();
        });
        sheet.reset(); // removes the preview block
        EXPECT_EQ(::DrawingEndUndo(kinds.Drawing()), 0);
        ExpectUnchanged(before);
    }
}

// With Tab through the whole sheet in both directions, and with arrow keys within groups of radio buttons.
TEST_F(AllPages, EveryControlIsReachedAndLeftByKeys) {
    kinds.Select(kEverything);
    const auto sheet = kinds.NewSheet();
    SheetDriver().Run(*sheet, [&](SheetDriver& user) {
        // Returns the control of the page or sheet that has the focus or contains the focused field.
        const auto focused = [&] {
            HWND window = ::GetFocus();
            while (window != nullptr && ::GetParent(window) != user.Page() && ::GetParent(window) != user.Sheet())
                window = ::GetParent(window);
            return window;
        };
        for (int page = 0; page < sheet->GetPageCount(); ++page) {
            user.SelectPage(page);
            std::set<HWND> wanted = {::GetDlgItem(user.Sheet(), IDOK), sheet->GetTabControl()->m_hWnd};
            for (HWND child = ::GetWindow(user.Page(), GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
                const bool label = ::SendMessageA(child, WM_GETDLGCODE, 0, 0) & DLGC_STATIC;
                const bool usable = ::IsWindowVisible(child) && ::IsWindowEnabled(child);
                if (usable && !label) wanted.insert(child);
            }
            for (const bool back : {false, true}) {
                std::set<HWND> left = wanted;
                const HWND start = focused();
                int steps = 0;
                do {
                    ASSERT_LT(++steps, 40);
                    left.erase(focused());
                    for (int i = 0; i < 3 && ::SendMessageA(focused(), WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON; ++i) {
                        user.Key(VK_DOWN);
                        left.erase(focused());
                    }
                    const HWND before = focused();
                    user.Key(VK_TAB, back);
                    ASSERT_NE(before, focused()) << page << " " << back << " " << ::GetDlgCtrlID(before);
                } while (focused() != start);
                for (const HWND missed : left)
                    ADD_FAILURE() << page << " " << back << " " << ::GetDlgCtrlID(missed);
            }
        }
    });
}

bool IsGroupBox(HWND window) {
    return (::SendMessageA(window, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) && IsOfClass(window, "Button");
}

TEST_F(AllPages, ControlsStayInsideTheLinesOfTheirGroups) {
    constexpr int kLine = 2;
    kinds.Select(kEverything);
    const auto sheet = kinds.NewSheet();
    SheetDriver().Run(*sheet, [&](SheetDriver& user) {
        int inside = 0;
        for (int page = 0; page < sheet->GetPageCount(); ++page) {
            user.SelectPage(page);
            ForEachChild(user.Page(), [&](HWND group) {
                if (!IsGroupBox(group)) return;
                const RECT lines = PlaceIn(user.Page(), group);
                ForEachChild(user.Page(), [&](HWND child) {
                    const RECT place = PlaceIn(user.Page(), child);
                    const bool starts = ::PtInRect(&lines, {place.left, place.top});
                    if (child == group || ::GetParent(child) != user.Page() || !starts) return;
                    ++inside;
                    EXPECT_LT(place.right, lines.right - kLine) << page << " " << ::GetDlgCtrlID(child);
                });
            });
        }
        EXPECT_LT(40, inside);
    });
}

TEST_F(AllPages, InvalidValueKeepsPageFocusAndText) {
    struct {
        int page, control;
        const char* text;
    } const rows[] = {{1, IDC_PEN_SCALE, "thick"},
                      {2, IDC_BRUSH_SCALE, "wide"},
                      {3, IDC_FONT_SIZE, "-4"},
                      {4, IDC_SCALE_X, "5000"},
                      {4, IDC_POSITION_X, "far"}};
    kinds.Select(kEverything);
    const DrawingState before = State();
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        auto sheet = kinds.NewSheet();
        SheetDriver().Run(*sheet, [&](SheetDriver& user) {
            const MessageBoxWatcher boxes;
            user.SelectPage(row.page);
            user.Type(row.control, row.text);
            user.SelectPage(0);
            EXPECT_EQ(row.page, user.ActivePage());
            EXPECT_EQ(row.text, user.Text(row.control));
            const HWND focus = ::GetFocus();
            EXPECT_TRUE(focus == user.Control(row.control) || ::IsChild(user.Control(row.control), focus));
            EXPECT_FALSE(boxes.Boxes().empty());
        });
        sheet.reset();
        ExpectUnchanged(before);
    }
}

TEST_F(AllPages, FiveHundredSheetsLeakNothing) {
    kinds.Select(kEverything);
    const auto openAndClose = [&] {
        const auto sheet = kinds.NewSheet();
        SheetDriver().Run(*sheet, [&](SheetDriver&) {
            for (int page = 1; page < sheet->GetPageCount(); ++page)
                sheet->SetActivePage(page);
        });
    };
    for (int i = 0; i < 3; ++i)
        openAndClose();
    const DrawingState before = State();
    DrawCoreObjectCounts held, now;
    ::DrawCoreGetObjectCounts(&held);
    const int gdi = GdiObjectCount(), windows = UserObjectCount();
    for (int i = 0; i < 500; ++i)
        openAndClose();
    ::DrawCoreGetObjectCounts(&now);
    EXPECT_EQ(gdi, GdiObjectCount());
    EXPECT_EQ(windows, UserObjectCount());
    EXPECT_EQ(held.blocks, now.blocks);
    EXPECT_EQ(held.graphics, now.graphics);
    EXPECT_EQ(held.vertices, now.vertices);
    EXPECT_EQ(held.viewports, now.viewports);
    ExpectUnchanged(before);
}

} // namespace
