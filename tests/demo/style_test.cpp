// Styles in the viewer: the wizard that creates one, the sheet for a style with its end codes, and applying styles.

#include <cctype>
#include <set>

#include "demo/automation/control_text.h"
#include "demo/automation/sheet_pages.h"
#include "demo/viewer.h"
#include "demo/viewer/resource.h"
#include "orlo/resources/resource.h"
#include "orlo/win/child_windows.h"
#include "support/message_box_watcher.h"

namespace {

constexpr int kBack = 100, kNext = 101;

HWND OnPage(HWND sheet, int id) {
    return ::GetDlgItem(ActivePageOf(sheet), id);
}

class Styles : public Viewer {
protected:
    Styles() { user.Key('A', UserInput::kControl); }

    StyleBook& styles() { return document().Styles(); }
    std::string current() { return styles().Current() ? styles().Name(styles().Current()) : ""; }
    void SelectOnly(WorldPoint point) { user.Click(view(), Pixel(point.x, point.y)); }

    // With the wizard, and the parts that it suggests.
    void Make(const std::string& name) {
        user.InDialog([&] { user.Key('N', UserInput::kControl); },
                      [&](HWND wizard) {
                          user.Type(name);
                          for (int i = 0; i < 3; ++i)
                              user.Click(::GetDlgItem(wizard, kNext));
                      });
        ASSERT_EQ(name, current());
    }
    void InStyleSheets(const std::vector<UserInput::Script>& scripts) {
        user.InDialogs([&] { user.Key(VK_RETURN, UserInput::kControl); }, scripts);
    }
    void TypeStyle(HWND sheet, const std::string& name) { user.Replace(OnPage(sheet, IDC_STYLE_NAME), name); }
    void Close(HWND sheet) { user.Click(::GetDlgItem(sheet, IDCANCEL)); }
};

void ExpectMnemonicsOfTheirOwn(HWND window) {
    std::set<int> found;
    ForEachChild(window, [&](HWND child) {
        const std::string text = ::IsWindowVisible(child) ? WindowText(child) : "";
        const size_t mark = text.find('&');
        EXPECT_TRUE(mark == std::string::npos || found.insert(std::tolower(text[mark + 1])).second) << text;
    });
}

TEST_F(Styles, AreCreatedByTheWizardWithTheKeyboard) {
    user.InDialog([&] { user.Key('N', UserInput::kControl); },
                  [&](HWND wizard) {
                      ExpectMnemonicsOfTheirOwn(wizard);
                      user.Type("  Walls ");
                      user.Key(VK_RETURN);
                      ExpectMnemonicsOfTheirOwn(wizard);
                      ASSERT_EQ(::GetDlgCtrlID(::GetFocus()), IDC_STYLE_PARTS);
                      user.Key(VK_DOWN);
                      user.Key(VK_SPACE); // without the brush
                      user.Key(VK_RETURN);
                      ExpectMnemonicsOfTheirOwn(wizard);
                      const std::string summary = WindowText(OnPage(wizard, IDC_STYLE_SUMMARY));
                      EXPECT_NE(std::string::npos, summary.find("\"Walls\""));
                      EXPECT_NE(std::string::npos, summary.find("Pen: Red")) << summary;
                      EXPECT_NE(std::string::npos, summary.find("Brush: unchanged")) << summary;
                      user.Click(::GetDlgItem(wizard, kBack));
                      user.Click(::GetDlgItem(wizard, kNext));
                      EXPECT_EQ(summary, WindowText(OnPage(wizard, IDC_STYLE_SUMMARY)));
                      user.Key(VK_RETURN); // the last page: Finish
                  });
    EXPECT_EQ(current(), "Walls");
    EXPECT_EQ(styles().All().size(), 1u);
}

TEST_F(Styles, NeedAUniqueName) {
    Make("Walls");
    user.InDialog(
        [&] { user.Key('N', UserInput::kControl); },
        [&](HWND wizard) {
            const HWND edit = OnPage(wizard, IDC_STYLE_NAME_EDIT);
            for (const auto& [name, fault] : std::vector<std::pair<std::string, std::string>>{
                     {"", "Enter a name"}, {"   ", "Enter a name"}, {"walls", "already"}, {"standard", "reserved"}}) {
                ::SetWindowTextA(edit, name.c_str());
                MessageBoxWatcher boxes;
                user.Click(::GetDlgItem(wizard, kNext));
                EXPECT_NE(std::string::npos, boxes.OnlyText().find(fault)) << boxes.OnlyText();
                EXPECT_TRUE(::IsWindowVisible(edit)) << name;
                EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(wizard, kBack)));
                EXPECT_EQ(edit, ::GetFocus());
            }
            ::SetWindowTextA(edit, "");
            user.Type(std::string(40, 'x'));
            EXPECT_EQ(WindowText(edit).size(), 32u);
            user.Key(VK_ESCAPE);
        });
    EXPECT_EQ(styles().All().size(), 1u);
    EXPECT_NE(styles().NameError(std::string(33, 'x')), "");
}

