// Settings that the viewer stores, and parts of the window that the user sizes.

#include <commctrl.h>

#include <memory>

#include "demo/automation/control_text.h"
#include "demo/automation/sheet_pages.h"
#include "demo/viewer.h"
#include "demo/viewer/resource.h"
#include "demo/viewer/settings.h"
#include "drawcore/application.h"
#include "orlo/host/application.h"
#include "orlo/host/table.h"
#include "orlo/resources/resource.h"

namespace {

class SavedSettings : public Viewer {
protected:
    void Do(UINT command) {
        ::SendMessageA(frame->m_hWnd, WM_COMMAND, command, 0);
        user.Wait(0);
    }
    // Starts the next session.
    void Restart() {
        const CRect place = Place(frame->m_hWnd);
        frame->DestroyWindow();
        frame = new CMainFrame;
        ASSERT_TRUE(frame->Create());
        AfxGetThread()->m_pMainWnd = frame;
        frame->ShowFirst(SW_SHOWNORMAL);
        frame->Open(file.Path());
        user.MoveFocus(frame->View().m_hWnd);
        user.Wait(0);
        EXPECT_EQ(Place(frame->m_hWnd), place);
    }
    static CRect Place(HWND window) {
        CRect place;
        ::GetWindowRect(window, place);
        return place;
    }
    HWND pane() { return frame->Pane().m_hWnd; }
    HWND sheet() { return ::FindWindowExA(pane(), nullptr, "#32770", nullptr); }
    void DragSplitter(int pixels) {
        const HWND bar = ::GetDlgItem(frame->m_hWnd, IDC_SPLITTER);
        const CPoint from(2, 50), to(2 + pixels, 50);
        ::SendMessageA(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.x, from.y));
        ::SendMessageA(bar, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to.x, to.y));
        // The splitter has moved along.
        ::SendMessageA(bar, WM_LBUTTONUP, 0, MAKELPARAM(from.x, from.y));
        user.Wait(0);
    }
};

TEST_F(SavedSettings, BackgroundWeightsPaneAndPositionAreRestored) {
    Do(ID_VIEW_LIGHT_BACKGROUND);
    Do(ID_VIEW_LINE_WEIGHTS);
    user.Key(VK_TAB);
    Do(ID_VIEW_PROPERTIES);
    ASSERT_TRUE(ClickTab(user, sheet(), 2));
    DragSplitter(-60);
    const int width = Place(pane()).Width();
    frame->MoveWindow(40, 30, 900, 600);
    Restart();
    EXPECT_EQ(frame->View().Background(), CDrawingView::kLightBackground);
    EXPECT_FALSE(frame->View().ShowsLineWeights());
    ASSERT_TRUE(frame->Pane().IsOpen());
    EXPECT_EQ(Place(pane()).Width(), width);
    user.Key(VK_TAB);
    user.Wait(0);
    EXPECT_EQ(SheetOf(sheet()).GetActiveIndex(), 2);
    user.InDialog([&] { user.Key(VK_RETURN, UserInput::kAlt); },
                  [&](HWND modal) {
                      EXPECT_EQ(SheetOf(modal).GetActiveIndex(), 2) << "the modal sheet too";
                      user.Key(VK_ESCAPE);
                  });
}

TEST_F(SavedSettings, SystemColorModeIsUsedUntilTheUserSelectsOne) {
    EXPECT_EQ(frame->View().Background(), CDrawingView::kDarkBackground);
    constexpr const char* kScheme = R"(Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)";
    const auto setLight = [&](DWORD light) {
        ::RegSetKeyValueA(HKEY_CURRENT_USER, kScheme, "AppsUseLightTheme", REG_DWORD, &light, sizeof light);
        ::SendMessageA(frame->m_hWnd, WM_SETTINGCHANGE, 0, 0);
    };
    setLight(1);
    EXPECT_EQ(frame->View().Background(), CDrawingView::kLightBackground);
    Do(ID_VIEW_DARK_BACKGROUND);
    setLight(1);
    EXPECT_EQ(frame->View().Background(), CDrawingView::kDarkBackground);
    ::RegDeleteKeyValueA(HKEY_CURRENT_USER, kScheme, "AppsUseLightTheme");
}

