// The main window: opening files, and the data flow of an edit through the library's sheet and undo.

#include <algorithm>
#include <memory>

#include <shlobj.h>

#include "demo/automation/control_text.h"
#include "demo/viewer.h"
#include "demo/viewer/file_name.h"
#include "demo/viewer/recent_files.h"
#include "demo/viewer/resource.h"
#include "orlo/host/graphic.h"
#include "orlo/host/property.h"
#include "orlo/resources/resource.h"
#include "orlo/win/gdi.h"
#include "support/accessible_names.h"
#include "support/message_box_watcher.h"

namespace {

void FocusByTab(UserInput& user, int control) {
    for (int i = 0; i < 20 && ::GetDlgCtrlID(::GetFocus()) != control; ++i)
        user.Key(VK_TAB);
    ASSERT_EQ(control, ::GetDlgCtrlID(::GetFocus()));
}

TEST_F(Viewer, KeyboardAloneChangesAndUndoes) {
    const DrawingState before = Properties();
    user.Key('A', UserInput::kControl);
    user.InDialog([&] { user.Key(VK_RETURN, UserInput::kAlt); },
                  [&](HWND) {
                      user.Key(VK_TAB, UserInput::kControl); // General, Pen
                      FocusByTab(user, IDC_COLOR);
                      user.Keys(VK_DOWN, 3);
                      user.Key(VK_RETURN);
                  });
    const std::vector<PropertyChange> changes = before.ChangesTo(Properties());
    ASSERT_EQ(changes.size(), 4u); // the colors of red, green, yellow and the text have become one
    for (const PropertyChange& change : changes) {
        EXPECT_EQ(change.property, kPropPenColor);
        EXPECT_EQ(changes[0].to, change.to);
        EXPECT_EQ(change.graphics, 1);
    }
    user.Key('Z', UserInput::kControl);
    EXPECT_TRUE(before == Properties());
}

TEST_F(Viewer, OneUndoRevertsAWholeSheet) {
    const DrawingState before = Properties();
    const std::vector<uint32_t> seen = ViewPixels();
    user.InDialog(
        [&] { // a double click as sent by a mouse
            user.Click(view(), Pixel(10, 5));
            ::PostMessageA(view(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(Pixel(10, 5).x, Pixel(10, 5).y));
            user.Wait(0);
        },
        [&](HWND sheet) {
            user.Key(VK_TAB, UserInput::kControl);
            FocusByTab(user, IDC_COLOR);
            user.Keys(VK_DOWN, 3);
            user.Key(VK_TAB, UserInput::kControl); // leaving the page writes
            user.Key(VK_TAB, UserInput::kControl | UserInput::kShift);
            user.Click(::GetDlgItem(sheet, IDOK));
        });
    EXPECT_EQ(before.ChangesTo(Properties()).size(), 1u);
    EXPECT_EQ(document().UndoSteps(), 1);
    user.Key('Z', UserInput::kControl);
    EXPECT_TRUE(before == Properties());
    EXPECT_EQ(document().UndoSteps(), 0);
    user.Key(VK_ESCAPE);
    EXPECT_EQ(seen, ViewPixels());
}

// A page is written when it is left; the drawing shows it, and Cancel undoes it.
TEST_F(Viewer, CancelUndoesWrittenPages) {
    document().Change([&] { ::GraphicSetPenWidth(document().Selectable().front(), 0.5); });
    user.Key('Z', UserInput::kControl);
    const DrawingState before = Properties();
    user.Key('A', UserInput::kControl);
    const std::vector<uint32_t> seen = ViewPixels();
    user.InDialog([&] { user.Key(VK_RETURN, UserInput::kAlt); },
                  [&](HWND) {
                      user.Key(VK_TAB, UserInput::kControl);
                      FocusByTab(user, IDC_COLOR);
                      user.Keys(VK_DOWN, 3);
                      const std::vector<uint32_t> unapplied = ViewPixels();
                      user.Key(VK_TAB, UserInput::kControl);
                      EXPECT_EQ(before.ChangesTo(Properties()).size(), 4u);
                      EXPECT_NE(unapplied, ViewPixels());
                      user.Key(VK_ESCAPE);
                  });
    EXPECT_TRUE(before == Properties());
    EXPECT_EQ(seen, ViewPixels());
    EXPECT_EQ(document().UndoSteps(), 0);
    user.Key('Y', UserInput::kControl);
    EXPECT_FALSE(before == Properties()) << "what was undone before can still be redone";
}

TEST_F(Viewer, BrokenFileKeepsTheOldDrawing) {
    user.Key('A', UserInput::kControl);
    const Document* before = &document();
    const DrawingState properties = Properties();
    CString title;
    frame->GetWindowText(title);
    MessageBoxWatcher boxes;
    EXPECT_FALSE(frame->Open(TEST_DATA "/dxf/bad-group-code.dxf"));
    EXPECT_NE(std::string::npos, boxes.OnlyText().find("bad-group-code.dxf"));
    EXPECT_NE(std::string::npos, boxes.OnlyText().find("line "));
    EXPECT_EQ(before, &document());
    EXPECT_EQ(selection().Count(), 4);
    EXPECT_TRUE(properties == Properties());
    CString now;
    frame->GetWindowText(now);
    EXPECT_EQ(title, now);
}

TEST_F(Viewer, MissingFileIsReportedOnce) {
    MessageBoxWatcher boxes;
    EXPECT_FALSE(frame->Open("no such file.dxf"));
    EXPECT_NE(std::string::npos, boxes.OnlyText().find("no such file.dxf"));
}

TEST_F(Viewer, AllWarningsAreListed) {
    std::string content = "0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < 12; ++i)
        content += "0\nODDITY" + std::to_string(i) + "\n8\n0\n";
    const DrawingFile odd((content + "0\nENDSEC\n0\nEOF\n").c_str());
    ASSERT_TRUE(frame->Open(odd.Path()));
    const std::vector<std::string> warnings = document().Warnings();
    ASSERT_GT(warnings.size(), 1u);
    user.InDialog([&] { ::SendMessageA(frame->m_hWnd, WM_COMMAND, ID_FILE_WARNINGS, 0); },
                  [&](HWND dialog) {
                      const std::string text = WindowText(::GetDlgItem(dialog, IDC_WARNINGS));
                      for (const std::string& warning : warnings)
                          EXPECT_NE(text.find(warning + "\r\n"), std::string::npos) << warning;
                      EXPECT_EQ(ExpectAccessible(dialog), 2);
                      user.Key(VK_RETURN);
                  });
}

// Returns the number of the last line of text in the control, counted from 0.
int LastLine(HWND window, int lineHeight) {
    RECT client;
    ::GetClientRect(window, &client);
    const orlo::WindowDC dc(window);
    for (int y = client.bottom - 1; y >= 0; --y)
        for (int x = 0; x < client.right; ++x)
            if (::GetPixel(dc.get(), x, y) == ::GetSysColor(COLOR_BTNTEXT)) return y / lineHeight;
    return -1;
}

// In a wider font, a line that wrapped would move all meanings after it to the keys of other lines.
TEST_F(Viewer, EachKeyIsBesideItsMeaning) {
    user.InDialog([&] { user.Key(VK_F1); },
                  [&](HWND dialog) {
                      const orlo::WindowDC dc(dialog);
                      const orlo::OwnedFont wide(
                          ::CreateFontA(-11, 9, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Tahoma"));
                      const orlo::SelectedObject selected(dc.get(), wide.get());
                      TEXTMETRICA metrics;
                      ::GetTextMetricsA(dc.get(), &metrics);
                      for (const int column : {IDC_KEYS, IDC_MEANINGS}) {
                          const HWND window = ::GetDlgItem(dialog, column);
                          const LRESULT before = ::SendMessageA(window, WM_GETFONT, 0, 0);
                          ::SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(wide.get()), TRUE);
                          user.Wait(50);
                          const std::string text = WindowText(window);
                          EXPECT_EQ(LastLine(window, metrics.tmHeight), std::count(text.begin(), text.end(), '\n') - 1);
                          ::SendMessageA(window, WM_SETFONT, static_cast<WPARAM>(before), FALSE);
                      }
                      user.Key(VK_ESCAPE);
                  });
}

TEST_F(Viewer, OpeningAFileReplacesDrawingAndSelection) {
    user.Key('A', UserInput::kControl);
    ASSERT_TRUE(frame->Open(TEST_DATA "/dxf/kabeja-draft4-roof-details.dxf"));
    EXPECT_EQ(selection().Count(), 0);
    EXPECT_LT(1000u, document().Selectable().size());
    CString title;
    frame->GetWindowText(title);
    EXPECT_STREQ(title, "kabeja-draft4-roof-details.dxf - Orlo Demo");
}

TEST_F(Viewer, FollowsTheResolutionOfItsMonitor) {
    const HWND status = ::GetDlgItem(frame->m_hWnd, IDC_STATUS);
    const auto windowOf = [](HWND window) {
        CRect rect;
        ::GetWindowRect(window, rect);
        return rect;
    };
    const int before = windowOf(status).Height();
    CRect wanted = windowOf(frame->m_hWnd); // of the same size, because resizing would also rearrange the panes
    ::OffsetRect(wanted, 10, 20);
    ::SendMessageA(frame->m_hWnd, WM_DPICHANGED, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&wanted));
    EXPECT_EQ(windowOf(frame->m_hWnd), wanted);
    EXPECT_GT(windowOf(status).Height(), before * 5 / 4); // its frame does not grow with its font
    EXPECT_EQ(windowOf(view()).bottom, windowOf(status).top);

    user.Key('A', UserInput::kControl);
    wanted.right = wanted.left + 600; // too narrow for all panes
    ::SendMessageA(frame->m_hWnd, WM_DPICHANGED, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&wanted));
    CRect message;
    ::SendMessageA(status, SB_GETRECT, 0, reinterpret_cast<LPARAM>(static_cast<RECT*>(message)));
    EXPECT_GT(message.Width(), 600 / 5) << "the pane is wide enough for the text";
}

TEST_F(Viewer, PropertiesNeedASelection) {
    user.Key(VK_RETURN, UserInput::kAlt);
    EXPECT_EQ(frame->m_hWnd, ::GetActiveWindow());
}

// The items of a submenu, and selecting one.
TEST_F(Viewer, SelectionIsSummarizedAndFilteredByKindAndLayer) {
    const auto pane = [&](int place) {
        char text[256] = "";
        ::SendMessageA(::GetDlgItem(frame->m_hWnd, IDC_STATUS), SB_GETTEXTA, static_cast<WPARAM>(place),
                       reinterpret_cast<LPARAM>(text));
        return std::string(text);
    };
    const auto choose = [&](UINT command) { ::SendMessageA(frame->m_hWnd, WM_COMMAND, command, 0); };
    const auto offers = [&](UINT first) {
        std::vector<std::string> texts;
        const HMENU edit = ::GetSubMenu(::GetMenu(frame->m_hWnd), 1);
        for (int i = 0; i < ::GetMenuItemCount(edit); ++i) {
            const HMENU menu = ::GetSubMenu(edit, i);
            if (!menu || ::GetMenuItemID(menu, 0) != first) continue;
            ::SendMessageA(frame->m_hWnd, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), 0);
            for (int item = 0; item < ::GetMenuItemCount(menu); ++item) {
                char text[64] = "";
                ::GetMenuStringA(menu, static_cast<UINT>(item), text, sizeof text, MF_BYPOSITION);
                texts.push_back(text);
            }
        }
        return texts;
    };
    using Texts = std::vector<std::string>;
    EXPECT_EQ(offers(ID_SELECT_KIND_FIRST), Texts{"Nothing is selected"});
    EXPECT_EQ(offers(ID_SELECT_LAYER_FIRST), (Texts{"0\t3", "A && B\t1"}));
    choose(ID_SELECT_LAYER_FIRST + 1);
    EXPECT_EQ(pane(1), " 1 text");
    user.Key('A', UserInput::kControl);
    EXPECT_EQ(pane(1), " 4: 1 text, 3 lines");
    EXPECT_EQ(offers(ID_SELECT_KIND_FIRST), (Texts{"1 text", "3 lines"}));
    choose(ID_SELECT_KIND_FIRST + 1);
    EXPECT_EQ(pane(1), " 3 lines");
    EXPECT_EQ(pane(2), " 3 x 0 mm");
    document().Change([&] { ::GraphicSetPenWidth(document().Selectable()[1], 10 / 25.4); });
    user.Key('A', UserInput::kControl);
    EXPECT_EQ(pane(2), " 2 x 0 mm, 1 x 10 mm");
    user.Key('Z', UserInput::kControl);
    EXPECT_EQ(pane(2), " 3 x 0 mm");

