// Windows and objects: creation, permanent map, temporary objects, subclassing, destruction.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <psapi.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

// Records the messages that it receives.
class CLog : public CWnd {
public:
    std::vector<UINT> messages;
    bool* deleted = nullptr;
    bool failCreate = false;
    ~CLog() override {
        if (deleted != nullptr) *deleted = true;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        messages.push_back(message);
        if (message == WM_CREATE && failCreate) return -1;
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override {
        EXPECT_EQ(m_hWnd, nullptr);
        messages.push_back(0);
        if (deleted != nullptr) delete this;
    }
};

class Window : public ::testing::Test {
protected:
    CLog parent;
    void SetUp() override {
        ASSERT_TRUE(parent.CreateEx(0, nullptr, "parent", WS_POPUP, 0, 0, 200, 100, nullptr, nullptr));
    }
    void TearDown() override { parent.DestroyWindow(); }
    static const CRect kPlace;
};
const CRect Window::kPlace(10, 20, 60, 50);

bool Contains(const std::vector<UINT>& messages, UINT message) {
    return std::find(messages.begin(), messages.end(), message) != messages.end();
}

TEST_F(Window, ReceivesItsFirstAndLastMessages) {
    CLog child;
    ASSERT_TRUE(child.Create("STATIC", "text", WS_CHILD, kPlace, &parent, 5));
    EXPECT_EQ(child.messages.front(), static_cast<UINT>(WM_NCCREATE));
    EXPECT_TRUE(Contains(child.messages, WM_CREATE));
    EXPECT_EQ(child.GetDlgCtrlID(), 5);
    CString text;
    child.GetWindowText(text);
    EXPECT_STREQ(text, "text") << "the window was created by the procedure of its class";

    child.messages.clear();
    HWND window = child.m_hWnd;
    EXPECT_TRUE(child.DestroyWindow());
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(std::vector<UINT>(child.messages.end() - 2, child.messages.end()), (std::vector<UINT>{WM_NCDESTROY, 0}));
    EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);

    ASSERT_TRUE(child.Create("BUTTON", "again", WS_CHILD, kPlace, &parent, 6)) << "an object can be reused";
    EXPECT_EQ(DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON, child.SendMessage(WM_GETDLGCODE));
}

TEST_F(Window, ObjectStaysEmptyIfCreationFails) {
    CLog rejected;
    rejected.failCreate = true;
    EXPECT_FALSE(rejected.Create(nullptr, "", WS_CHILD, kPlace, &parent, 1));
    EXPECT_EQ(rejected.m_hWnd, nullptr);
    EXPECT_EQ(rejected.messages.back(), 0u) << "notified by PostNcDestroy once";
    EXPECT_EQ(std::count(rejected.messages.begin(), rejected.messages.end(), 0u), 1);

    CLog unknown;
    EXPECT_FALSE(unknown.Create("no such class", "", WS_CHILD, kPlace, &parent, 1));
    EXPECT_EQ(unknown.messages, (std::vector<UINT>{0}));
    CLog next; // no state remains from the failed creation
    EXPECT_TRUE(next.Create(nullptr, "", WS_CHILD, kPlace, &parent, 1));
    EXPECT_EQ(unknown.m_hWnd, nullptr);
}

TEST_F(Window, ObjectsOfChildrenAreNotTheirParents) {
    // The object is attached to the requested window, not to child windows created with it.
    CLog combo;
    ASSERT_TRUE(combo.Create("COMBOBOX", "", WS_CHILD | CBS_DROPDOWN, kPlace, &parent, 1));
    HWND edit = ::GetWindow(combo.m_hWnd, GW_CHILD);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(edit), nullptr);
    EXPECT_EQ(&combo, CWnd::FromHandlePermanent(combo.m_hWnd));
}

TEST_F(Window, HeapObjectCanBeDeletedWithItsWindow) {
    bool deleted = false;
    auto* child = new CLog;
    child->deleted = &deleted;
    ASSERT_TRUE(child->Create(nullptr, "", WS_CHILD, kPlace, &parent, 1));
    child->OnFinalRelease();
    EXPECT_TRUE(deleted);

    deleted = false;
    child = new CLog;
    child->deleted = &deleted;
    child->OnFinalRelease(); // without a window
    EXPECT_TRUE(deleted);

    deleted = false;
    child = new CLog;
    child->deleted = &deleted;
    ASSERT_TRUE(child->Create(nullptr, "", WS_CHILD, kPlace, &parent, 1));
    parent.DestroyWindow();
    EXPECT_TRUE(deleted);
}

TEST_F(Window, IsDestroyedByItsDestructor) {
    auto child = std::make_unique<CWnd>();
    ASSERT_TRUE(child->Create(nullptr, "", WS_CHILD, kPlace, &parent, 1));
    HWND window = child->m_hWnd;
    child.reset();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
}