TEST_F(SavedSettings, PaneHasAMinimumWidthAndScrollsToTheFocus) {
    user.Key(VK_TAB);
    Do(ID_VIEW_PROPERTIES);
    const int fitting = Place(pane()).Width();
    DragSplitter(2000);
    const int smallest = Place(pane()).Width();
    EXPECT_GE(smallest, 100);
    EXPECT_LT(smallest, fitting);
    frame->MoveWindow(0, 0, 600, 260);
    EXPECT_NE(::GetWindowLongA(pane(), GWL_STYLE) & WS_HSCROLL, 0);
    EXPECT_NE(::GetWindowLongA(pane(), GWL_STYLE) & WS_VSCROLL, 0);
    frame->Pane().TakeFocus();
    const CRect before = Place(sheet());
    for (int i = 0; i < 12; ++i) {
        user.Key(VK_TAB);
        user.Key(VK_SHIFT); // a message that follows it
        CRect seen = Place(::GetFocus()), client;
        ::GetClientRect(pane(), client);
        ::MapWindowPoints(pane(), nullptr, reinterpret_cast<POINT*>(&client), 2);
        EXPECT_TRUE(seen.IntersectRect(seen, client)) << i;
    }
    EXPECT_NE(Place(sheet()), before);
    DragSplitter(-2000);
    EXPECT_GE(Place(view()).Width(), 100) << "the drawing keeps some space";
}

TEST_F(SavedSettings, AFittedDrawingIsFittedAgainUntilItIsMoved) {
    for (const int width : {700, 900}) {
        frame->MoveWindow(0, 0, width, 500);
        CRect client;
        ::GetClientRect(view(), client);
        const WorldPoint center = document().Extents()->Center();
        EXPECT_NEAR(Pixel(center.x, center.y).x, client.CenterPoint().x, 1) << width;
    }
    user.Key(VK_ADD);
    const WorldPoint corner = frame->View().GetCamera().ToWorld(CPoint(10, 10));
    frame->MoveWindow(0, 0, 700, 500);
    frame->MoveWindow(0, 0, 900, 500);
    EXPECT_NEAR(frame->View().GetCamera().ToWorld(CPoint(10, 10)).x, corner.x, 1e-6);
}

TEST_F(SavedSettings, DecimalMarkIsTheSystemsOrTheUsers) {
    const auto mark = [] {
        char text[4] = "";
        ::TableGetStringVar(::AppGetCurrentApp()->pVariables, kVarDecimalMark, text, sizeof text);
        return std::string(text);
    };
    EXPECT_EQ(mark(), ".");
    user.Key(VK_TAB);
    Do(ID_VIEW_PROPERTIES);
    ASSERT_TRUE(ClickTab(user, sheet(), 1));
    user.Replace(::GetDlgItem(ActivePageOf(sheet()), IDC_PEN_SCALE), "2.5");
    Do(ID_VIEW_MARK_COMMA);
    EXPECT_EQ(mark(), ",");
    EXPECT_EQ(WindowText(::GetDlgItem(ActivePageOf(sheet()), IDC_PEN_SCALE)), "2,5")
        << "typed text has been applied first";
    char before[8] = "";
    ::GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, before, sizeof before);
    ::SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, ",");
    Do(ID_VIEW_MARK_POINT);
    EXPECT_EQ(mark(), ".");
    Do(ID_VIEW_MARK_SYSTEM);
    EXPECT_EQ(mark(), ",");
    ::SetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, before);
    Do(ID_VIEW_MARK_SYSTEM);
    EXPECT_EQ(mark(), ".");
}

// Shortcuts of the main window work in the pane, except for keys that a field needs.
TEST_F(SavedSettings, WindowShortcutsWorkInThePane) {
    user.Key(VK_TAB);
    Do(ID_VIEW_PROPERTIES);
    ASSERT_TRUE(ClickTab(user, sheet(), 1));
    const auto scale = [&] { return ::GetDlgItem(ActivePageOf(sheet()), IDC_PEN_SCALE); };
    user.MoveFocus(scale());
    user.Key('W', UserInput::kControl);
    EXPECT_FALSE(frame->View().ShowsLineWeights());
    user.Replace(scale(), "3");
    user.Key('Z', UserInput::kControl);
    EXPECT_EQ(document().UndoSteps(), 0) << "the field's own";
    user.Replace(scale(), "3");
    user.Key(VK_RETURN);
    ASSERT_EQ(document().UndoSteps(), 1);
    ::SendMessageA(::GetFocus(), EM_EMPTYUNDOBUFFER, 0, 0);
    user.Key('Z', UserInput::kControl);
    EXPECT_EQ(document().UndoSteps(), 0);
    user.Wait(0);
    frame->Pane().TakeFocus();
    user.Key('Y', UserInput::kControl);
    EXPECT_EQ(document().UndoSteps(), 1);
}

