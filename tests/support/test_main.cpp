// The main function of every test program with windows: an application object for the framework, a watchdog that makes
// a hang a failure, and the options of test_environment.h.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "orlo/win/gdi.h"
#include "support/scheme_colors.h"
#include "support/test_environment.h"

namespace {

constexpr DWORD kLimit = 280000; // in milliseconds; below ctest's own limit
constexpr int kHung = 77;        // distinct from 1 (failed) and the system's own codes

DWORD WINAPI Watch(void* finished) {
    if (::WaitForSingleObject(finished, kLimit) == WAIT_OBJECT_0) return 0;
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    std::fprintf(stderr, "hung in %s.%s\n", test ? test->test_suite_name() : "?", test ? test->name() : "?");
    std::fflush(stderr);
    ::TerminateProcess(::GetCurrentProcess(), kHung);
    return 0;
}

int RunTests() {
    CWinApp application("test");
    const HANDLE finished = ::CreateEventA(nullptr, TRUE, FALSE, nullptr);
    const HANDLE watchdog = ::CreateThread(nullptr, 0, Watch, finished, 0, nullptr);
    const int result = RUN_ALL_TESTS();
    ::SetEvent(finished);
    ::WaitForSingleObject(watchdog, INFINITE);
    ::CloseHandle(watchdog);
    ::CloseHandle(finished);
    return result;
}

// Uses colors as in high contrast.
int RunTestsInBlack() {
    constexpr COLORREF black = RGB(0, 0, 0), white = RGB(255, 255, 255);
    const SchemeColors scheme({{COLOR_WINDOW, black},
                               {COLOR_WINDOWTEXT, white},
                               {COLOR_3DFACE, black},
                               {COLOR_BTNTEXT, white},
                               {COLOR_HIGHLIGHT, RGB(0, 0, 128)},
                               {COLOR_HIGHLIGHTTEXT, RGB(255, 255, 0)},
                               {COLOR_GRAYTEXT, RGB(0, 255, 0)}});
    return RunTests();
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const TestEnvironment environment(arguments);
    ::testing::InitGoogleTest(&argc, argv);
    ::SetProcessDPIAware();
    const orlo::WindowDC screen(nullptr); // makes the process read the resolution
    ReportStarted(environment.started);
    if (environment.dpi != 0) return RunAgainAt(environment.dpi, arguments);
    return environment.blackScheme ? RunTestsInBlack() : RunTests();
}
