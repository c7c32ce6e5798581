// The example host of the README as its user meets it: a program of its own over a real drawing, driven by messages.

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <string>

#include "orlo/resources/resource.h"

namespace {

struct Child {
    int id;
    HWND found;
};

// The one that was built elsewhere and is named by EXAMPLE_HOST; else the one beside this test.
std::string Program() {
    char path[MAX_PATH];
    if (::GetEnvironmentVariableA("EXAMPLE_HOST", path, MAX_PATH) > 0) return path;
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string own = path;
    return own.substr(0, own.rfind('\\') + 1) + "example_host.exe";
}

BOOL CALLBACK IsVisibleChild(HWND window, LPARAM parameter) {
    auto* child = reinterpret_cast<Child*>(parameter);
    if (::GetDlgCtrlID(window) != child->id || !::IsWindowVisible(window)) return TRUE;
    child->found = window;
    return FALSE;
}

class ExampleHost : public ::testing::Test {
protected:
    ~ExampleHost() override {
        if (m_process.hProcess == nullptr) return;
        ::TerminateProcess(m_process.hProcess, 99); // it has ended, unless the test has failed
        ::CloseHandle(m_process.hProcess);
        ::CloseHandle(m_process.hThread);
    }

    void Start(const std::string& arguments) {
        std::string command = Program() + " " + arguments;
        STARTUPINFOA start = {};
        start.cb = sizeof start;
        ASSERT_TRUE(::CreateProcessA(nullptr, &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                     &start, &m_process));
    }
    DWORD ExitCode() {
        DWORD code = 99;
        if (::WaitForSingleObject(m_process.hProcess, 60000) == WAIT_OBJECT_0)
            ::GetExitCodeProcess(m_process.hProcess, &code);
        return code;
    }

    // Null if the program ends before, or never shows it.
    template <class Find>
    HWND Wait(Find find) {
        for (int i = 0; i < 3000; ++i) {
            if (const HWND window = find()) return window;
            if (::WaitForSingleObject(m_process.hProcess, 20) == WAIT_OBJECT_0) return nullptr;
        }
        return nullptr;
    }
    HWND Sheet() {
        return Wait([this] {
            const HWND sheet = ::FindWindowA("#32770", "Properties");
            DWORD owner = 0;
            if (sheet != nullptr) ::GetWindowThreadProcessId(sheet, &owner);
            return owner == m_process.dwProcessId && ::IsWindowVisible(sheet) ? sheet : nullptr;
        });
    }
    HWND Visible(HWND sheet, int id) {
        return Wait([=] {
            Child child = {id, nullptr};
            ::EnumChildWindows(sheet, IsVisibleChild, reinterpret_cast<LPARAM>(&child));
            return child.found;
        });
    }

private:
    PROCESS_INFORMATION m_process = {};
};

LRESULT Ask(HWND control, UINT message) {
    return ::SendMessageA(control, message, 0, 0);
}

TEST_F(ExampleHost, ShowsTheTablesOfItsDrawingAndEndsWell) {
    Start(TEST_DATA "/dxf/kabeja-draft4-roof-details.dxf");
    const HWND sheet = Sheet();
    ASSERT_NE(nullptr, sheet);
    EXPECT_GT(Ask(Visible(sheet, IDC_LAYER), CB_GETCOUNT), 1);

    const HWND tabs = ::FindWindowExA(sheet, nullptr, WC_TABCONTROLA, nullptr);
    ::PostMessageA(tabs, WM_KEYDOWN, VK_RIGHT, 1);
    EXPECT_GT(Ask(Visible(sheet, IDC_LINE_STYLE_LIST), LB_GETCOUNT), 1);
    EXPECT_GT(Ask(Visible(sheet, IDC_COLOR), CB_GETCOUNT), 200);
    ::SendMessageA(Visible(sheet, IDC_PEN_SCALE), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("2.5"));

    ::PostMessageA(tabs, WM_KEYDOWN, VK_RIGHT, 1);
    EXPECT_GT(Ask(Visible(sheet, IDC_BRUSH_STYLE_LIST), LB_GETCOUNT), 1);
    EXPECT_GT(Ask(Visible(sheet, IDC_BRUSH_COLOR), CB_GETCOUNT), 200);

    ::PostMessageA(::GetDlgItem(sheet, IDOK), BM_CLICK, 0, 0);
    EXPECT_EQ(0u, ExitCode());
}

TEST_F(ExampleHost, SaysByItsExitCodeThatThereIsNoDrawing) {
    Start("missing.dxf");
    EXPECT_EQ(2u, ExitCode());
}

} // namespace
