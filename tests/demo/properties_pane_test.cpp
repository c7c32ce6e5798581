// The properties pane beside the drawing: follows the selection, writes on Apply, and never loses typed text.

#include "demo/automation/control_text.h"
#include "demo/automation/sheet_pages.h"
#include "demo/viewer.h"
#include "demo/viewer/resource.h"
#include "drawcore/layer.h"
#include "orlo/host/graphic.h"
#include "orlo/host/property.h"
#include "orlo/resources/resource.h"
#include "orlo/win/gdi.h"
#include "support/message_box_watcher.h"
#include "support/object_counts.h"

namespace {

class Pane : public Viewer {
protected:
    Pane() {
        user.Key(VK_TAB); // the red line
        user.Key(VK_F4);
    }

    HWND pane() { return frame->Pane().m_hWnd; }
    HWND sheet() { return ::FindWindowExA(pane(), nullptr, "#32770", nullptr); }
    HWND control(int id) { return ::GetDlgItem(ActivePageOf(sheet()), id); }
    int focused() { return ::GetDlgCtrlID(::GetFocus()); }
    void ShowPen() { ASSERT_TRUE(ClickTab(user, sheet(), 1)); }
    void FocusByTab(int id) {
        for (int i = 0; i < 20 && focused() != id; ++i)
            user.Key(VK_TAB);
        ASSERT_EQ(focused(), id);
    }
    void TypeScale(const std::string& text) { user.Replace(control(IDC_PEN_SCALE), text); }
    double ScaleOf(size_t graphic) {
        return *orlo::host::ReadProperty<double>(document().Selectable()[graphic], kPropPenScale);
    }
    void ClickOnGreen() { user.Click(view(), Pixel(10, 35)); }
};

TEST_F(Pane, ApplyByKeysIsOneStepForAllPages) {
    const DrawingState before = Properties();
    EXPECT_EQ(::GetFocus(), view()) << "the drawing keeps the focus";
    user.Key(VK_F6);
    ASSERT_TRUE(::IsChild(pane(), ::GetFocus()));
    FocusByTab(IDC_INFO);
    user.Type("Wall");
    user.Key(VK_TAB, UserInput::kControl);
    FocusByTab(IDC_COLOR);
    user.Keys(VK_DOWN, 3);
    user.Key(VK_RETURN);
    EXPECT_EQ(before.ChangesTo(Properties()).size(), 2u);
    EXPECT_EQ(document().UndoSteps(), 1);
    EXPECT_EQ(focused(), IDC_COLOR) << "the sheet stays open and keeps the focus";
    user.Key(VK_F6);
    EXPECT_EQ(::GetFocus(), view());
    user.Key('Z', UserInput::kControl);
    EXPECT_TRUE(before == Properties());
    user.Wait(0);
    ASSERT_TRUE(ClickTab(user, sheet(), 0));
    EXPECT_EQ(WindowText(control(IDC_INFO)), "") << "the pane shows the undone value";
}

TEST_F(Pane, SelectingAppliesTypedText) {
    ShowPen();
    TypeScale("2.5");
    ClickOnGreen();
    EXPECT_EQ(ScaleOf(0), 2.5);
    EXPECT_EQ(ScaleOf(1), 1);
    EXPECT_EQ(document().UndoSteps(), 1);
    EXPECT_EQ(SheetOf(sheet()).GetActiveIndex(), 1) << "the new sheet is on the same page";
    EXPECT_EQ(WindowText(control(IDC_PEN_SCALE)), "1");
    TypeScale("4");
    EXPECT_EQ(ScaleOf(0), 2.5);
    user.Click(::GetDlgItem(sheet(), IDOK));
    EXPECT_EQ(ScaleOf(1), 4);
    EXPECT_EQ(ScaleOf(0), 2.5);
}

TEST_F(Pane, PageIsRestoredAfterAnEmptySelection) {
    ShowPen();
    user.Key(VK_ESCAPE); // nothing is selected
    user.Wait(0);
    user.Key(VK_TAB);
    user.Wait(0);
    EXPECT_EQ(SheetOf(sheet()).GetActiveIndex(), 1);
    user.Key(VK_F4);
    user.Key(VK_F4);
    EXPECT_EQ(SheetOf(sheet()).GetActiveIndex(), 1) << "closed and opened";
}

TEST_F(Pane, InvalidTextKeepsSelectionAndFocus) {
    ShowPen();
    TypeScale("0");
    const DrawingState before = Properties();
    const auto rejects = [&](const char* action, const std::function<void()>& act) {
        MessageBoxWatcher boxes;
        act();
        EXPECT_EQ(boxes.Boxes().size(), 1u) << action;
        EXPECT_EQ(focused(), IDC_PEN_SCALE) << action;
        EXPECT_EQ(selection().Members(), std::vector<GraphicStruct*>{document().Selectable()[0]}) << action;
        EXPECT_EQ(WindowText(control(IDC_PEN_SCALE)), "0") << action;
    };
    rejects("Enter", [&] { user.Key(VK_RETURN); });
    rejects("another page", [&] { user.Key(VK_TAB, UserInput::kControl); });
    rejects("another graphic", [&] { ClickOnGreen(); });
    rejects("the pane's end", [&] { ::SendMessageA(frame->m_hWnd, WM_COMMAND, ID_VIEW_PROPERTIES, 0); });
    rejects("the window's end", [&] { ::SendMessageA(frame->m_hWnd, WM_CLOSE, 0, 0); });
    user.Key(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), view());
    EXPECT_EQ(WindowText(control(IDC_PEN_SCALE)), "1");
    ClickOnGreen();
    EXPECT_TRUE(selection().Contains(document().Selectable()[1]));
    EXPECT_TRUE(before == Properties());
}