TEST_F(Window, TemporaryObjectsOutliveNestedMessages) {
    HWND plain = ::CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 1, 1, parent.m_hWnd, nullptr, nullptr, nullptr);
    CWnd* before = CWnd::FromHandle(plain);
    EXPECT_EQ(before, CWnd::FromHandle(plain)) << "one object for one window";
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);

    class CAsker : public CWnd {
    public:
        HWND other = nullptr;
        CWnd* seen = nullptr;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_APP) seen = FromHandle(other);
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } asker;
    ASSERT_TRUE(asker.Create(nullptr, "", WS_CHILD, kPlace, &parent, 1));
    asker.other = plain;
    asker.SendMessage(WM_APP);
    EXPECT_EQ(before, asker.seen);
    EXPECT_EQ(before, CWnd::FromHandle(plain));
    EXPECT_TRUE(::IsWindow(plain)) << "a temporary object does not own its window";

    CWnd owner;
    owner.Attach(plain);
    EXPECT_EQ(&owner, CWnd::FromHandle(plain)) << "the permanent one comes first";
    EXPECT_EQ(plain, owner.Detach());
    EXPECT_EQ(before, CWnd::FromHandle(plain));
}

TEST_F(Window, TemporaryObjectsAreFreedAfterTheirMessage) {
    // Each message creates many temporary objects, which must not accumulate.
    class CMaker : public CWnd {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message != WM_APP) return CWnd::WindowProc(message, wParam, lParam);
            for (UINT_PTR i = 1; i <= 1000; ++i)
                FromHandle(reinterpret_cast<HWND>(wParam * 1000 + i));
            return 0;
        }
    } maker;
    ASSERT_TRUE(maker.Create(nullptr, "", WS_CHILD, kPlace, &parent, 1));
    const auto used = [] {
        PROCESS_MEMORY_COUNTERS counters = {};
        ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
        return counters.WorkingSetSize;
    };
    const auto send = [&](WPARAM count) {
        for (WPARAM i = 0; i < count; ++i)
            maker.SendMessage(WM_APP, 0x100 + i);
    };
    send(50);
    const SIZE_T before = used();
    ASSERT_GT(before, 0u);
    send(500); // half a million objects
    EXPECT_LT(used(), before + 10000000);
}

TEST_F(Window, UnsubclassingRestoresTheProcedure) {
    HWND edit = ::CreateWindowExA(0, "EDIT", "abc", WS_CHILD, 0, 0, 50, 20, parent.m_hWnd, nullptr, nullptr, nullptr);
    const auto before = ::GetWindowLongPtrA(edit, GWLP_WNDPROC);
    CLog object;
    ASSERT_TRUE(object.SubclassWindow(edit));
    EXPECT_EQ(AfxGetAfxWndProc(), reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(edit, GWLP_WNDPROC)));
    EXPECT_EQ(::SendMessageA(edit, EM_LINELENGTH, 0, 0), 3);
    EXPECT_TRUE(Contains(object.messages, EM_LINELENGTH));
    CLog second;
    EXPECT_FALSE(second.SubclassWindow(edit)) << "the window has an object";

    EXPECT_EQ(edit, object.UnsubclassWindow());
    EXPECT_EQ(before, ::GetWindowLongPtrA(edit, GWLP_WNDPROC));
    object.messages.clear();
    EXPECT_EQ(::SendMessageA(edit, EM_LINELENGTH, 0, 0), 3);
    EXPECT_TRUE(object.messages.empty());
    ASSERT_TRUE(second.SubclassWindow(edit));
    ::DestroyWindow(edit);
    EXPECT_EQ(second.m_hWnd, nullptr);
    EXPECT_FALSE(object.SubclassWindow(edit)) << "no window";
}

// A window class that decides at the first message whether a window gets an object: number 1 does.
class CCreated : public CLog {
public:
    static WNDPROC super;
    static CCreated* instance;

protected:
    WNDPROC* GetSuperWndProcAddr() override { return &super; }
};
WNDPROC CCreated::super = nullptr;
CCreated* CCreated::instance = nullptr;

LRESULT CALLBACK FirstMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (::GetDlgCtrlID(window) == 1) {
        CCreated::instance = new CCreated;
        CCreated::instance->Attach(window);
    }
    ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxGetAfxWndProc()));
    return ::CallWindowProcA(AfxGetAfxWndProc(), window, message, wParam, lParam);
}

