// A file that takes another's place, in a process that is killed at each of its calls of the system.

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <stdexcept>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include "drawcore/src/save/file_replacement.h"
#include "tests/dxf/test_files.h"

namespace {

namespace fs = std::filesystem;

// Some containers forbid it.
bool MayTrace() {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0 ? 0 : 1);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

[[noreturn]] void ReplaceTraced(const fs::path& path, const std::string& bytes) {
    ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    ::raise(SIGSTOP);
    {
        dxf::FileReplacement file(path);
        file.Write(bytes, {});
        file.TakePlace();
    }
    ::_exit(0);
}

// Runs the replacement until it has entered and left so many calls, and kills it there. False once it ends before.
bool KillsAt(int stops, const fs::path& path, const std::string& bytes) {
    const pid_t child = ::fork();
    if (child == 0) ReplaceTraced(path, bytes);
    int status = 0;
    ::waitpid(child, &status, 0);
    for (int i = 0; i < stops; ++i) {
        ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        ::waitpid(child, &status, 0);
        if (WIFEXITED(status)) return false;
    }
    ::kill(child, SIGKILL);
    ::waitpid(child, &status, 0);
    return true;
}

TEST(Replacement, KilledAtAnyCallLeavesTheOldFileOrTheNewOne) {
    if (!MayTrace()) GTEST_SKIP() << "this system lets no process trace another";
    const fs::path folder = fs::temp_directory_path() / ("killed-" + std::to_string(::getpid()));
    const fs::path path = folder / "plan.dxf";
    const std::string before = ReadBytes(kDrawings + "made-gbk-R2004.dxf");
    const std::string after(size_t{5} << 19, 'n'); // pieces of it
    bool replaced = false;
    int stops = 0;
    for (bool killed = true; killed; ++stops) {
        fs::create_directory(folder);
        std::ofstream(path, std::ios::binary) << before;
        killed = KillsAt(stops, path, after);
        const std::string now = ReadBytes(path);
        ASSERT_TRUE(now == before || now == after) << "after " << stops << " stops";
        replaced = replaced || now == after;
        for (const auto& entry : fs::directory_iterator(folder))
            ASSERT_TRUE(entry.path() == path || entry.path().extension() == ".tmp") << entry.path();
        fs::remove_all(folder);
    }
    EXPECT_TRUE(replaced);
    EXPECT_GT(stops, 20) << "calls that open, write, flush, read and rename";
}

} // namespace
