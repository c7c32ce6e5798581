// Message maps: selection of the handler, its arguments, and unhandled messages.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>

namespace {

class CBase : public CWnd {
public:
    std::string log;
    void Note(const CString& text) { log += std::string(static_cast<LPCSTR>(text)) + ";"; }

protected:
    void OnTimer(UINT_PTR nIDEvent) { Note(nIDEvent > 0xFFFFFFFFu ? "long timer" : "timer"); }
    void OnSize(UINT nType, int cx, int cy) {
        CString text;
        text.Format("size %u %d %d", nType, cx, cy);
        Note(text);
    }
    void OnGreet() { Note("base greet"); }
    void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags) {
        CString text;
        text.Format("key %u %u %x", nChar, nRepCnt, nFlags);
        Note(text);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CBase, CWnd)
ON_WM_TIMER()
ON_WM_SIZE()
ON_WM_KEYUP()
ON_COMMAND(10, &CBase::OnGreet)
END_MESSAGE_MAP()

class CDerived : public CBase {
protected:
    void OnMouseMove(UINT nFlags, CPoint point) {
        CString text;
        text.Format("move %u %ld %ld", nFlags, point.x, point.y);
        Note(text);
    }
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point) {
        CString text;
        text.Format("wheel %u %d %ld %ld", nFlags, zDelta, point.x, point.y);
        Note(text);
        return zDelta > 0;
    }
    BOOL OnEraseBkgnd(CDC* pDC) {
        Note(pDC->m_hDC != nullptr ? "erase" : "no dc");
        return TRUE;
    }
    void OnSetFocus(CWnd* pOldWnd) { Note(pOldWnd == this ? "focus from itself" : "focus"); }
    void OnDerivedGreet() { Note("derived greet"); }
    void OnRange(UINT nID) {
        CString text;
        text.Format("range %u", nID);
        Note(text);
    }
    void OnChange() { Note("change"); }
    LRESULT OnData(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) + lParam; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDerived, CBase)
ON_WM_MOUSEMOVE()
ON_WM_MOUSEWHEEL()
ON_WM_ERASEBKGND()
ON_WM_SETFOCUS()
ON_COMMAND(11, &CDerived::OnDerivedGreet)
ON_COMMAND(10, &CDerived::OnDerivedGreet)
ON_COMMAND_RANGE(20, 29, &CDerived::OnRange)
ON_EN_CHANGE(12, &CDerived::OnChange)
ON_MESSAGE(WM_APP, &CDerived::OnData)
END_MESSAGE_MAP()

class MessageMap : public ::testing::Test {
protected:
    CDerived window;
    void SetUp() override {
        ASSERT_TRUE(window.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr));
        window.log.clear();
    }
    std::string Send(UINT message, WPARAM wParam, LPARAM lParam) {
        window.log.clear();
        window.SendMessage(message, wParam, lParam);
        return window.log;
    }
};

TEST_F(MessageMap, UnpacksParameters) {
    EXPECT_EQ(Send(WM_SIZE, 2, MAKELPARAM(30, 40)), "size 2 30 40;");
    EXPECT_EQ(Send(WM_MOUSEMOVE, 1, MAKELPARAM(-5, 7)), "move 1 -5 7;");
    EXPECT_EQ(Send(WM_MOUSEWHEEL, MAKEWPARAM(4, 120), MAKELPARAM(3, -9)), "wheel 4 120 3 -9;");
    EXPECT_EQ(Send(WM_KEYUP, 'A', static_cast<LPARAM>(0xC0010002)), "key 65 2 c001;");
    EXPECT_EQ(Send(WM_SETFOCUS, reinterpret_cast<WPARAM>(window.m_hWnd), 0), "focus from itself;");
    CClientDC dc(&window);
    EXPECT_EQ(Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC), 0), "erase;");
}