TEST_F(Pane, ResetUndoesToTheLastApply) {
    ShowPen();
    TypeScale("4/2");
    user.Key(VK_RETURN);
    EXPECT_EQ(WindowText(control(IDC_PEN_SCALE)), "2") << "the written value";
    TypeScale("3");
    user.Key(VK_TAB, UserInput::kControl); // leaving the page writes
    EXPECT_EQ(ScaleOf(0), 3);
    user.Click(::GetDlgItem(sheet(), kPaneReset));
    EXPECT_EQ(ScaleOf(0), 2);
    EXPECT_EQ(document().UndoSteps(), 1);
}

TEST_F(Pane, ClosingAppliesAsAnUndoStep) {
    ShowPen();
    TypeScale("2");
    user.Click(::GetDlgItem(sheet(), kPaneClose));
    EXPECT_FALSE(::IsWindowVisible(pane()));
    EXPECT_EQ(ScaleOf(0), 2);
    user.Key(VK_F4);
    ShowPen();
    TypeScale("3");
    MessageBoxWatcher boxes(IDCANCEL);
    ::SendMessageA(frame->m_hWnd, WM_CLOSE, 0, 0);
    EXPECT_EQ(boxes.OnlyText().find("Save the changes"), 0u);
    EXPECT_EQ(ScaleOf(0), 3);
    EXPECT_EQ(document().UndoSteps(), 2);
}

// The modal sheet has its own undo step, whatever was edited in the pane.
TEST_F(Pane, CommitsItsStepBeforeTheModalSheet) {
    ShowPen();
    TypeScale("2");
    user.Key(VK_TAB, UserInput::kControl); // leaving the page writes
    for (const UINT end : {VK_ESCAPE, VK_RETURN}) {
        user.InDialog(
            [&] {
                user.MoveFocus(view());
                user.Key(VK_RETURN, UserInput::kAlt);
            },
            [&](HWND modal) {
                EXPECT_FALSE(::IsWindowEnabled(frame->m_hWnd)) << "the pane too";
                ASSERT_TRUE(ClickTab(user, modal, 1));
                const HWND scale = ::GetDlgItem(ActivePageOf(modal), IDC_PEN_SCALE);
                EXPECT_EQ(WindowText(scale), "2");
                user.Replace(scale, "5");
                user.Key(end);
            });
        EXPECT_EQ(ScaleOf(0), end == VK_RETURN ? 5 : 2);
        EXPECT_EQ(document().UndoSteps(), end == VK_RETURN ? 2 : 1);
    }
    ShowPen();
    EXPECT_EQ(WindowText(control(IDC_PEN_SCALE)), "5");
}

TEST_F(Pane, ClosesWithItsDrawingAndReopensForTheNext) {
    user.Key('A', UserInput::kControl);
    ASSERT_TRUE(frame->Open(TEST_DATA "/dxf/kabeja-draft4-roof-details.dxf"));
    user.Wait(0);
    EXPECT_FALSE(::IsWindowVisible(sheet())) << "nothing is selected";
    user.Key(VK_TAB);
    EXPECT_TRUE(::IsWindowVisible(sheet()));
}