    ::GraphicSetPenColor(document().Selectable()[1], RGB(255, 0, 0)); // the color of the first one
    user.Click(view(), Pixel(10, 5));
    user.Key('I', UserInput::kControl);
    EXPECT_EQ(selection().Count(), 2);
}

// Builds the handle that the system passes for files dropped on a window.
HDROP Dropped(const std::vector<std::string>& files) {
    std::wstring names; // each NUL-terminated, and one more NUL at the end
    for (const std::string& file : files)
        names += Wide(file) + L'\0';
    const size_t bytes = (names.size() + 1) * sizeof(wchar_t);
    const HGLOBAL block = ::GlobalAlloc(GHND, sizeof(DROPFILES) + bytes);
    auto* drop = static_cast<DROPFILES*>(::GlobalLock(block));
    drop->pFiles = sizeof(DROPFILES);
    drop->fWide = TRUE;
    std::copy(names.begin(), names.end(), reinterpret_cast<wchar_t*>(drop + 1));
    ::GlobalUnlock(block);
    return static_cast<HDROP>(block);
}

TEST_F(Viewer, FirstDroppedFileIsOpenedAndOthersBecomeRecentFiles) {
    const std::string first = TEST_DATA "/dxf/kabeja-draft4-roof-details.dxf";
    const auto drop = [&](const std::vector<std::string>& files) {
        frame->PostMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(Dropped(files)));
        user.Wait(0);
    };
    const DrawingFile other(file.Read().c_str());
    drop({first, other.Path()});
    EXPECT_EQ(document().Path(), first);
    EXPECT_EQ(RecentFiles::List()[1], other.Path());
    document().Change([&] { ::GraphicSetPenWidth(document().Selectable()[0], 0.5); });
    MessageBoxWatcher boxes(IDCANCEL);
    drop({file.Path()});
    EXPECT_EQ(boxes.OnlyText().find("Save the changes"), 0u);
    EXPECT_EQ(document().Path(), first);
}