TEST_F(MessageMap, ParametersKeepTheirWidth) {
    const auto wide = static_cast<WPARAM>(~static_cast<WPARAM>(0)) >> 1;
    EXPECT_EQ(window.SendMessage(WM_APP, wide, 0), static_cast<LRESULT>(wide));
    EXPECT_EQ(sizeof(WPARAM) > 4 ? "long timer;" : "timer;", Send(WM_TIMER, wide, 0));
}

TEST_F(MessageMap, DerivedHandlersPrecedeInheritedOnes) {
    EXPECT_EQ(Send(WM_COMMAND, 10, 0), "derived greet;");
    EXPECT_EQ(Send(WM_TIMER, 1, 0), "timer;") << "that of the base class";
}

struct Command {
    const char* name;
    WPARAM wParam;
    bool fromControl;
    const char* log;
    LRESULT result;
};

class CommandRouting : public MessageMap, public ::testing::WithParamInterface<Command> {};

TEST_P(CommandRouting, FindsItsHandler) {
    const Command& row = GetParam();
    const LPARAM control = row.fromControl ? reinterpret_cast<LPARAM>(window.m_hWnd) : 0;
    const LRESULT result = window.SendMessage(WM_COMMAND, row.wParam, control);
    EXPECT_EQ(row.log, window.log);
    EXPECT_EQ(row.result, result);
}

const Command kCommands[] = {
    {"Menu", MAKEWPARAM(11, 0), false, "derived greet;", 1},
    {"Accelerator", MAKEWPARAM(11, 1), false, "derived greet;", 1},
    {"Button", MAKEWPARAM(11, BN_CLICKED), true, "derived greet;", 1},
    {"OtherCodeOfTheButton", MAKEWPARAM(11, BN_DOUBLECLICKED), true, "", 0},
    {"Notification", MAKEWPARAM(12, EN_CHANGE), true, "change;", 1},
    {"NotificationNumberAsMenu", MAKEWPARAM(12, 0), false, "", 0},
    {"FirstOfRange", 20, false, "range 20;", 1},
    {"LastOfRange", 29, false, "range 29;", 1},
    {"AfterRange", 30, false, "", 0},
    {"HighestNumber", 0xFFFF, false, "", 0},
};
INSTANTIATE_TEST_SUITE_P(All, CommandRouting, ::testing::ValuesIn(kCommands), [](auto& i) { return i.param.name; });

TEST_F(MessageMap, HandlersCanBeQueriedWithoutACall) {
    AFX_CMDHANDLERINFO info = {};
    EXPECT_TRUE(window.OnCmdMsg(11, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(&window, info.pTarget);
    EXPECT_EQ(window.log, "");
    EXPECT_FALSE(window.OnCmdMsg(99, CN_COMMAND, nullptr, &info));
}

TEST_F(MessageMap, NestedMessagesPreserveOuterParameters) {
    class CNester : public CWnd {
    public:
        int depth = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message != WM_SETTEXT || depth++ > 0) return CWnd::WindowProc(message, wParam, lParam);
            SetWindowText("inner");
            return Default(); // the outer text again
        }
    } nester;
    ASSERT_TRUE(nester.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
    nester.SetWindowText("outer");
    CString text;
    nester.GetWindowText(text);
    EXPECT_STREQ(text, "outer");
}

TEST_F(MessageMap, HelpIsRequestedFromTheWindowOutward) {
    class CHelper : public CWnd {
    public:
        LRESULT result = 0;
        int calls = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message != WM_COMMANDHELP) return CWnd::WindowProc(message, wParam, lParam);
            ++calls;
            return result;
        }
    } outer, inner;
    ASSERT_TRUE(outer.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
    ASSERT_TRUE(inner.Create(nullptr, "", WS_CHILD, CRect(0, 0, 5, 5), &outer, 1));
    inner.OnHelp();
    EXPECT_EQ(outer.calls, 1);
    inner.result = 1;
    inner.OnHelp();
    EXPECT_EQ(inner.calls, 2);
    EXPECT_EQ(outer.calls, 1) << "the inner window has shown help";
}

} // namespace
