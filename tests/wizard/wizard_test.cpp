// The wizard, operated by mouse and keyboard.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include <orlo.h>

#include "orlo/win/child_windows.h"
#include "support/fresh_drawing.h"
#include "support/object_counts.h"
#include "support/pixels.h"
#include "support/scheme_colors.h"
#include "support/sheet_driver.h"

namespace {

constexpr int kNarrow = 600, kWide = 601, kQuiet = 602, kNotes = 603, kOneLine = 604, kNoField = 605, kLists = 606,
              kNoTemplate = 699;
constexpr int kField = 1010, kKeepColor = 1011, kLookUp = 1012, kBack = 100, kNext = 101, kTabs = 301, kHeading = 302;

class CStep : public CPropertyPage {
public:
    CStep(char name, std::string& log, UINT nIDTemplate) : CPropertyPage(nIDTemplate), m_name(name), m_log(log) {}
    bool accepts = true;
    // In each OnSetActive:
    CSize grows;
    bool disablesNext = false;
    bool hidesNext = false;

    BOOL OnSetActive() override {
        if (!CPropertyPage::OnSetActive()) return FALSE;
        CRect rect;
        GetWindowRect(rect);
        SetWindowPos(nullptr, 0, 0, rect.Width() + grows.cx, rect.Height() + grows.cy, SWP_NOMOVE | SWP_NOZORDER);
        const HWND next = ::GetDlgItem(::GetParent(m_hWnd), kNext);
        if (disablesNext) ::EnableWindow(next, FALSE);
        if (hidesNext) ::ShowWindow(next, SW_HIDE);
        return TRUE;
    }
    BOOL OnKillActive() override {
        if (!accepts) Log('r');
        return accepts && CPropertyPage::OnKillActive();
    }
    void OnOK() override { Log('o'); }

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (wParam == MAKEWPARAM(kLookUp, BN_CLICKED)) Log('l');
        return CPropertyPage::OnCommand(wParam, lParam);
    }

private:
    void Log(char what) { m_log += {m_name, what, ' '}; }

    char m_name;
    std::string& m_log;
};

std::string WindowText(HWND window) {
    char text[64] = "";
    ::GetWindowTextA(window, text, sizeof text);
    return text;
}

class Wizard : public ::testing::Test {
protected:
    Wizard() { ::PropPageInit(); }

    std::string log; // r: a page could not be left; o: its OnOK; l: its own button
    std::vector<std::unique_ptr<CStep>> steps;
    SheetDriver driver;

    std::unique_ptr<CWizardSheet> Make(const std::vector<int>& templates, UINT first = 0) {
        auto sheet = std::make_unique<CWizardSheet>("New thing", nullptr, first);
        steps.clear();
        for (const int id : templates) {
            const char name = static_cast<char>('1' + steps.size());
            steps.push_back(std::make_unique<CStep>(name, log, id));
            sheet->AddPage(steps.back().get());
        }
        return sheet;
    }
    int Run(CWizardSheet& wizard, const SheetDriver::Script& script) { return driver.Run(wizard, script); }
    int RunThree(const SheetDriver::Script& script) { return Run(*Make({kWide, kWide, kWide}), script); }
};

// Returns the page, the state of Back and the text of the other button, which always correspond.
std::string State(const SheetDriver& user) {
    const HWND sheet = user.Sheet();
    const auto tab = ::SendDlgItemMessageA(sheet, kTabs, TCM_GETCURSEL, 0, 0);
    EXPECT_EQ(user.ActivePage(), tab);
    EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(sheet, IDCANCEL)));
    return std::to_string(user.ActivePage()) + (::IsWindowEnabled(::GetDlgItem(sheet, kBack)) ? " Back " : " - ") +
           WindowText(::GetDlgItem(sheet, kNext));
}

CRect Place(const SheetDriver& user, HWND window) { // in client coordinates of the sheet
    CRect rect;
    ::GetWindowRect(window, &rect);
    CWnd::FromHandle(user.Sheet())->ScreenToClient(&rect);
    return rect;
}

// Converts dialog units in the page's font to pixels.
CSize Units(HWND page, int x, int y) {
    CRect rect(0, 0, x, y);
    ::MapDialogRect(page, &rect);
    return rect.Size();
}

