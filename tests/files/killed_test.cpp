// Replacing a file in a process that is killed at each of its system calls.

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include "files/file_replacement.h"
#include "files/open_file.h"

namespace {

namespace fs = std::filesystem;

// Tracing is forbidden in some containers.
bool MayTrace() {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0 ? 0 : 1);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

[[noreturn]] void ReplaceTraced(const fs::path& path, const std::string& bytes) {
    files::RemoveTemporaryFileOnInterrupt();
    ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    ::raise(SIGSTOP);
    {
        files::FileReplacement file(path);
        file.Write(bytes);
        file.Commit();
    }
    ::_exit(0);
}

// Runs the replacement until that many entries to and exits from system calls, and sends the signal there. Returns
// false if the process ends earlier.
bool EndsAt(int stops, int signal, const fs::path& path, const std::string& bytes) {
    const pid_t child = ::fork();
    if (child == 0) ReplaceTraced(path, bytes);
    int status = 0;
    ::waitpid(child, &status, 0);
    for (int i = 0; i < stops; ++i) {
        ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        ::waitpid(child, &status, 0);
        if (WIFEXITED(status)) return false;
    }
    ::kill(child, signal);
    int delivered = signal == SIGKILL ? SIGKILL : 0;
    do {
        ::ptrace(PTRACE_CONT, child, nullptr, delivered);
        ::waitpid(child, &status, 0);
        delivered = WIFSTOPPED(status) ? WSTOPSIG(status) : 0;
    } while (WIFSTOPPED(status));
    return true;
}

class Ended : public testing::TestWithParam<int> {};

TEST_P(Ended, AtAnyCallKeepsTheOldOrTheNewFile) {
    if (!MayTrace()) GTEST_SKIP() << "this system lets no process trace another";
    const fs::path folder = fs::temp_directory_path() / ("killed-" + std::to_string(::getpid()));
    const fs::path path = folder / "plan.dxf";
    const std::string before = "the old file", after(size_t{5} << 19, 'n'); // written in several pieces
    bool isReplaced = false;
    int stops = 0;
    for (bool isEnded = true; isEnded; ++stops) {
        fs::create_directory(folder);
        std::ofstream(path, std::ios::binary) << before;
        isEnded = EndsAt(stops, GetParam(), path, after);
        const bool isNew = files::HasContents(path, after);
        ASSERT_TRUE(isNew || files::HasContents(path, before)) << "after " << stops << " stops";
        isReplaced = isReplaced || isNew;
        for (const auto& entry : fs::directory_iterator(folder))
            ASSERT_TRUE(entry.path() == path || (GetParam() == SIGKILL && entry.path().extension() == ".tmp"))
                << entry.path() << " after " << stops << " stops";
        fs::remove_all(folder);
    }
    EXPECT_TRUE(isReplaced);
    EXPECT_GT(stops, 20) << "calls that open, write, flush, read and rename";
}

INSTANTIATE_TEST_SUITE_P(Signals, Ended, testing::Values(SIGKILL, SIGINT, SIGTERM));

} // namespace
