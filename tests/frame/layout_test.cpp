// The layout of a sheet in pixels, and the frame that it paints.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "orlo/win/child_windows.h"
#include "orlo/win/gdi.h"
#include "support/test_sheet.h"

namespace {

constexpr int kPreviewId = 3999, kHelpId = 0xE145, kApplyId = 0xEA00;
constexpr UINT kPainted = 0x58D;
constexpr int kFrame = 3; // pixels around the page

CRect ClientOf(HWND window) {
    CRect client;
    ::GetClientRect(window, client);
    return client;
}

class WantingPage : public CGraphicPropertyPage {
public:
    explicit WantingPage(CSize wanted) : CGraphicPropertyPage(kTestPage, 0) { m_sizeWanted = wanted; }
};

// A sheet with only the pages of the test.
class Layout {
public:
    explicit Layout(unsigned pageTemplate = kTestPage) {
        CPropertyPage* general = Sheet().GetPage(0);
        Sheet().RemovePage(0);
        delete general;
        m_sheet.Add([](CDataExchange*) {}, pageTemplate);
    }

    void Run(SheetDriver::Script script) { SheetDriver().Run(Sheet(), std::move(script)); }
    CGraphicPropertySheet& Sheet() { return m_sheet.Sheet(); }
    HWND Window() { return Sheet().m_hWnd; }
    CRect Page() { return PlaceIn(Window(), Sheet().GetActivePage()->m_hWnd); }
    CRect Tabs() { return PlaceIn(Window(), Sheet().GetTabControl()->m_hWnd); }
    CRect Child(int id) { return PlaceIn(Window(), ::GetDlgItem(Window(), id)); }
    CSize Client() { return ClientOf(Window()).Size(); }
    CSize Pixels(int x, int y) { // of dialog units
        CRect rect(0, 0, x, y);
        ::MapDialogRect(Sheet().GetActivePage()->m_hWnd, rect);
        return rect.Size();
    }

private:
    GraphicKit m_kit;
    TestSheet m_sheet{m_kit};
};

int PreviewSize() {
    const orlo::WindowDC screen(nullptr);
    return ::MulDiv(100, ::GetDeviceCaps(screen.get(), LOGPIXELSY), 96);
}

// The second template has a larger font, whose buttons are wider than the preview. The width of Cancel is
// set by a string of this program (frame_test.rc).
TEST(SheetLayout, PlacesPageButtonsAndPreviewByTheUnitsOfThePage) {
    for (const unsigned pageTemplate : {kTestPage, kLargePage}) {
        SCOPED_TRACE(pageTemplate);
        Layout layout(pageTemplate);
        layout.Run([&](SheetDriver&) {
            const CSize page = layout.Pixels(200, 160), margin = layout.Pixels(4, 4), button = layout.Pixels(50, 14);
            const int wideButton = layout.Pixels(60, 0).cx, preview = PreviewSize(), gap = margin.cx;
            const int column = std::max<int>(preview + margin.cx + kFrame, button.cx + margin.cx);
            const CRect tabs = layout.Tabs();
            const int width = page.cx + 2 * margin.cx + kFrame + column, right = width - 2 * margin.cx;
            EXPECT_EQ(layout.Client(), CSize(width, tabs.Height() + page.cy + 2 * margin.cy + kFrame + 1));
            EXPECT_EQ(tabs, CRect(CPoint(margin.cx, margin.cy), CSize(right, tabs.Height())));
            EXPECT_EQ(layout.Page(),
                      CRect(CPoint(margin.cx + 1, tabs.Height() + margin.cy), CSize(page.cx + kFrame, page.cy)));
            CPoint place(right - wideButton, tabs.Height() + 2 * margin.cy);
            for (const int id : {IDOK, IDCANCEL, kHelpId}) {
                EXPECT_EQ(layout.Child(id), CRect(place, CSize(id == IDCANCEL ? wideButton : button.cx, button.cy)))
                    << id;
                place.y += button.cy + gap;
            }
            EXPECT_EQ(layout.Child(kPreviewId),
                      CRect(right - preview, tabs.Height() + page.cy - preview, right, tabs.Height() + page.cy));
            EXPECT_EQ(::GetDlgItem(layout.Window(), kApplyId), nullptr);
        });
    }
}

TEST(SheetLayout, AHiddenButtonTakesNoRoom) {
    Layout layout;
    layout.Run([&](SheetDriver&) {
        const int top = layout.Child(IDCANCEL).top;
        ::ShowWindow(::GetDlgItem(layout.Window(), IDCANCEL), SW_HIDE);
        layout.Sheet().RecalcLayout();
        const CSize button = layout.Pixels(50, 14);
        const int right = layout.Client().cx - 2 * layout.Pixels(4, 0).cx;
        EXPECT_EQ(layout.Child(kHelpId), CRect(CPoint(right - button.cx, top), button)) << "narrower than Cancel";
    });
}

// A page that is opened later gets the position of the first.
TEST(SheetLayout, AllPagesHaveOnePlace) {
    Layout layout;
    layout.Sheet().AddPage(new WantingPage({}));
    layout.Run([&](SheetDriver& user) {
        const CRect first = layout.Page();
        user.SelectPage(1);
        EXPECT_EQ(layout.Page(), first);
    });
}

TEST(SheetLayout, OpensAsLargeAsThePageThatWantsMost) {
    Layout layout;
    for (const CSize wanted : {CSize(100, 190), CSize(230, 100), CSize()})
        layout.Sheet().AddPage(new WantingPage(wanted));
    layout.Run([&](SheetDriver&) {
        const CSize wanted = layout.Pixels(230, 190);
        EXPECT_EQ(layout.Page().Size(), CSize(wanted.cx + kFrame, wanted.cy));
        CRect window;
        ::GetWindowRect(layout.Window(), window);
        const CRect screen(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
        EXPECT_LE(std::abs(window.CenterPoint().x - screen.CenterPoint().x), 1);
        EXPECT_LE(std::abs(window.CenterPoint().y - screen.CenterPoint().y), 1);
    });
}

TEST(SheetLayout, IsNoLargerThanTheScreenWithRoomForABar) {
    const struct {
        CSize wanted;
        bool tall, wide; // larger than the screen
    } rows[] = {{{210, 4000}, true, false}, {{4000, 170}, false, true}, {{4000, 4000}, true, true}};
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        Layout layout;
        layout.Sheet().AddPage(new WantingPage(row.wanted));
        layout.Run([&](SheetDriver&) {
            CRect window, workArea;
            ::GetWindowRect(layout.Window(), window);
            ::SystemParametersInfoA(SPI_GETWORKAREA, 0, workArea, 0);
            const CSize wanted = layout.Pixels(row.wanted.cx, row.wanted.cy);
            if (row.tall)
                EXPECT_EQ(window.Height(), workArea.Height());
            else
                EXPECT_EQ(layout.Page().Height(), wanted.cy);
            if (row.wide)
                EXPECT_EQ(window.Width(), workArea.Width());
            else
                EXPECT_EQ(layout.Page().Width(), wanted.cx + ::GetSystemMetrics(SM_CXVSCROLL) + kFrame);
        });
    }
}

// Returns whether all pixels from one point to the other, along a row or a column, have the color.
bool IsLine(HDC dc, CPoint from, CPoint to, int systemColor) {
    const COLORREF color = ::GetSysColor(systemColor);
    for (int y = from.y; y <= to.y; ++y)
        for (int x = from.x; x <= to.x; ++x)
            if (::GetPixel(dc, x, y) != color) return false;
    return true;
}

// A highlight at the left, a shadow and a dark line at the lower right, around the page and the column. The tabs
// are above it.
TEST(SheetFrame, SurroundsPageAndColumn) {
    Layout layout;
    layout.Run([&](SheetDriver& user) {
        user.Pump();
        const CRect page = layout.Page();
        const int left = page.left - 1, top = page.top, bottom = page.bottom + 1;
        const int right = layout.Client().cx - layout.Pixels(4, 4).cy + 1;
        const orlo::WindowDC dc(layout.Window());
        EXPECT_TRUE(IsLine(dc.get(), {left, top}, {left, bottom - 1}, COLOR_BTNHIGHLIGHT));
        EXPECT_TRUE(IsLine(dc.get(), {left, bottom}, {right - 1, bottom}, COLOR_BTNSHADOW));
        EXPECT_TRUE(IsLine(dc.get(), {right - 1, top}, {right - 1, bottom}, COLOR_BTNSHADOW));
        EXPECT_TRUE(IsLine(dc.get(), {left, bottom + 1}, {right, bottom + 1}, COLOR_BTNTEXT));
        EXPECT_TRUE(IsLine(dc.get(), {right, top}, {right, bottom + 1}, COLOR_BTNTEXT));
    });
}

TEST(SheetFrame, TellsTheHostOfEachPaint) {
    Layout layout;
    layout.Run([&](SheetDriver& user) {
        user.Pump();
        ::InvalidateRect(layout.Window(), nullptr, TRUE);
        ::UpdateWindow(layout.Window());
        MSG message = {};
        ASSERT_TRUE(::PeekMessageA(&message, layout.Window(), kPainted, kPainted, PM_REMOVE));
        EXPECT_EQ(message.wParam, 0u);
        EXPECT_EQ(reinterpret_cast<HWND>(message.lParam), ::GetDlgItem(layout.Window(), kPreviewId));
    });
}

} // namespace
