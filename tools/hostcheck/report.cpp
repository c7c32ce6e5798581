// Starts the child processes, reads their results, and prints a line for each requirement.

#include "report.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <stdexcept>

#include "requirement.h"

namespace {

constexpr DWORD kTimeLimit = 20000; // milliseconds for one check
constexpr DWORD kTimedOut = 0xFFFFFFFF;
constexpr int kAttempts = 3;            // to start a process, which rarely fails on a busy system
constexpr DWORD kBetweenAttempts = 200; // milliseconds

struct CloseIt {
    void operator()(void* handle) const { ::CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, CloseIt>;

// A child process of this program that runs the checks from a given number on, and the lines that it writes.
class CheckProcess {
public:
    CheckProcess(const std::wstring& database, const std::wstring& drawingFile, size_t first) {
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        HANDLE read = nullptr, write = nullptr;
        if (!::CreatePipe(&read, &write, &inherited, 0)) throw std::runtime_error("cannot create a pipe");
        read_.reset(read);
        const Handle writeEnd(write); // closed here once the child has it: the pipe then ends with the child
        ::SetHandleInformation(read, HANDLE_FLAG_INHERIT, 0);
        wchar_t own[MAX_PATH];
        ::GetModuleFileNameW(nullptr, own, MAX_PATH);
        std::wstring command = L"\"" + std::wstring(own) + L"\" --inspect " +
                               std::to_wstring(reinterpret_cast<uintptr_t>(write)) + L" " + std::to_wstring(first) +
                               L" \"" + database + L"\" \"" + drawingFile + L"\"";
        STARTUPINFOW start = {};
        start.cb = sizeof start;
        PROCESS_INFORMATION process = {};
        for (int attempt = 1;
             !::CreateProcessW(own, &command[0], nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process);
             ++attempt) {
            if (attempt == kAttempts) throw std::runtime_error("cannot start the child process");
            ::Sleep(kBetweenAttempts);
        }
        ::CloseHandle(process.hThread);
        process_.reset(process.hProcess);
    }

    // Returns false at the end of the lines: the process has ended, or was terminated because it exceeded the time
    // limit.
    bool NextLine(std::string& line) {
        size_t end;
        while ((end = received_.find('\n')) == std::string::npos)
            if (!ReadMore()) return false;
        line = received_.substr(0, end);
        received_.erase(0, end + 1);
        return true;
    }

    DWORD ExitCode() {
        if (timedOut_) return kTimedOut;
        DWORD code = 0;
        ::WaitForSingleObject(process_.get(), kTimeLimit);
        ::GetExitCodeProcess(process_.get(), &code);
        return code;
    }

private:
    bool ReadMore() {
        DWORD waiting = 0;
        for (DWORD waited = 0; waiting == 0; waited += 10) {
            if (!::PeekNamedPipe(read_.get(), nullptr, 0, nullptr, &waiting, nullptr)) return false;
            if (waiting != 0) break;
            if (waited >= kTimeLimit) {
                timedOut_ = true;
                ::TerminateProcess(process_.get(), 1);
                return false;
            }
            ::Sleep(10);
        }
        char bytes[1024];
        DWORD count = 0;
        if (!::ReadFile(read_.get(), bytes, sizeof bytes, &count, nullptr) || count == 0) return false;
        received_.append(bytes, count);
        return true;
    }

    Handle read_, process_;
    std::string received_;
    bool timedOut_ = false;
};

// Describes why a child process ended during a check.
std::string DescribeEnd(DWORD code) {
    char text[64];
    switch (code) {
    case kTimedOut:
        return "the function did not return within 20 seconds";
    case EXCEPTION_ACCESS_VIOLATION:
        return "the function crashed: access violation";
    case EXCEPTION_STACK_OVERFLOW:
        return "the function crashed: stack overflow";
    default:
        std::snprintf(text, sizeof text, "the function ended the process with code 0x%lX", code);
        return text;
    }
}

// Prints a line for the requirement and, unless it is kept, one with the reason.
void Print(const Requirement& requirement, const std::string& word, const std::string& text) {
    std::printf("%-6s  %-26s %s\n", word.c_str(), requirement.function, requirement.what);
    if (word == "broken") std::printf("%35sfound: %s\n", "", text.c_str());
    if (word == "stub") std::printf("%35s%s is a stub; lost: %s\n", "", text.c_str(), LostByStub(text));
    std::fflush(stdout);
}

void Report(size_t number, const std::string& word, const std::string& text, Inspected& inspected) {
    Print(AllRequirements()[number], word, text);
    ++(word == "kept" ? inspected.kept : word == "stub" ? inspected.stubs : inspected.broken);
}

// Reads the results of one child process. `next` is the number of the next requirement to check.
void ReadResults(CheckProcess& child, size_t& next, Inspected& inspected) {
    bool checking = false;
    std::string line;
    while (child.NextLine(line)) {
        const std::string word = line.substr(0, line.find(' '));
        const std::string rest = line.substr(std::min(word.size() + 1, line.size()));
        if (word == "error") inspected.error = rest;
        if (word == "end" || word == "error") return;
        if (word == "note") {
            std::fprintf(stderr, "hostcheck: %s\n", rest.c_str());
        } else if (word == "missing") {
            std::printf("missing %s\n", rest.c_str());
            ++inspected.missing;
        } else {
            checking = word == "start";
            if (!checking) Report(next++, word, rest.substr(rest.find(' ') + 1), inspected);
        }
    }
    const std::string ended = DescribeEnd(child.ExitCode());
    if (checking)
        Report(next++, "broken", ended, inspected);
    else
        inspected.error = "while the database was loaded or its drawing created, " + ended;
}

} // namespace

Inspected InspectInProcesses(const std::wstring& database, const std::wstring& drawingFile) {
    Inspected inspected;
    for (size_t next = 0; next < AllRequirements().size() && inspected.error.empty();) {
        CheckProcess child(database, drawingFile, next);
        ReadResults(child, next, inspected);
    }
    return inspected;
}