// Tests that change the width of the red line.
class Saving : public Viewer {
protected:
    void Widen(double width) {
        document().Change([&] { ::GraphicSetPenWidth(document().Selectable()[0], width / 25.4); });
    }
    bool IsMarked() {
        CString title;
        frame->GetWindowText(title);
        return title[0] == '*';
    }
    // Returns the width of the line in the file.
    double SavedWidth(const std::string& path) {
        const std::unique_ptr<Document> opened = Document::Open(path, [](int) { return true; });
        return *orlo::host::ReadProperty<double>(opened->Selectable()[0], kPropPenWidth) * 25.4;
    }
    void Save() { user.Key('S', UserInput::kControl); }
    std::string StatusText() {
        char text[512] = "";
        ::SendMessageA(::GetDlgItem(frame->m_hWnd, IDC_STATUS), SB_GETTEXTA, 0, reinterpret_cast<LPARAM>(text));
        return text;
    }
};

TEST_F(Saving, MarkFollowsUndoAndRedo) {
    const MessageBoxWatcher boxes;
    Widen(0.5);
    Widen(0.7);
    for (const auto& [key, marked] : std::vector<std::pair<char, bool>>{
             {'Z', true}, {'Z', false}, {'Y', true}, {'S', false}, {'Z', true}, {'Y', false}}) {
        user.Key(static_cast<UINT>(key), UserInput::kControl);
        EXPECT_EQ(IsMarked(), marked) << key;
    }
    EXPECT_TRUE(boxes.Boxes().empty()) << boxes.OnlyText();
    EXPECT_NEAR(SavedWidth(file.Path()), 0.5, 0.001);
}

