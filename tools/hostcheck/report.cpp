// Starts the processes that check, listens to them, and prints a line for each promise.

#include "report.h"

#include <cstdio>
#include <memory>
#include <stdexcept>

#include "promise.h"

namespace {

constexpr DWORD kLongest = 20000; // milliseconds that one promise may take
constexpr DWORD kTimedOut = 0xFFFFFFFF;
constexpr int kAttempts = 3;            // to start a process: a busy system refuses one in some thousands
constexpr DWORD kBetweenAttempts = 200; // milliseconds

struct CloseIt {
    void operator()(void* handle) const { ::CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, CloseIt>;

// A process of this program that inspects from a promise on, and the lines that it reports.
class Inspector {
public:
    Inspector(const std::wstring& database, const std::wstring& drawingFile, size_t first) {
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        HANDLE read = nullptr, write = nullptr;
        if (!::CreatePipe(&read, &write, &inherited, 0)) throw std::runtime_error("no pipe");
        read_.reset(read);
        const Handle theirs(write); // theirs alone once they have started: the pipe then ends with them
        ::SetHandleInformation(read, HANDLE_FLAG_INHERIT, 0);
        wchar_t own[MAX_PATH];
        ::GetModuleFileNameW(nullptr, own, MAX_PATH);
        std::wstring command = L"\"" + std::wstring(own) + L"\" --inspect " +
                               std::to_wstring(reinterpret_cast<uintptr_t>(write)) + L" " +
                               std::to_wstring(first) + L" \"" + database + L"\" \"" + drawingFile + L"\"";
        STARTUPINFOW start = {};
        start.cb = sizeof start;
        PROCESS_INFORMATION process = {};
        for (int attempt = 1; !::CreateProcessW(own, &command[0], nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                                                &start, &process);
             ++attempt) {
            if (attempt == kAttempts) throw std::runtime_error("the inspecting process cannot be started");
            ::Sleep(kBetweenAttempts);
        }
        ::CloseHandle(process.hThread);
        process_.reset(process.hProcess);
    }

    // False when there are no more: the process has ended, or has been ended since it took too long.
    bool NextLine(std::string& line) {
        size_t end;
        while ((end = told_.find('\n')) == std::string::npos)
            if (!ReadMore()) return false;
        line = told_.substr(0, end);
        told_.erase(0, end + 1);
        return true;
    }

    DWORD ExitCode() {
        if (timedOut_) return kTimedOut;
        DWORD code = 0;
        ::WaitForSingleObject(process_.get(), kLongest);
        ::GetExitCodeProcess(process_.get(), &code);
        return code;
    }

private:
    bool ReadMore() {
        DWORD waiting = 0;
        for (DWORD waited = 0; waiting == 0; waited += 10) {
            if (!::PeekNamedPipe(read_.get(), nullptr, 0, nullptr, &waiting, nullptr)) return false;
            if (waiting != 0) break;
            if (waited >= kLongest) {
                timedOut_ = true;
                ::TerminateProcess(process_.get(), 1);
                return false;
            }
            ::Sleep(10);
        }
        char bytes[1024];
        DWORD count = 0;
        if (!::ReadFile(read_.get(), bytes, sizeof bytes, &count, nullptr) || count == 0) return false;
        told_.append(bytes, count);
        return true;
    }

    Handle read_, process_;
    std::string told_;
    bool timedOut_ = false;
};

std::string WhatEnded(DWORD code) {
    char text[64];
    switch (code) {
    case kTimedOut:
        return "it did not come back within 20 seconds";
    case EXCEPTION_ACCESS_VIOLATION:
        return "it crashed: access violation";
    case EXCEPTION_STACK_OVERFLOW:
        return "it crashed: stack overflow";
    default:
        std::snprintf(text, sizeof text, "it ended the process, code 0x%lX", code);
        return text;
    }
}

void Print(const Promise& promise, const std::string& found) {
    std::printf("%-7s %-26s %s", found.empty() ? "kept" : "broken", promise.function, promise.what);
    if (!found.empty()) std::printf("\n%35s%s", "", ("found: " + found).c_str());
    std::printf("\n");
    std::fflush(stdout);
}

// What one process has found, from the promise `next` on; next is the first that is still to be checked.
void Follow(Inspector& inspector, size_t& next, Inspected& inspected) {
    const auto& promises = AllPromises();
    bool checking = false;
    std::string line;
    while (inspector.NextLine(line)) {
        if (line.rfind("failed ", 0) == 0) inspected.failure = line.substr(7);
        if (line == "end" || !inspected.failure.empty()) return;
        checking = line.rfind("start ", 0) == 0;
        if (checking) continue;
        const bool kept = line.rfind("kept ", 0) == 0;
        const size_t text = line.find(' ', line.find(' ') + 1);
        Print(promises[next++], kept ? "" : line.substr(text + 1));
        ++(kept ? inspected.kept : inspected.broken);
    }
    const std::string ended = WhatEnded(inspector.ExitCode());
    if (!checking) {
        inspected.failure = "while the database was loaded and its drawing made " + ended;
        return;
    }
    Print(promises[next++], ended);
    ++inspected.broken;
}

} // namespace

Inspected InspectInProcesses(const std::wstring& database, const std::wstring& drawingFile) {
    Inspected inspected;
    for (size_t next = 0; next < AllPromises().size() && inspected.failure.empty();) {
        Inspector inspector(database, drawingFile, next);
        Follow(inspector, next, inspected);
    }
    return inspected;
}
