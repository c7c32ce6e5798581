// The main window: opening, and the road of an edit through the library's sheet and back by undo.

#include "demo/viewer.h"
#include "demo/viewer/resource.h"
#include "orlo/host/graphic.h"
#include "orlo/resources/resource.h"
#include "support/message_box_watcher.h"

namespace {

void FocusByTab(UserInput& user, int control) {
    for (int i = 0; i < 20 && ::GetDlgCtrlID(::GetFocus()) != control; ++i)
        user.Key(VK_TAB);
    ASSERT_EQ(control, ::GetDlgCtrlID(::GetFocus()));
}

TEST_F(Viewer, KeyboardAloneChangesAndTakesBack) {
    const PropertySnapshot before = Properties();
    user.Key('A', UserInput::kControl);
    user.InDialog([&] { user.Key(VK_RETURN, UserInput::kAlt); },
                  [&](HWND) {
                      user.Key(VK_TAB, UserInput::kControl); // General, Pen
                      FocusByTab(user, IDC_COLOR);
                      user.Keys(VK_DOWN, 3);
                      user.Key(VK_RETURN);
                  });
    const std::vector<PropertyChange> changes = before.ChangesTo(Properties());
    ASSERT_EQ(4u, changes.size()); // red, green, yellow and the text have become one
    for (const PropertyChange& change : changes) {
        EXPECT_EQ(kPropPenColor, change.property);
        EXPECT_EQ(changes[0].to, change.to);
        EXPECT_EQ(1, change.graphics);
    }
    user.Key('Z', UserInput::kControl);
    EXPECT_TRUE(before == Properties());
}

TEST_F(Viewer, OneUndoTakesAWholeSheetBack) {
    const PropertySnapshot before = Properties();
    const std::vector<uint32_t> seen = Seen();
    user.InDialog(
        [&] { // a double click: as a mouse sends it
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
    EXPECT_EQ(1u, before.ChangesTo(Properties()).size());
    EXPECT_EQ(1, document().UndoSteps());
    user.Key('Z', UserInput::kControl);
    EXPECT_TRUE(before == Properties());
    EXPECT_EQ(0, document().UndoSteps());
    user.Key(VK_ESCAPE);
    EXPECT_EQ(seen, Seen());
}

// A page writes when it is left: the drawing behind the sheet shows it, and Cancel takes it back.
TEST_F(Viewer, CancelTakesBackWhatPagesHaveWritten) {
    document().Change([&] { ::GraphicSetPenWidth(document().Selectable().front(), 0.5); });
    user.Key('Z', UserInput::kControl);
    const PropertySnapshot before = Properties();
    user.Key('A', UserInput::kControl);
    const std::vector<uint32_t> seen = Seen();
    user.InDialog([&] { user.Key(VK_RETURN, UserInput::kAlt); },
                  [&](HWND) {
                      user.Key(VK_TAB, UserInput::kControl);
                      FocusByTab(user, IDC_COLOR);
                      user.Keys(VK_DOWN, 3);
                      const std::vector<uint32_t> behind = Seen();
                      user.Key(VK_TAB, UserInput::kControl);
                      EXPECT_EQ(4u, before.ChangesTo(Properties()).size());
                      EXPECT_NE(behind, Seen());
                      user.Key(VK_ESCAPE);
                  });
    EXPECT_TRUE(before == Properties());
    EXPECT_EQ(seen, Seen());
    EXPECT_EQ(0, document().UndoSteps());
    user.Key('Y', UserInput::kControl);
    EXPECT_FALSE(before == Properties()) << "what was taken back before can still be made again";
}

TEST_F(Viewer, BrokenFileKeepsTheOldDrawing) {
    user.Key('A', UserInput::kControl);
    const Document* before = &document();
    const PropertySnapshot properties = Properties();
    CString title;
    frame->GetWindowText(title);
    MessageBoxWatcher boxes;
    EXPECT_FALSE(frame->Open(TEST_DATA "/dxf/bad-group-code.dxf"));
    EXPECT_NE(std::string::npos, boxes.OnlyText().find("bad-group-code.dxf"));
    EXPECT_NE(std::string::npos, boxes.OnlyText().find("line "));
    EXPECT_EQ(before, &document());
    EXPECT_EQ(4, selection().Count());
    EXPECT_TRUE(properties == Properties());
    CString now;
    frame->GetWindowText(now);
    EXPECT_EQ(title, now);
}

TEST_F(Viewer, MissingFileIsSaidOnce) {
    MessageBoxWatcher boxes;
    EXPECT_FALSE(frame->Open("no such file.dxf"));
    EXPECT_NE(std::string::npos, boxes.OnlyText().find("no such file.dxf"));
}

TEST_F(Viewer, OpeningAnotherReplacesDrawingAndSelection) {
    user.Key('A', UserInput::kControl);
    ASSERT_TRUE(frame->Open(TEST_DATA "/dxf/kabeja-draft4-roof-details.dxf"));
    EXPECT_EQ(0, selection().Count());
    EXPECT_LT(1000u, document().Selectable().size());
    CString title;
    frame->GetWindowText(title);
    EXPECT_STREQ("kabeja-draft4-roof-details.dxf - Orlo Demo", title);
}

TEST_F(Viewer, FollowsTheResolutionOfItsMonitor) {
    const HWND status = ::GetDlgItem(frame->m_hWnd, IDC_STATUS);
    const auto windowOf = [](HWND window) {
        CRect rect;
        ::GetWindowRect(window, rect);
        return rect;
    };
    const int before = windowOf(status).Height();
    CRect wanted = windowOf(frame->m_hWnd); // of the same size: nothing else would arrange it
    ::OffsetRect(wanted, 10, 20);
    ::SendMessageA(frame->m_hWnd, WM_DPICHANGED, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&wanted));
    EXPECT_EQ(windowOf(frame->m_hWnd), wanted);
    EXPECT_GT(windowOf(status).Height(), before * 3 / 2);
    EXPECT_EQ(windowOf(view()).bottom, windowOf(status).top);
}

TEST_F(Viewer, PropertiesOfNothingOpenNoSheet) {
    user.Key(VK_RETURN, UserInput::kAlt);
    EXPECT_EQ(frame->m_hWnd, ::GetActiveWindow());
}

// What a submenu offers when it opens, and choosing from it.
TEST_F(Viewer, SelectionIsToldAndNarrowedByKindsAndLayers) {
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

    ::GraphicSetPenColor(document().Selectable()[1], RGB(255, 0, 0)); // that of the first one
    user.Click(view(), Pixel(10, 5));
    user.Key('I', UserInput::kControl);
    EXPECT_EQ(selection().Count(), 2);
}

} // namespace