TEST_F(Saving, ReportsWhatOtherProgramsDoNotShow) {
    ASSERT_TRUE(frame->Save(file.Path()));
    EXPECT_EQ(StatusText(), " Saved " + document().Name());
    Widen(0.5); // the file's version has no group for it
    Save();
    EXPECT_EQ(StatusText(), " Saved " + document().Name() +
                                "; PenWidth of 1 entity is stored as extended data, which other programs do not show");
}

TEST_F(Saving, PromptsForUnsavedChanges) {
    Widen(0.5);
    const std::string content = file.Read();
    const DrawingFile other(content.c_str());
    for (const int reply : {IDCANCEL, IDYES}) {
        MessageBoxWatcher boxes(reply);
        EXPECT_EQ(frame->Open(other.Path()), reply == IDYES);
        EXPECT_EQ(boxes.OnlyText().find("Save the changes to "), 0u);
    }
    EXPECT_NEAR(SavedWidth(file.Path()), 0.5, 0.001);
    Widen(0.7);
    MessageBoxWatcher boxes(IDCANCEL);
    const HWND window = frame->m_hWnd;
    ::SendMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(boxes.Boxes().size(), 1u);
    EXPECT_TRUE(::IsWindow(window));
    EXPECT_FALSE(::SendMessageA(window, WM_QUERYENDSESSION, 0, 0));
    EXPECT_EQ(other.Read(), content);
}