TEST_F(Window, OfAnObjectCreatingClassWorksWithoutAnObject) {
    WNDCLASSA list = {};
    ASSERT_TRUE(::GetClassInfoA(nullptr, "LISTBOX", &list));
    CCreated::super = list.lpfnWndProc;
    list.lpszClassName = "AfxTestList";
    list.hInstance = AfxGetInstanceHandle();
    list.lpfnWndProc = FirstMessage;
    const ATOM atom = ::RegisterClassA(&list);
    ASSERT_NE(atom, 0);
    AfxRegisterSuperWndProc(atom, CCreated::super);
    const auto create = [&](UINT_PTR id) {
        return ::CreateWindowExA(0, "AfxTestList", "", WS_CHILD, 0, 0, 50, 50, parent.m_hWnd,
                                 reinterpret_cast<HMENU>(id), AfxGetInstanceHandle(), nullptr);
    };
    HWND withObject = create(1);
    ASSERT_NE(CCreated::instance, nullptr);
    EXPECT_EQ(CCreated::instance, CWnd::FromHandlePermanent(withObject));
    EXPECT_EQ(CCreated::instance->messages.front(), static_cast<UINT>(WM_NCCREATE));

    HWND plain = create(2);
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    for (HWND window : {withObject, plain}) {
        EXPECT_EQ(::SendMessageA(window, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("item")), 0);
        EXPECT_EQ(::SendMessageA(window, LB_GETCOUNT, 0, 0), 1);
    }
    ::DestroyWindow(plain);
    ::DestroyWindow(withObject);
    delete CCreated::instance;
    ::UnregisterClassA("AfxTestList", AfxGetInstanceHandle());
}

TEST_F(Window, UsesTheProcedureOfItsClassAfterItsObjectIsGone) {
    CWnd object;
    ASSERT_TRUE(object.Create("LISTBOX", "", WS_CHILD, kPlace, &parent, 1));
    HWND window = object.Detach();
    EXPECT_EQ(::SendMessageA(window, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("item")), 0);
    ::DestroyWindow(window);
}

TEST_F(Window, SendsMessagesToItsDescendants) {
    CLog child, grandchild;
    ASSERT_TRUE(child.Create(nullptr, "", WS_CHILD, kPlace, &parent, 1));
    ASSERT_TRUE(grandchild.Create(nullptr, "", WS_CHILD, kPlace, &child, 1));
    parent.SendMessageToDescendants(WM_APP, 1, 2, FALSE);
    EXPECT_TRUE(Contains(child.messages, WM_APP));
    EXPECT_FALSE(Contains(grandchild.messages, WM_APP));
    parent.SendMessageToDescendants(WM_APP);
    EXPECT_TRUE(Contains(grandchild.messages, WM_APP));
    EXPECT_FALSE(Contains(parent.messages, WM_APP));
}

TEST_F(Window, PretranslatesFromTheInnermostWindowOutward) {
    class CTaker : public CWnd {
    public:
        int calls = 0;
        BOOL takes = FALSE;
        BOOL PreTranslateMessage(MSG*) override {
            ++calls;
            return takes;
        }
    } outer, inner;
    ASSERT_TRUE(outer.Create(nullptr, "", WS_CHILD, kPlace, &parent, 1));
    ASSERT_TRUE(inner.Create(nullptr, "", WS_CHILD, kPlace, &outer, 1));
    MSG message = {};
    message.hwnd = inner.m_hWnd;
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(nullptr, &message));
    EXPECT_EQ(outer.calls, 1);
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(inner.m_hWnd, &message));
    EXPECT_EQ(outer.calls, 1) << "stopped before it";
    inner.takes = TRUE;
    EXPECT_TRUE(CWnd::WalkPreTranslateTree(nullptr, &message));
    EXPECT_EQ(outer.calls, 1);
    EXPECT_EQ(inner.calls, 3);
}

TEST_F(Window, SetsATextOnlyIfItDiffers) {
    CLog child;
    ASSERT_TRUE(child.Create("STATIC", "same", WS_CHILD, kPlace, &parent, 1));
    child.messages.clear();
    AfxSetWindowText(child.m_hWnd, "same");
    EXPECT_FALSE(Contains(child.messages, WM_SETTEXT));
    AfxSetWindowText(child.m_hWnd, "sane");
    EXPECT_TRUE(Contains(child.messages, WM_SETTEXT));
    AfxSetWindowText(child.m_hWnd, nullptr);
    EXPECT_EQ(child.GetWindowTextLength(), 0);
}

TEST_F(Window, IsCenteredOnItsOwnerWithinTheScreen) {
    parent.SetWindowPos(nullptr, 300, 200, 400, 300, SWP_NOZORDER | SWP_SHOWWINDOW);
    CWnd popup;
    ASSERT_TRUE(popup.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 100, 60, parent.m_hWnd, nullptr));
    popup.CenterWindow();
    CRect place;
    popup.GetWindowRect(&place);
    EXPECT_EQ(CRect(450, 320, 550, 380), place);
    parent.MoveWindow(-380, -290, 400, 300);
    popup.CenterWindow();
    popup.GetWindowRect(&place);
    EXPECT_EQ(CPoint(0, 0), place.TopLeft());
}

} // namespace
