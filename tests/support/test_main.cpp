// The main of every test program that has windows: an application object for the framework, and a watchdog that turns a
// hang into a failure.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr DWORD kLimit = 280000; // milliseconds; below ctest's own limit
constexpr int kHung = 77;        // distinct from 1 (failed) and the system's own codes

DWORD WINAPI Watch(void* finished) {
    if (::WaitForSingleObject(finished, kLimit) == WAIT_OBJECT_0) return 0;
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    std::fprintf(stderr, "hung in %s.%s\n", test ? test->test_suite_name() : "?", test ? test->name() : "?");
    std::fflush(stderr);
    ::TerminateProcess(::GetCurrentProcess(), kHung);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
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