void ClickWithMouse(SheetDriver& user, int id) {
    const HWND button = ::GetDlgItem(user.Sheet(), id);
    ::PostMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ::PostMessageA(button, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    user.Pump();
}

TEST_F(Wizard, CanBeUsedByMouse) {
    EXPECT_EQ(IDOK, RunThree([&](SheetDriver& user) {
                  EXPECT_EQ(State(user), "0 - &Next >");
                  for (const auto& [button, state] : {std::pair(kBack, "0 - &Next >"), // disabled
                                                      {kNext, "1 Back &Next >"},
                                                      {kNext, "2 Back Finish"},
                                                      {kBack, "1 Back &Next >"},
                                                      {kBack, "0 - &Next >"}}) {
                      ClickWithMouse(user, button);
                      EXPECT_EQ(state, State(user));
                  }
                  EXPECT_EQ(log, "");
                  for (int i = 0; i < 3; ++i)
                      ClickWithMouse(user, kNext);
              }));
    EXPECT_EQ(log, "1o 2o 3o 3o ") << "all pages in order, then the active page again for the sheet's OK";
}

TEST_F(Wizard, CanBeUsedByKeyboard) {
    EXPECT_EQ(IDOK, RunThree([&](SheetDriver& user) {
                  EXPECT_EQ(user.Control(kField), ::GetFocus());
                  user.Mnemonic('n');
                  EXPECT_EQ(State(user), "1 Back &Next >");
                  EXPECT_EQ(user.Control(kField), ::GetFocus());
                  user.Mnemonic('b');
                  EXPECT_EQ(State(user), "0 - &Next >");
                  user.Focus(kField);
                  user.Key(VK_TAB);
                  user.Key(VK_TAB); // past the check box and the disabled Back
                  EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), kNext);
                  user.Key(VK_SPACE);
                  EXPECT_EQ(State(user), "1 Back &Next >");
                  EXPECT_EQ(user.Control(kField), ::GetFocus()) << "the first field of the new page";
                  user.Focus(::GetDlgItem(user.Sheet(), kBack));
                  user.Key(VK_SPACE); // disables the focused button
                  EXPECT_EQ(State(user), "0 - &Next >");
                  ASSERT_TRUE(::IsChild(user.Sheet(), ::GetFocus())) << "the button or the page";
                  for (int i = 0; i < 3 && ::GetDlgCtrlID(::GetFocus()) != kNext; ++i)
                      user.Key(VK_TAB);
                  for (const char* state : {"1 Back &Next >", "2 Back Finish"}) {
                      user.Focus(::GetDlgItem(user.Sheet(), kNext));
                      user.Key(VK_RETURN); // of the button itself
                      EXPECT_EQ(state, State(user));
                  }
                  user.Focus(::GetDlgItem(user.Sheet(), kNext));
                  user.Key(VK_RETURN);
              }));
    EXPECT_EQ(log, "1o 2o 3o 3o ");
}

