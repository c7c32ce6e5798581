// suminfo killed by a debugger before each of its writes: the document must be the old or the new one.

#include <gtest/gtest.h>
#include <map>
#include <windows.h>

#include "program.h"
#include "support/file_bytes.h"

namespace fs = std::filesystem;

namespace {

constexpr BYTE kBreak = 0xCC;

// Runs the program under a debugger that stops at every function that writes, truncates, extends or renames a file.
class Victim {
public:
    explicit Victim(const std::vector<std::string>& arguments) {
        std::wstring line = CommandLineOf(arguments);
        STARTUPINFOW start = {};
        start.cb = sizeof start;
        // The system may fail to start a process while the previously killed one is still being removed.
        for (int attempt = 0; !started_ && attempt < 10; ++attempt) {
            if (attempt > 0) ::Sleep(300);
            started_ = ::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, DEBUG_ONLY_THIS_PROCESS, nullptr,
                                        nullptr, &start, &process_);
        }
        EXPECT_TRUE(started_) << ::GetLastError();
    }
    ~Victim() {
        if (!started_) return;
        ::CloseHandle(process_.hProcess);
        ::CloseHandle(process_.hThread);
    }
    Victim(const Victim&) = delete;
    Victim& operator=(const Victim&) = delete;

    // Returns true if the process was killed before that call (counted from 1), false if it ended earlier.
    bool KillBefore(int call) {
        DEBUG_EVENT event;
        while (started_ && ::WaitForDebugEvent(&event, 60000)) {
            const DWORD code = event.dwDebugEventCode;
            const bool handled = code != EXCEPTION_DEBUG_EVENT || Handle(event, call);
            ::ContinueDebugEvent(event.dwProcessId, event.dwThreadId,
                                 handled ? DBG_CONTINUE : DBG_EXCEPTION_NOT_HANDLED);
            if (code == EXIT_PROCESS_DEBUG_EVENT) return calls_ >= call;
        }
        ADD_FAILURE() << "timeout";
        ::TerminateProcess(process_.hProcess, 1);
        return false;
    }

private:
    bool Handle(const DEBUG_EVENT& event, int call) {
        const EXCEPTION_RECORD& exception = event.u.Exception.ExceptionRecord;
        if (exception.ExceptionCode == EXCEPTION_SINGLE_STEP && passing_) {
            Put(std::exchange(passing_, nullptr), kBreak);
            return true;
        }
        if (exception.ExceptionCode != EXCEPTION_BREAKPOINT) return false;
        if (first_.empty()) {
            for (const char* name : {"NtWriteFile", "NtSetInformationFile"})
                Stop(reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), name)));
        } else if (first_.count(exception.ExceptionAddress) != 0) {
            if (++calls_ == call)
                ::TerminateProcess(process_.hProcess, 1);
            else
                Pass(exception.ExceptionAddress, event.dwThreadId);
        }
        return true;
    }

    void Put(void* at, BYTE code) {
        SIZE_T done;
        EXPECT_TRUE(::WriteProcessMemory(process_.hProcess, at, &code, 1, &done));
        ::FlushInstructionCache(process_.hProcess, at, 1);
    }
    // System libraries have the same address in every process.
    void Stop(void* function) {
        first_[function] = *static_cast<const BYTE*>(function);
        Put(function, kBreak);
    }
    // Executes the function's first instruction and sets the breakpoint again.
    void Pass(void* function, DWORD threadId) {
        Put(function, first_.at(function));
        passing_ = function;
        const HANDLE thread = ::OpenThread(THREAD_ALL_ACCESS, FALSE, threadId);
        CONTEXT context = {};
        context.ContextFlags = CONTEXT_CONTROL;
        ::GetThreadContext(thread, &context);
#ifdef _WIN64
        context.Rip = reinterpret_cast<DWORD64>(function);
#else
        context.Eip = reinterpret_cast<DWORD>(function);
#endif
        constexpr DWORD kSingleStep = 0x100;
        context.EFlags |= kSingleStep;
        ::SetThreadContext(thread, &context);
        ::CloseHandle(thread);
    }

    PROCESS_INFORMATION process_ = {};
    BOOL started_ = FALSE;
    std::map<void*, BYTE> first_; // original byte at the breakpoint of each function
    void* passing_ = nullptr;
    int calls_ = 0;
};

TEST(Killed, AtAnyWriteKeepsTheOldOrTheNewDocument) {
    const Folder folder;
    const fs::path file = folder.Copy(kDocuments / "test11--695187.doc");
    const std::vector<unsigned char> before = FileBytes(file);
    const std::vector<std::string> edit = {"set", file.string(), "title=New"};
    ASSERT_EQ(RunSuminfo(edit).exitCode, 0);
    const std::vector<unsigned char> after = FileBytes(file);
    int call = 0;
    for (bool killed = true; killed;) {
        fs::remove(file);
        folder.Copy(kDocuments / "test11--695187.doc");
        killed = Victim(edit).KillBefore(++call);
        EXPECT_EQ(FileBytes(file), killed ? before : after) << "killed at call " << call;
    }
    EXPECT_GT(call, 4);
    // Leftover temporary files are harmless.
    for (const auto& entry : fs::directory_iterator(folder.Path()))
        EXPECT_TRUE(entry.path() == file || entry.path().extension() == ".tmp") << entry.path();
    EXPECT_EQ(RunSuminfo(edit).exitCode, 0);
}

} // namespace
