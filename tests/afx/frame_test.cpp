// The main window: menu, accelerators, command routing, the message loop and its end.

#include "afx_test_ids.h"

#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

class CMainFrame : public CFrameWnd {
public:
    int greeted = 0;
    bool* isDeleted = nullptr;
    ~CMainFrame() override {
        if (isDeleted != nullptr) *isDeleted = true;
    }

protected:
    void OnGreet() { ++greeted; }
    void OnTimer(UINT_PTR) { DestroyWindow(); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
ON_COMMAND(ID_GREET, &CMainFrame::OnGreet)
ON_WM_TIMER()
END_MESSAGE_MAP()

class Frame : public ::testing::Test {
protected:
    CMainFrame* frame = nullptr;
    bool isDeleted = false;
    void SetUp() override {
        frame = new CMainFrame;
        frame->isDeleted = &isDeleted;
        ASSERT_TRUE(frame->LoadFrame(IDR_FRAME));
        AfxGetThread()->m_pMainWnd = frame;
    }
    void TearDown() override {
        if (!isDeleted) frame->DestroyWindow();
        EXPECT_TRUE(isDeleted) << "the object is deleted with its window";
        EXPECT_EQ(AfxGetMainWnd(), nullptr);
    }
};

TEST_F(Frame, IsCreatedFromItsResources) {
    CString title;
    frame->GetWindowText(title);
    EXPECT_STREQ(title, "A frame");
    EXPECT_EQ(::GetMenuItemCount(::GetMenu(frame->m_hWnd)), 1);
    EXPECT_EQ(frame, AfxGetMainWnd());
}

TEST_F(Frame, TranslatesAccelerators) {
    MSG key = {};
    key.hwnd = frame->m_hWnd;
    key.message = WM_KEYDOWN;
    key.wParam = VK_F9;
    key.lParam = 1;
    EXPECT_TRUE(AfxGetThread()->PreTranslateMessage(&key));
    EXPECT_EQ(frame->greeted, 1);
    key.wParam = VK_F8;
    EXPECT_FALSE(AfxGetThread()->PreTranslateMessage(&key));
}

TEST_F(Frame, IsFoundFromChildWindows) {
    CWnd child, grandchild, owned;
    const CRect place(0, 0, 10, 10);
    ASSERT_TRUE(child.Create(nullptr, "", WS_CHILD, place, frame, 1));
    ASSERT_TRUE(grandchild.Create(nullptr, "", WS_CHILD, place, &child, 1));
    ASSERT_TRUE(owned.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 9, 9, frame->m_hWnd, nullptr));
    EXPECT_EQ(frame, grandchild.GetTopLevelFrame());
    EXPECT_EQ(frame, owned.GetTopLevelFrame()) << "by its owner";
    EXPECT_EQ(frame, frame->GetTopLevelFrame());
    CWnd alone;
    EXPECT_EQ(alone.GetTopLevelFrame(), nullptr);
    owned.DestroyWindow();
}

TEST_F(Frame, EndsTheMessageLoopWhenDestroyed) {
    frame->SetTimer(1, 1);
    EXPECT_EQ(AfxGetThread()->Run(), 0);
    EXPECT_TRUE(isDeleted);
}

} // namespace