// Next is the default button, but pressing it would skip any field after the focused one.
TEST_F(Wizard, EnterProceedsFromTheLastFieldOfAPage) {
    const auto wizard = Make({kWide, kNarrow, kWide});
    EXPECT_EQ(IDOK, Run(*wizard, [&](SheetDriver& user) {
                  const HWND next = ::GetDlgItem(user.Sheet(), kNext);
                  const auto isDefault = [&] {
                      return (::GetWindowLongA(next, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
                  };
                  EXPECT_TRUE(isDefault());
                  ClickWithMouse(user, kNext);
                  EXPECT_TRUE(isDefault());
                  ClickWithMouse(user, kBack);
                  user.Focus(kField);
                  user.Key(VK_RETURN);
                  EXPECT_EQ(State(user), "0 - &Next >");
                  user.Focus(kKeepColor);
                  user.Key(VK_RETURN);
                  EXPECT_EQ(State(user), "1 Back &Next >");
                  EXPECT_EQ(user.Control(kField), ::GetFocus());
                  user.Key(VK_TAB);
                  EXPECT_EQ(user.Control(kLookUp), ::GetFocus());
                  user.Key(VK_RETURN);
                  EXPECT_EQ(State(user), "1 Back &Next >");
                  EXPECT_EQ(log, "2l ") << "a button of the page handles the key itself";
                  log.clear();
                  user.Focus(kField);
                  steps[1]->accepts = false;
                  user.Key(VK_RETURN);
                  EXPECT_EQ(State(user), "1 Back &Next >");
                  EXPECT_EQ(log, "2r ");
                  steps[1]->accepts = true;
                  ::PostMessageA(::GetFocus(), WM_KEYDOWN, VK_RETURN,
                                 0x40000001); // held down since the previous step
                  user.Pump();
                  EXPECT_EQ(State(user), "1 Back &Next >");
                  user.Key(VK_RETURN);
                  EXPECT_EQ(State(user), "2 Back Finish");
                  log.clear();
                  user.Key(VK_RETURN); // finishes from any field
              }));
    EXPECT_EQ(log, "1o 2o 3o 3o ");
}

TEST_F(Wizard, ShowsTheCaptionOfItsPageAndGrowsWithALargerOne) {
    const auto wizard = Make({kNarrow, kWide, kNarrow});
    Run(*wizard, [&](SheetDriver& user) {
        for (const char* caption : {"Narrow", "Wide", "Narrow"}) {
            const HWND heading = ::GetDlgItem(user.Sheet(), kHeading);
            EXPECT_EQ(caption, WindowText(heading));
            EXPECT_TRUE(::IsWindowVisible(heading));
            CRect client;
            ::GetClientRect(user.Sheet(), &client);
            const CRect page = Place(user, user.Page()), button = Place(user, ::GetDlgItem(user.Sheet(), kNext));
            EXPECT_LE(Place(user, heading).bottom, page.top);
            const bool wide = *caption == 'W';
            EXPECT_LE(Units(user.Page(), wide ? 240 : 120, 0).cx, page.Width());
            EXPECT_LE(Units(user.Page(), 0, wide ? 100 : 60).cy, page.Height());
            EXPECT_LE(page.right, client.right);
            EXPECT_LE(page.bottom, button.top);
            EXPECT_LE(button.bottom, client.bottom);
            user.ClickSheetButton(kNext);
        }
    });
}

// A page that grows covers the buttons while they are moved, so parts copied by the system must be redrawn.
TEST_F(Wizard, IsDrawnCompletelyOnEachPage) {
    const auto walk = [&] {
        const auto wizard = Make({kNarrow, kWide, kQuiet, kNarrow});
        steps[3]->grows = CSize(30, 50);
        Run(*wizard, [&](SheetDriver& user) {
            EXPECT_EQ(StalePart(user.Sheet()), "");
            for (const int button : {kNext, kNext, kNext, kBack, kBack, kBack, kNext}) {
                ClickWithMouse(user, button);
                EXPECT_EQ(StalePart(user.Sheet()), "") << State(user);
            }
        });
    };
    walk();
    const SchemeColors black({{COLOR_3DFACE, RGB(0, 0, 0)},
                              {COLOR_BTNTEXT, RGB(255, 255, 255)},
                              {COLOR_WINDOW, RGB(0, 0, 0)},
                              {COLOR_WINDOWTEXT, RGB(255, 255, 255)}});
    walk();
}

// A field of several lines begins a new line where its style says so; otherwise the key presses Next, and only with
// Ctrl begins a line.
TEST_F(Wizard, ReturnBeginsALineInAMultilineField) {
    Run(*Make({kOneLine, kNotes, kWide}), [&](SheetDriver& user) {
        user.Focus(kField);
        user.Key(VK_RETURN, false, true);
        EXPECT_EQ(State(user), "0 - &Next >");
        EXPECT_EQ(::SendMessageA(user.Control(kField), EM_GETLINECOUNT, 0, 0), 2);
        user.Key(VK_RETURN);
        EXPECT_EQ(State(user), "1 Back &Next >");
        user.Focus(kField);
        user.Key(VK_RETURN);
        EXPECT_EQ(State(user), "1 Back &Next >");
        EXPECT_EQ(::SendMessageA(user.Control(kField), EM_GETLINECOUNT, 0, 0), 2);
    });
}

TEST_F(Wizard, ReturnClosesAnOpenList) {
    Run(*Make({kLists, kWide}), [](SheetDriver& user) {
        for (const int list : {kField, kKeepColor}) {
            ::SendMessageA(user.Control(list), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("First"));
            user.Focus(list);
            user.Key(VK_F4);
            ASSERT_TRUE(::SendMessageA(user.Control(list), CB_GETDROPPEDSTATE, 0, 0));
            user.Key(VK_DOWN);
            user.Key(VK_RETURN);
            EXPECT_FALSE(::SendMessageA(user.Control(list), CB_GETDROPPEDSTATE, 0, 0));
            EXPECT_EQ(user.Selection(list), 0);
            EXPECT_EQ(State(user), "0 - &Next >");
        }
        user.Key(VK_RETURN);
        EXPECT_EQ(State(user), "1 Back Finish");
    });
}

TEST_F(Wizard, PageWithoutFieldsLeavesTheFocusToTheDefaultButton) {
    EXPECT_EQ(Run(*Make({kNoField, kWide, kNoField}),
                  [](SheetDriver& user) {
                      const auto isOnNext = [] { return ::GetDlgCtrlID(::GetFocus()) == kNext; };
                      EXPECT_TRUE(isOnNext());
                      user.Key(VK_RETURN);
                      user.Focus(kKeepColor);
                      user.Key(VK_RETURN);
                      EXPECT_EQ(State(user), "2 Back Finish");
                      EXPECT_TRUE(isOnNext());
                      user.Focus(::GetDlgItem(user.Sheet(), kBack));
                      user.Key(VK_SPACE);
                      user.Focus(::GetDlgItem(user.Sheet(), kBack));
                      user.Key(VK_SPACE); // disables the focused button
                      EXPECT_EQ(State(user), "0 - &Next >");
                      EXPECT_TRUE(isOnNext());
                      user.Key(VK_RETURN);
                      ClickWithMouse(user, kNext);
                      user.Key(VK_RETURN);
                  }),
              IDOK);
}

// A page that waits, for example; the keyboard must still be able to cancel the wizard.
TEST_F(Wizard, FocusIsNotLostOnAPageThatCannotBeLeftByNext) {
    for (const bool hides : {false, true}) {
        const auto wizard = Make({kWide, kNoField});
        (hides ? steps[1]->hidesNext : steps[1]->disablesNext) = true;
        EXPECT_EQ(Run(*wizard,
                      [](SheetDriver& user) {
                          user.Focus(::GetDlgItem(user.Sheet(), kNext));
                          user.Key(VK_RETURN);
                          EXPECT_EQ(State(user), "1 Back Finish");
                          EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), IDCANCEL);
                          user.Key(VK_TAB);
                          EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), kBack);
                          user.Key(VK_ESCAPE);
                      }),
                  IDCANCEL);
    }
}

