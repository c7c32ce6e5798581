// Exceptions of message handlers: caught in the window procedure, with a message unless the user was already informed.

#include "support/message_box_watcher.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

class CThrower : public CWnd {
public:
    void (*thrower)() = nullptr;
    UINT when = WM_APP;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == when) thrower();
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

struct Thrown {
    const char* name;
    void (*thrower)();
    const char* message; // null: no message box
};

class HandlerThatThrows : public ::testing::TestWithParam<Thrown> {};

TEST_P(HandlerThatThrows, IsReportedOnce) {
    CThrower window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
    window.thrower = GetParam().thrower;
    MessageBoxWatcher boxes;
    EXPECT_EQ(window.SendMessage(WM_APP), 0);
    if (GetParam().message == nullptr) {
        EXPECT_TRUE(boxes.Boxes().empty());
    } else {
        EXPECT_EQ(GetParam().message, boxes.OnlyText());
    }
}

const Thrown kThrown[] = {
    {"User", [] { AfxThrowUserException(); }, nullptr},
    {"NotSupported", [] { AfxThrowNotSupportedException(); }, "The operation is not supported."},
    {"File", [] { AfxThrowFileException(CFileException::fileNotFound, 2, "C:\\x 100%.txt"); },
     "C:\\x 100%.txt: the file was not found."},
    {"Standard", [] { throw std::runtime_error("ran out of luck"); }, "ran out of luck"},
    {"Number", [] { throw 5; }, "An internal error occurred."},
};
INSTANTIATE_TEST_SUITE_P(All, HandlerThatThrows, ::testing::ValuesIn(kThrown), [](auto& i) { return i.param.name; });

TEST(HandlerThatThrows, PreventsCreationOfTheWindow) {
    CThrower window;
    window.thrower = [] { AfxThrowUserException(); };
    window.when = WM_CREATE;
    EXPECT_FALSE(window.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
    EXPECT_EQ(window.m_hWnd, nullptr);
}

TEST(HandlerThatThrows, IsReportedOncePerWindowWhilePainting) {
    for (const UINT painting : {WM_PAINT, WM_DRAWITEM}) {
        CThrower window;
        ASSERT_TRUE(window.CreateEx(0, nullptr, "", WS_POPUP | WS_VISIBLE, 0, 0, 99, 99, nullptr, nullptr));
        window.thrower = [] { AfxThrowNotSupportedException(); };
        window.when = painting;
        MessageBoxWatcher boxes;
        DRAWITEMSTRUCT item = {};
        for (int i = 0; i < 3; ++i) {
            window.Invalidate();
            window.UpdateWindow();
            window.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
        }
        EXPECT_FALSE(::GetUpdateRect(window.m_hWnd, nullptr, FALSE));
        EXPECT_EQ(boxes.OnlyText(), "The operation is not supported.");
    }
}

TEST(Exception, MessageIsTruncatedToTheBuffer) {
    CFileException full(CFileException::diskFull, 0, "A:\\file");
    char text[10];
    EXPECT_TRUE(full.GetErrorMessage(text, sizeof text));
    EXPECT_STREQ(text, "A:\\file: ");
    EXPECT_FALSE(CUserException().GetErrorMessage(text, sizeof text));
    EXPECT_STREQ(text, "");
}

} // namespace