// In the status bar for the focused field, and in a tooltip for the field under the pointer, with the same text.
TEST_F(Pane, ShowsTheValuesThatDiffer) {
    document().Change([&] { ::GraphicSetPenWidth(document().Selectable()[1], 10 / 25.4); });
    user.Key('A', UserInput::kControl);
    const auto message = [&] {
        char text[256] = "";
        ::SendMessageA(::GetDlgItem(frame->m_hWnd, IDC_STATUS), SB_GETTEXTA, 0, reinterpret_cast<LPARAM>(text));
        return std::string(text);
    };
    const auto tip = [&](HWND over) {
        ::PostMessageA(over, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        user.Wait(0);
        HWND tips = nullptr;
        while ((tips = ::FindWindowExA(nullptr, tips, TOOLTIPS_CLASSA, nullptr)) != nullptr) {
            char text[256] = "";
            TOOLINFOA tool = {};
            tool.cbSize = TTTOOLINFOA_V1_SIZE;
            tool.uFlags = TTF_IDISHWND;
            tool.uId = reinterpret_cast<UINT_PTR>(over);
            tool.lpszText = text;
            ::SendMessageA(tips, TTM_GETTEXTA, sizeof text, reinterpret_cast<LPARAM>(&tool));
            if (::GetWindow(tips, GW_OWNER) == frame->m_hWnd) return std::string(text);
        }
        return std::string("no tips");
    };
    user.Key(VK_F6);
    user.Key(VK_TAB, UserInput::kControl);
    user.MoveFocus(control(IDC_PEN_WIDTH)); // its edit field
    user.Key(VK_END);
    EXPECT_EQ(message(), " Width: 2 x 0 mm, 1 x 10 mm");
    EXPECT_EQ(tip(control(IDC_COLOR)), "Color: 1 x Red, 1 x Green, 1 x Yellow and 1 more");
    EXPECT_EQ(tip(control(IDC_PEN_SCALE)), "Dash scale: 3 x 1");
    EXPECT_EQ(tip(control(IDC_PEN_WIDTH_LABEL)), "");
    ASSERT_TRUE(ClickTab(user, sheet(), 3));
    EXPECT_EQ(tip(control(IDC_TEXT_COLOR)), "Color: 1 x Red, 1 x Green, 1 x Yellow and 1 more");
    user.Click(view(), Pixel(26, 31)); // the text
    user.Wait(0);
    ASSERT_TRUE(ClickTab(user, sheet(), 1));
    EXPECT_EQ(tip(control(IDC_TEXT_COLOR)), "Color: 1 x By Layer (White)");
    EXPECT_EQ(tip(control(IDC_UNDERLINE)), "Underline: 1 x Off");
    EXPECT_EQ(tip(control(IDC_JUSTIFY_CENTER)), "Justification: 1 x Left");
    EXPECT_EQ(tip(control(IDC_FONT_SIZE)), "Height: 1 x 4");
    user.Replace(control(IDC_FONT_SIZE), "5");
    user.Key(VK_RETURN);
    EXPECT_EQ(tip(control(IDC_FONT_SIZE)), "Height: 1 x 5") << "the pointer has not moved since";
}

TEST_F(Pane, PreviewUsesTheColorOfTheLayer) {
    constexpr COLORREF kGreen = RGB(0, 255, 0);
    constexpr int kPreview = 3999;
    const auto layer = orlo::host::ReadProperty<uint16_t>(document().Selectable()[3], kPropLayer);
    ASSERT_TRUE(::LayerSet(document().Drawing(), *layer, kGreen, 0, 0));
    const auto green = [&] {
        user.Wait(0);
        const HWND preview = ::GetDlgItem(sheet(), kPreview);
        const orlo::WindowDC dc(preview);
        CRect client;
        ::GetClientRect(preview, client);
        int count = 0;
        for (int y = 0; y < client.bottom; ++y)
            for (int x = 0; x < client.right; ++x)
                count += ::GetPixel(dc.get(), x, y) == kGreen;
        return count;
    };
    user.Click(view(), Pixel(26, 31)); // the text
    user.Wait(0);
    ASSERT_TRUE(ClickTab(user, sheet(), 1));
    EXPECT_GT(green(), 10);
    user.MoveFocus(view());
    user.Key('A', UserInput::kControl); // on two layers
    user.Wait(0);
    ASSERT_TRUE(ClickTab(user, sheet(), 3));
    EXPECT_EQ(green(), 0);
}

TEST_F(Pane, FiftySelectionsLeakNothing) {
    const auto walk = [&](int count) {
        for (int i = 0; i < count; ++i) {
            user.MoveFocus(view());
            user.Key(VK_TAB);
            ClickTab(user, sheet(), i % 2);
        }
    };
    walk(4);
    const int gdi = GdiObjectCount(), objects = UserObjectCount();
    walk(48);
    EXPECT_EQ(GdiObjectCount(), gdi);
    EXPECT_EQ(UserObjectCount(), objects);
}

} // namespace