TEST_F(Wizard, ReturnDoesNotPressADisabledOrHiddenButton) {
    const auto wizard = Make({kWide, kWide});
    EXPECT_EQ(Run(*wizard,
                  [&](SheetDriver& user) {
                      const HWND next = ::GetDlgItem(user.Sheet(), kNext);
                      for (const char* left : {"0 - &Next >", "1 Back Finish"}) {
                          user.Focus(kKeepColor);
                          ::EnableWindow(next, FALSE);
                          user.Key(VK_RETURN);
                          EXPECT_EQ(left, State(user));
                          ::EnableWindow(next, TRUE);
                          ::ShowWindow(next, SW_HIDE);
                          user.Key(VK_RETURN);
                          EXPECT_EQ(left, State(user));
                          EXPECT_EQ(log, "");
                          ::ShowWindow(next, SW_SHOW);
                          user.Key(VK_RETURN);
                      }
                  }),
              IDOK);
    EXPECT_EQ(log, "1o 2o 2o ");
}

// The host's own handler of the button's command is called as for a click.
TEST_F(Wizard, ReturnClicksTheButton) {
    class Counting : public CWizardSheet {
    public:
        Counting() : CWizardSheet("Counting", nullptr, 0) {}
        BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
            if (wParam != MAKEWPARAM(kNext, BN_CLICKED)) return CWizardSheet::OnCommand(wParam, lParam);
            ++clicks;
            return TRUE;
        }
        int clicks = 0;
    } wizard;
    CStep step('1', log, kWide);
    wizard.AddPage(&step);
    Run(wizard, [](SheetDriver& user) {
        user.Focus(kField);
        user.Key(VK_RETURN);
    });
    EXPECT_EQ(wizard.clicks, 1);
    EXPECT_EQ(log, "");
}