TEST_F(Styles, AreAppliedAsOneStep) {
    SelectOnly({10, 5}); // the red line
    Make("Red");
    user.Key('A', UserInput::kControl);
    const DrawingState before = Properties();
    user.Key('E', UserInput::kControl);
    EXPECT_EQ(Properties().Values(kPropPenColor), (std::map<std::string, int>{{"Red", 3}, {"By Layer", 1}}))
        << "a style without a text part does not change the text";
    EXPECT_EQ(Properties().Values(kPropStyleTree), (std::map<std::string, int>{{"Red", 4}}));
    user.Key('Z', UserInput::kControl);
    EXPECT_TRUE(before == Properties());
    EXPECT_EQ(document().UndoSteps(), 1) << "the new style";
}

TEST_F(Styles, OfTheFileCanBeEditedAndApplied) {
    SelectOnly({10, 5});
    Make("Red");
    ASSERT_TRUE(frame->Save(file.Path()));
    ASSERT_TRUE(frame->Open(file.Path()));
    InStyleSheets({[&](HWND sheet) {
        EXPECT_EQ(WindowText(OnPage(sheet, IDC_STYLE_NAME)), "Red");
        Close(sheet);
    }});
    user.Key('A', UserInput::kControl);
    user.Key('E', UserInput::kControl);
    EXPECT_EQ(Properties().Values(kPropStyleTree), (std::map<std::string, int>{{"Red", 4}}));
}

TEST_F(Styles, AreEditedInTheSheetAndApplied) {
    SelectOnly({10, 5});
    Make("Red");
    const DrawingState drawing = Properties();
    InStyleSheets({[&](HWND sheet) {
        EXPECT_TRUE(::IsWindowVisible(OnPage(sheet, IDC_STYLE_NAME)));
        EXPECT_EQ(WindowText(OnPage(sheet, IDC_STYLE_NAME)), "Red");
        user.Key(VK_TAB, UserInput::kControl); // the Pen page
        const HWND colors = OnPage(sheet, IDC_COLOR);
        ASSERT_NE(colors, nullptr);
        user.MoveFocus(colors);
        user.Keys(VK_DOWN, 3);
        user.Click(::GetDlgItem(sheet, IDOK));
    }});
    EXPECT_TRUE(drawing == Properties()) << "the style, not the graphic that it was created from";
    user.Key('E', UserInput::kControl);
    EXPECT_EQ(drawing.Values(kPropPenColor).count("Red"), 1u);
    EXPECT_EQ(Properties().Values(kPropPenColor).count("Red"), 0u);
}

