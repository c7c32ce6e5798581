// The main window: opening, and the road of an edit through the library's sheet and back by undo.

#include "demo/viewer.h"
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

TEST_F(Viewer, PropertiesOfNothingOpenNoSheet) {
    user.Key(VK_RETURN, UserInput::kAlt);
    EXPECT_EQ(frame->m_hWnd, ::GetActiveWindow());
}

} // namespace