std::string g_menuLetters; // letters that have opened the menu

LRESULT CALLBACK NoteMenuKey(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    if (message == WM_SYSCOMMAND && (wParam & 0xFFF0) == SC_KEYMENU) {
        g_menuLetters += static_cast<char>(lParam);
        return 0;
    }
    return ::DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(SavedSettings, MenuMnemonicsWorkInThePane) {
    user.Click(view(), Pixel(26, 31)); // the text
    Do(ID_VIEW_PROPERTIES);
    user.Wait(0);
    ASSERT_TRUE(ClickTab(user, sheet(), 1)); // the Text page, whose groups also have mnemonics
    frame->Pane().TakeFocus();
    const HWND field = ::GetFocus();
    ::SetWindowSubclass(frame->m_hWnd, NoteMenuKey, 1, 0);
    g_menuLetters.clear();
    for (const char letter : {'h', 'e', 'f', 's', 'v'}) {
        user.Mnemonic(letter);
        EXPECT_EQ(::GetFocus(), field) << letter;
    }
    EXPECT_EQ(g_menuLetters, "hefsv");
    user.Mnemonic('j'); // only on the page
    EXPECT_NE(::GetFocus(), field);
    ::RemoveWindowSubclass(frame->m_hWnd, NoteMenuKey, 1);
}

std::string StatusText(HWND frame, int pane) {
    char text[512] = "";
    ::SendMessageA(::GetDlgItem(frame, IDC_STATUS), SB_GETTEXTA, static_cast<WPARAM>(pane),
                   reinterpret_cast<LPARAM>(text));
    return text;
}

TEST_F(SavedSettings, StatusBarReportsTextThatIsNotALength) {
    user.Key(VK_TAB);
    const auto play = [&](HWND over) {
        ASSERT_TRUE(ClickTab(user, over, 1));
        user.Replace(::GetDlgItem(ActivePageOf(over), IDC_PEN_WIDTH), "1;5");
        user.Key(VK_END);
        EXPECT_EQ(StatusText(frame->m_hWnd, 0), " Width: \"1;5\" is not a length");
        ::SendMessageA(::GetFocus(), EM_SETSEL, 0, -1);
        user.Type("1.5");
        user.Key(VK_END);
        EXPECT_EQ(StatusText(frame->m_hWnd, 0), " Width: 1 x 0 mm");
    };
    Do(ID_VIEW_PROPERTIES);
    play(sheet());
    user.Key(VK_ESCAPE);
    Do(ID_VIEW_PROPERTIES);
    user.InDialog([&] { user.Key(VK_RETURN, UserInput::kAlt); },
                  [&](HWND modal) {
                      play(modal);
                      user.Key(VK_ESCAPE);
                  });
}

// Texts are abbreviated if they are wider than the bar, and end in an ellipsis if they still are.
TEST_F(SavedSettings, StatusBarTruncatesOnlyWithAnEllipsis) {
    const HWND bar = ::GetDlgItem(frame->m_hWnd, IDC_STATUS);
    const auto expectWhole = [&](int pane) {
        CRect place;
        ::SendMessageA(bar, SB_GETRECT, static_cast<WPARAM>(pane), reinterpret_cast<LPARAM>(&place));
        const orlo::WindowDC dc(bar);
        const orlo::SelectedObject font(dc.get(), reinterpret_cast<HFONT>(::SendMessageA(bar, WM_GETFONT, 0, 0)));
        const std::string text = StatusText(frame->m_hWnd, pane);
        SIZE size = {};
        ::GetTextExtentPoint32A(dc.get(), text.c_str(), static_cast<int>(text.size()), &size);
        EXPECT_GE(place.Width(), size.cx) << text;
    };
    frame->View().SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(100, 100));
    user.Key('A', UserInput::kControl);
    for (const auto& [width, kinds] : {std::pair(1000, " 4: 1 text, 3 lines"), {300, " 4 graphics"}}) {
        frame->MoveWindow(0, 0, width, 500);
        EXPECT_EQ(StatusText(frame->m_hWnd, 1), kinds);
        for (const int pane : {0, 1, 2, 3})
            expectWhole(pane);
    }
    const DrawingFile odd("0\nSECTION\n2\nENTITIES\n0\nODDITY\n8\n0\n0\nENDSEC\n0\nEOF\n");
    ASSERT_TRUE(frame->Open(odd.Path()));
    const std::string message = StatusText(frame->m_hWnd, 0);
    EXPECT_EQ(message.substr(message.size() - 3), "...") << message;
    expectWhole(0);
}

} // namespace