// A page of a style is also written when it is left.
TEST_F(Styles, CancelUndoesWrittenPages) {
    SelectOnly({10, 5});
    Make("Red");
    ASSERT_TRUE(frame->Save(file.Path()));
    ASSERT_FALSE(document().IsModified());
    for (const UINT last : {VK_ESCAPE, VK_RETURN}) {
        InStyleSheets({[&](HWND sheet) {
            user.Key(VK_TAB, UserInput::kControl);
            user.MoveFocus(OnPage(sheet, IDC_COLOR));
            user.Keys(VK_DOWN, 3);
            user.Key(VK_TAB, UserInput::kControl);
            user.Key(last);
        }});
        EXPECT_EQ(document().IsModified(), last == VK_RETURN);
    }
    user.Key('A', UserInput::kControl);
    user.Key('E', UserInput::kControl);
    EXPECT_EQ(Properties().Values(kPropPenColor).count("Red"), 0u) << "OK kept the other color";
}

TEST_F(Styles, HaveNoPartInASheetForASelection) {
    Make("Red");
    user.InDialog([&] { user.Key(VK_RETURN, UserInput::kAlt); },
                  [&](HWND sheet) {
                      EXPECT_FALSE(::IsWindowVisible(OnPage(sheet, IDC_STYLE_NAME)));
                      Close(sheet);
                  });
}

TEST_F(Styles, NewStyleIsShownInTheNextSheet) {
    Make("Red");
    InStyleSheets({[&](HWND sheet) {
                       TypeStyle(sheet, "Blue");
                       user.Click(OnPage(sheet, IDC_STYLE_NEW));
                   },
                   [&](HWND sheet) {
                       EXPECT_EQ(WindowText(OnPage(sheet, IDC_STYLE_NAME)), "Blue");
                       Close(sheet);
                   }});
    EXPECT_EQ(current(), "Blue");
    EXPECT_EQ(styles().All().size(), 2u);
}

TEST_F(Styles, StyleSelectedInTheSheetBecomesCurrent) {
    Make("Red");
    Make("Blue");
    InStyleSheets({[&](HWND sheet) {
                       TypeStyle(sheet, "Red");
                       user.Click(OnPage(sheet, IDC_INFO)); // leaving the combo box reopens the sheet for that style
                   },
                   [&](HWND sheet) {
                       EXPECT_EQ(WindowText(OnPage(sheet, IDC_STYLE_NAME)), "Red");
                       EXPECT_EQ(current(), "Red");
                       TypeStyle(sheet, "Blue");
                       user.Click(::GetDlgItem(sheet, IDOK));
                   }});
    EXPECT_EQ(current(), "Blue") << "and the sheet stayed closed";
}

TEST_F(Styles, AreDeletedOnRequestIfUnused) {
    Make("Red");
    Make("Blue");
    const auto erase = [&](const char* name, int reply) {
        MessageBoxWatcher boxes(reply);
        InStyleSheets({[&](HWND sheet) {
            TypeStyle(sheet, name);
            user.Click(OnPage(sheet, IDC_STYLE_DELETE));
        }});
        return boxes.OnlyText();
    };
    EXPECT_EQ(erase("Red", IDNO), "Delete the style \"Red\"?");
    EXPECT_EQ(styles().All().size(), 2u);
    ASSERT_TRUE(frame->Save(file.Path()));
    EXPECT_EQ(erase("Red", IDYES), "Delete the style \"Red\"?");
    EXPECT_TRUE(document().IsModified());
    EXPECT_EQ(styles().All().size(), 1u);
    EXPECT_EQ(current(), "Blue");

    user.Key('E', UserInput::kControl);
    EXPECT_EQ(erase("Blue", IDOK), "The style \"Blue\" cannot be deleted: 4 graphics use it.");
    EXPECT_EQ(styles().All().size(), 1u);
    user.Key('Z', UserInput::kControl);
    erase("Blue", IDYES);
    EXPECT_EQ(current(), "");
    EXPECT_TRUE(styles().All().empty());
}

} // namespace