// The size of the page is its window rectangle after OnSetActive.
TEST_F(Wizard, UsesTheSizeThatAPageSetsItself) {
    const auto wizard = Make({kNarrow, kQuiet, kNarrow});
    steps[0]->grows = CSize(0, 20);
    steps[2]->grows = CSize(40, 30);
    Run(*wizard, [&](SheetDriver& user) {
        const auto expect = [&](int width, int height, const char* reason) {
            SCOPED_TRACE(reason);
            CRect client;
            ::GetClientRect(user.Sheet(), client);
            const CRect page = Place(user, user.Page()), back = Place(user, ::GetDlgItem(user.Sheet(), kBack));
            EXPECT_LE(width, page.Width());
            EXPECT_EQ(height, page.Height());
            EXPECT_LE(page.right, client.right);
            EXPECT_LE(page.bottom, back.top);
            EXPECT_EQ(client.bottom - Units(user.Page(), 0, 4).cy, back.bottom);
        };
        const CSize narrow = Units(user.Page(), 120, 60), quiet = Units(user.Page(), 240, 100);
        expect(narrow.cx, narrow.cy + 20, "the first page");
        ClickWithMouse(user, kNext);
        expect(quiet.cx, quiet.cy, "a page of which no parent is notified");
        ClickWithMouse(user, kNext);
        expect(quiet.cx, std::max<int>(quiet.cy, narrow.cy + 30), "the largest so far");
    });
}

TEST_F(Wizard, UsesTheSizeThatAHostSetsForAPage) {
    class Resizable : public CWizardSheet {
    public:
        Resizable() : CWizardSheet("Resizable", nullptr, 0) {}
        using CWizardSheet::RecalcWizardLayout;
    } wizard;
    CStep step('1', log, kNarrow);
    wizard.AddPage(&step);
    Run(wizard, [&](SheetDriver& user) {
        const CRect before = Place(user, user.Page());
        step.SetWindowPos(nullptr, 0, 0, before.Width() + 70, before.Height() + 40, SWP_NOMOVE | SWP_NOZORDER);
        wizard.RecalcWizardLayout();
        const CRect after = Place(user, user.Page());
        EXPECT_EQ(CSize(before.Width() + 70, before.Height() + 40), after.Size());
        EXPECT_LE(after.bottom, Place(user, ::GetDlgItem(user.Sheet(), kNext)).top);
        EXPECT_EQ(StalePart(user.Sheet()), "");
    });
}