TEST_F(Saving, ButtonsOfThePromptNameTheirActions) {
    Widen(0.5);
    user.InDialog([&] { ::SendMessageA(frame->m_hWnd, WM_CLOSE, 0, 0); },
                  [&](HWND box) {
                      EXPECT_EQ(WindowText(::GetDlgItem(box, IDYES)), "&Save");
                      EXPECT_EQ(WindowText(::GetDlgItem(box, IDNO)), "Do&n't Save");
                      EXPECT_NE(::GetDlgItem(box, IDCANCEL), nullptr);
                      ::PostMessageA(box, WM_COMMAND, IDCANCEL, 0);
                  });
    EXPECT_TRUE(document().IsModified());
    Save();
}

TEST_F(Saving, PromptsIfTheFileHasChanged) {
    Widen(0.5);
    const std::string foreign = "999\nby another program\n" + file.Read();
    file.Write(foreign);
    {
        MessageBoxWatcher boxes(IDNO);
        Save();
        EXPECT_NE(boxes.OnlyText().find("Another program has changed"), std::string::npos);
    }
    EXPECT_EQ(file.Read(), foreign);
    EXPECT_TRUE(document().IsModified());
    MessageBoxWatcher boxes(IDYES);
    Save();
    EXPECT_NEAR(SavedWidth(file.Path()), 0.5, 0.001);
}

TEST_F(Saving, SaveAsChangesTheFileUnlessItFails) {
    Widen(0.5);
    {
        const MessageBoxWatcher boxes;
        EXPECT_FALSE(frame->Save("no such folder/copy.dxf"));
        EXPECT_EQ(boxes.OnlyText().find("no such folder/copy.dxf"), 0u);
    }
    EXPECT_TRUE(document().IsModified());
    EXPECT_EQ(document().Path(), file.Path());
    const DrawingFile copy("");
    ASSERT_TRUE(frame->Save(copy.Path()));
    EXPECT_FALSE(document().IsModified());
    EXPECT_EQ(document().Path(), copy.Path());
    EXPECT_NEAR(SavedWidth(copy.Path()), 0.5, 0.001);
    EXPECT_EQ(SavedWidth(file.Path()), 0);
}

// The key is already in the queue when the operation checks for it.
TEST_F(Saving, EscapeCancelsWithoutAnyChange) {
    const MessageBoxWatcher boxes;
    const auto pressEscape = [&] { ::PostMessageA(view(), WM_KEYDOWN, VK_ESCAPE, 1); };
    user.Key('A', UserInput::kControl);
    const Document* before = &document();
    pressEscape();
    EXPECT_FALSE(frame->Open(TEST_DATA "/dxf/kabeja-draft4-roof-details.dxf"));
    EXPECT_EQ(&document(), before);
    EXPECT_EQ(selection().Count(), 4) << "the key has only its function";
    Widen(0.5);
    const std::string content = file.Read();
    pressEscape();
    EXPECT_FALSE(frame->Save(file.Path()));
    EXPECT_EQ(file.Read(), content);
    EXPECT_TRUE(document().IsModified());
    Save();
    EXPECT_NEAR(SavedWidth(file.Path()), 0.5, 0.001);
    EXPECT_TRUE(boxes.Boxes().empty());
}

TEST_F(Saving, MissingRecentFilesAreRemoved) {
    std::string missing;
    {
        const DrawingFile other(file.Read().c_str());
        ASSERT_TRUE(frame->Open(other.Path()));
        missing = other.Path();
        frame->Open(file.Path());
    }
    const std::vector<std::string> files = RecentFiles::List();
    ASSERT_GE(files.size(), 2u);
    EXPECT_LE(files.size(), RecentFiles::kMax);
    EXPECT_EQ(files[1], missing);
    MessageBoxWatcher boxes;
    ::SendMessageA(frame->m_hWnd, WM_COMMAND, ID_FILE_RECENT_FIRST + 1, 0);
    EXPECT_EQ(boxes.OnlyText().find(missing), 0u);
    EXPECT_EQ(std::count(files.begin(), files.end(), missing), 1);
    const std::vector<std::string> left = RecentFiles::List();
    EXPECT_EQ(std::count(left.begin(), left.end(), missing), 0);
    const Document* before = &document();
    ::SendMessageA(frame->m_hWnd, WM_COMMAND, ID_FILE_RECENT_FIRST, 0);
    EXPECT_NE(before, &document());
    EXPECT_EQ(document().Path(), left[0]);
}

} // namespace