// Returns the push button of sheet and page that has the frame; 0 for none, -1 for several.
int FramedButton(const SheetDriver& user) {
    int framed = 0;
    ForEachChild(user.Sheet(), [&](HWND child) {
        if (::SendMessageA(child, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON)
            framed = framed == 0 ? ::GetDlgCtrlID(child) : -1;
    });
    return framed;
}

TEST_F(Wizard, FramesTheButtonThatReturnPresses) {
    const auto wizard = Make({kWide, kNarrow});
    Run(*wizard, [&](SheetDriver& user) {
        EXPECT_EQ(FramedButton(user), kNext);
        user.Focus(::GetDlgItem(user.Sheet(), kNext));
        user.Key(VK_TAB);
        EXPECT_EQ(FramedButton(user), IDCANCEL);
        user.Key(VK_TAB); // into the page
        EXPECT_EQ(user.Control(kField), ::GetFocus());
        EXPECT_EQ(FramedButton(user), kNext);
        user.Key(VK_TAB, true);
        EXPECT_EQ(FramedButton(user), IDCANCEL);
        ClickWithMouse(user, kNext);
        EXPECT_EQ(FramedButton(user), kNext);
        user.Key(VK_TAB); // to the button of the page
        EXPECT_EQ(FramedButton(user), kLookUp);
        user.Key(VK_TAB);
        EXPECT_EQ(FramedButton(user), kBack);
        user.Key(VK_SPACE);
        EXPECT_EQ(State(user), "0 - &Next >");
        EXPECT_EQ(FramedButton(user), kNext) << "not the button that is now disabled";
    });
}

TEST_F(Wizard, GrowsInPlaceAfterTheUserHasMovedIt) {
    const auto wizard = Make({kNarrow, kWide});
    const auto place = [](HWND window) {
        CRect rect;
        ::GetWindowRect(window, rect);
        return rect;
    };
    Run(*wizard, [&](SheetDriver& user) {
        ::SetWindowPos(user.Sheet(), nullptr, 20, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        user.ClickSheetButton(kNext);
        EXPECT_EQ(CPoint(20, 30), place(user.Sheet()).TopLeft());
    });
    Run(*Make({kNarrow, kWide}), [&](SheetDriver& user) {
        const int right = ::GetSystemMetrics(SM_CXSCREEN);
        ::SetWindowPos(user.Sheet(), nullptr, right - place(user.Sheet()).Width(), 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        user.ClickSheetButton(kNext);
        EXPECT_EQ(right, place(user.Sheet()).right) << "within the screen";
    });
    Run(*Make({kWide, kWide}), [&](SheetDriver& user) {
        const CSize larger(place(user.Sheet()).Width() + 50, place(user.Sheet()).Height() + 40);
        ::SetWindowPos(user.Sheet(), nullptr, 0, 0, larger.cx, larger.cy, SWP_NOMOVE | SWP_NOZORDER);
        user.ClickSheetButton(kNext);
        EXPECT_EQ(larger, place(user.Sheet()).Size()) << "the page is as large as the previous one";
    });
    Run(*Make({kNarrow, kWide}), [&](SheetDriver& user) {
        const CPoint middle = place(user.Sheet()).CenterPoint();
        user.ClickSheetButton(kNext);
        EXPECT_NEAR(middle.x, place(user.Sheet()).CenterPoint().x, 1);
        EXPECT_NEAR(middle.y, place(user.Sheet()).CenterPoint().y, 1);
    });
}

TEST_F(Wizard, EndsATruncatedCaptionWithDots) {
    Run(*Make({kQuiet}), [](SheetDriver& user) {
        const HWND heading = ::GetDlgItem(user.Sheet(), kHeading);
        CRect client;
        ::GetClientRect(heading, client);
        Pixels picture(client.Width(), client.Height());
        ::SendMessageA(heading, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(picture.DC()), PRF_CLIENT | PRF_ERASEBKGND);
        const COLORREF text = ::GetSysColor(COLOR_BTNTEXT);
        int right = client.right; // of the drawn pixels
        while (right > 5 && picture.Count({right - 1, 0, right, client.bottom}, text) == 0)
            --right;
        const CRect end(right - 5, 0, right, client.Height());
        int lowest = 0, highest = client.Height();
        for (int y = 0; y < client.Height(); ++y) {
            if (picture.Count({end.left, y, end.right, y + 1}, text) == 0) continue;
            lowest = std::max(lowest, y);
            highest = std::min(highest, y);
        }
        EXPECT_LE(highest, lowest) << "something is there";
        EXPECT_LE(lowest - highest, 3) << "only dots";
    });
}

TEST_F(Wizard, CancelsByButtonKeyAndCaption) {
    EXPECT_EQ(RunThree([](SheetDriver& user) { user.ClickSheetButton(IDCANCEL); }), IDCANCEL);
    EXPECT_EQ(RunThree([](SheetDriver& user) { user.Key(VK_ESCAPE); }), IDCANCEL);
    EXPECT_EQ(RunThree([](SheetDriver& user) { ::PostMessageA(user.Sheet(), WM_CLOSE, 0, 0); }), IDCANCEL);
    EXPECT_EQ(log, "");
}

TEST_F(Wizard, IsUnchangedIfThePageCannotBeLeft) {
    EXPECT_EQ(RunThree([&](SheetDriver& user) {
                  steps[0]->accepts = false;
                  user.ClickSheetButton(kNext);
                  EXPECT_EQ(State(user), "0 - &Next >");
                  EXPECT_TRUE(steps[0]->IsWindowVisible());
                  steps[0]->accepts = true;
                  user.ClickSheetButton(kNext);
                  steps[1]->accepts = false;
                  for (const int button : {kNext, kBack}) {
                      user.ClickSheetButton(button);
                      EXPECT_EQ(State(user), "1 Back &Next >");
                  }
                  steps[1]->accepts = true;
                  user.ClickSheetButton(kNext);
                  EXPECT_EQ(log, "1r 2r 2r ");
                  log.clear();
                  steps[2]->accepts = false;
                  user.ClickSheetButton(kNext);
                  EXPECT_EQ(State(user), "2 Back Finish");
                  EXPECT_EQ(log, "1o 2o 3o 3r ") << "the sheet calls OnKillActive after the pages' OnOK and stays open";
                  steps[2]->accepts = true;
                  user.ClickSheetButton(kNext);
              }),
              IDOK);
}

TEST_F(Wizard, StaysIfThePageCannotBeCreated) {
    const auto wizard = Make({kWide, kNoTemplate, kWide});
    EXPECT_EQ(Run(*wizard,
                  [&](SheetDriver& user) {
                      user.ClickSheetButton(kNext);
                      EXPECT_EQ(State(user), "0 - &Next >");
                      EXPECT_TRUE(steps[0]->IsWindowVisible());
                      EXPECT_EQ(user.Page(), steps[0]->m_hWnd);
                  }),
              IDCANCEL);
}

TEST_F(Wizard, OpensEmptyWithoutItsFirstPage) {
    const auto wizard = Make({kNoTemplate, kWide});
    EXPECT_EQ(Run(*wizard,
                  [&](SheetDriver& user) {
                      EXPECT_TRUE(::IsWindowVisible(user.Sheet()));
                      const CRect cancel = Place(user, ::GetDlgItem(user.Sheet(), IDCANCEL));
                      CRect client;
                      ::GetClientRect(user.Sheet(), &client);
                      EXPECT_LE(cancel.right, client.right);
                      EXPECT_LE(cancel.bottom, client.bottom);
                      EXPECT_LT(10, cancel.Width());
                      user.ClickSheetButton(IDCANCEL);
                  }),
              IDCANCEL);
    const auto alone = Make({kNoTemplate});
    EXPECT_EQ(Run(*alone, [](SheetDriver& user) { user.ClickSheetButton(kNext); }), IDOK);
}

TEST_F(Wizard, OpenedOnALaterPageShowsTheFirstPagesButtons) {
    const auto wizard = Make({kWide, kWide, kWide}, 2);
    Run(*wizard, [](SheetDriver& user) {
        EXPECT_EQ(State(user), "2 - &Next >");
        ::SendMessageA(user.Sheet(), WM_COMMAND, kBack, 0); // its button is disabled
        EXPECT_EQ(State(user), "1 Back &Next >");
    });
}

TEST_F(Wizard, IsAsWideAsThePageOrTheButtons) {
    for (const int id : {kNarrow, kWide}) {
        const auto wizard = Make({id, id});
        Run(*wizard, [&](SheetDriver& user) {
            const HWND sheet = user.Sheet();
            CRect client;
            ::GetClientRect(sheet, &client);
            const CRect page = Place(user, user.Page()), tabs = Place(user, ::GetDlgItem(sheet, kTabs));
            const CRect back = Place(user, ::GetDlgItem(sheet, kBack)), next = Place(user, ::GetDlgItem(sheet, kNext)),
                        cancel = Place(user, ::GetDlgItem(sheet, IDCANCEL));
            const CSize button = Units(user.Page(), 50, 14), gap = Units(user.Page(), 4, 4);
            const CSize required = Units(user.Page(), id == kNarrow ? 120 : 240, id == kNarrow ? 60 : 100);

            EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(sheet, kTabs)));
            const int row = 3 * button.cx + gap.cx + 2 * gap.cx, body = required.cx + 2 * gap.cx + 3;
            EXPECT_EQ(id == kNarrow, row > body);
            EXPECT_EQ(std::max(row, body), client.Width());
            EXPECT_EQ(
                CRect(CPoint(gap.cx + 1, tabs.Height() + gap.cy), CSize(client.Width() - 2 * gap.cx - 3, required.cy)),
                page);
            EXPECT_EQ(3 * gap.cy + button.cy + tabs.Height() + required.cy + 4, client.Height());
            for (const CRect& rect : {back, next, cancel}) {
                EXPECT_EQ(button, rect.Size());
                EXPECT_EQ(client.bottom - gap.cy, rect.bottom);
            }
            EXPECT_EQ(back.right, next.left);
            EXPECT_EQ(next.right + gap.cx, cancel.left);
            EXPECT_EQ(client.right - gap.cx, cancel.right);
            user.ClickSheetButton(kNext);
            EXPECT_EQ(page, Place(user, user.Page()));
        });
    }
}

TEST_F(Wizard, DoesNotChangeMenuFocusAndFont) {
    RunThree([](SheetDriver& user) {
        const HMENU menu = ::GetSystemMenu(user.Sheet(), FALSE);
        ASSERT_EQ(::GetMenuItemCount(menu), 2);
        EXPECT_EQ(::GetMenuItemID(menu, 0), UINT{SC_MOVE});
        EXPECT_EQ(::GetMenuItemID(menu, 1), UINT{SC_CLOSE});

        EXPECT_EQ(::SendMessageA(user.Sheet(), WM_ACTIVATE, WA_INACTIVE, 0), 1);
        ::SetFocus(user.Control(kField));
        ::SendMessageA(user.Sheet(), WM_ACTIVATE, WA_ACTIVE, 0);
        EXPECT_EQ(user.Control(kField), ::GetFocus());

        LOGFONTA page = {}, button = {};
        ::GetObjectA(reinterpret_cast<HFONT>(::SendMessageA(user.Page(), WM_GETFONT, 0, 0)), sizeof page, &page);
        const LRESULT font = ::SendDlgItemMessageA(user.Sheet(), kNext, WM_GETFONT, 0, 0);
        ASSERT_NE(::GetObjectA(reinterpret_cast<HFONT>(font), sizeof button, &button), 0);
        EXPECT_EQ(page.lfHeight, button.lfHeight);
        EXPECT_STREQ(page.lfFaceName, button.lfFaceName);
    });
}

TEST_F(Wizard, ModelessHasCommandsWithoutButtons) {
    const auto wizard = Make({kWide, kWide});
    ASSERT_TRUE(wizard->Create(nullptr));
    const HWND sheet = wizard->m_hWnd;
    for (const int id : {kBack, kNext, IDCANCEL})
        EXPECT_EQ(::GetDlgItem(sheet, id), nullptr) << id;
    CRect client;
    ::GetClientRect(sheet, &client);
    EXPECT_EQ(client.Width(), Units(steps[0]->m_hWnd, 240, 0).cx + 2 * Units(steps[0]->m_hWnd, 4, 0).cx + 3);
    EXPECT_TRUE(::IsWindowVisible(sheet));

    ::SendMessageA(sheet, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(wizard->GetActiveIndex(), 0);
    ::SendMessageA(sheet, WM_COMMAND, kNext, 0);
    EXPECT_EQ(wizard->GetActiveIndex(), 1);
    ::SendMessageA(sheet, WM_COMMAND, kBack, 0);
    EXPECT_EQ(wizard->GetActiveIndex(), 0);
    ::SendMessageA(sheet, WM_COMMAND, kNext, 0);
    ::SendMessageA(sheet, WM_COMMAND, kNext, 0);
    EXPECT_EQ(log, "1o 2o 2o ");
    EXPECT_TRUE(::IsWindow(sheet)) << "its owner closes it";
    wizard->DestroyWindow();
}

TEST_F(Wizard, NeedsAPageAndFinishesWithOne) {
    EXPECT_EQ(Make({})->DoModal(), -1);
    EXPECT_EQ(Run(*Make({kWide}),
                  [](SheetDriver& user) {
                      EXPECT_EQ(State(user), "0 - &Next >");
                      user.ClickSheetButton(kNext);
                  }),
              IDOK);
    EXPECT_EQ(log, "1o 1o ") << "with a single page, Next finishes";
}

TEST_F(Wizard, LeaksNothing) {
    const auto walk = [&] {
        RunThree([](SheetDriver& user) {
            for (int i = 0; i < 3; ++i)
                user.ClickSheetButton(kNext);
        });
    };
    walk();
    const int gdi = GdiObjectCount(), user = UserObjectCount();
    for (int i = 0; i < 20; ++i)
        walk();
    EXPECT_EQ(gdi, GdiObjectCount());
    EXPECT_EQ(user, UserObjectCount());
}

} // namespace
