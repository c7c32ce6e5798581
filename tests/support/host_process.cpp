// Starts other programs and finds their windows.

#include "support/host_process.h"

#include <commctrl.h>

namespace {

struct Child {
    int id;
    HWND found;
};

BOOL CALLBACK IsVisibleChild(HWND window, LPARAM parameter) {
    auto* child = reinterpret_cast<Child*>(parameter);
    if (::GetDlgCtrlID(window) != child->id || !::IsWindowVisible(window)) return TRUE;
    child->found = window;
    return FALSE;
}

} // namespace

HostProcess::~HostProcess() {
    if (m_output != nullptr) ::CloseHandle(m_output);
    if (m_process.hProcess == nullptr) return;
    ::TerminateProcess(m_process.hProcess, 99); // still running only if the test has failed
    ::CloseHandle(m_process.hProcess);
    ::CloseHandle(m_process.hThread);
}

void HostProcess::Start(const std::string& command) {
    char own[MAX_PATH];
    ::GetModuleFileNameA(nullptr, own, MAX_PATH);
    std::string line = command;
    if (command.find(':') != 1) line.insert(0, own, std::string(own).rfind('\\') + 1);
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    HANDLE write = nullptr;
    ASSERT_TRUE(::CreatePipe(&m_output, &write, &inherited, 0));
    STARTUPINFOA start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = write;
    start.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
    const BOOL started =
        ::CreateProcessA(nullptr, &line[0], nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &m_process);
    ::CloseHandle(write);
    ASSERT_TRUE(started);
}

DWORD HostProcess::ExitCode() {
    DWORD code = 99;
    if (::WaitForSingleObject(m_process.hProcess, 60000) == WAIT_OBJECT_0)
        ::GetExitCodeProcess(m_process.hProcess, &code);
    return code;
}

std::string HostProcess::Output() {
    ExitCode();
    std::string output;
    char character;
    for (DWORD read = 0; ::ReadFile(m_output, &character, 1, &read, nullptr) && read == 1;)
        if (character != '\r') output += character;
    return output;
}

template <class Find>
HWND HostProcess::Wait(Find find) {
    for (int i = 0; i < 3000; ++i) {
        if (const HWND window = find()) return window;
        if (::WaitForSingleObject(m_process.hProcess, 20) == WAIT_OBJECT_0) return nullptr;
    }
    return nullptr;
}

HWND HostProcess::Sheet() {
    return Wait([this] {
        const HWND sheet = ::FindWindowA("#32770", "Properties");
        DWORD owner = 0;
        if (sheet != nullptr) ::GetWindowThreadProcessId(sheet, &owner);
        return owner == m_process.dwProcessId && ::IsWindowVisible(sheet) ? sheet : nullptr;
    });
}

HWND HostProcess::Visible(HWND sheet, int id) {
    return Wait([=] {
        Child child = {id, nullptr};
        ::EnumChildWindows(sheet, IsVisibleChild, reinterpret_cast<LPARAM>(&child));
        return child.found;
    });
}

void HostProcess::PressInTabs(HWND sheet, WPARAM key) {
    ::PostMessageA(::FindWindowExA(sheet, nullptr, WC_TABCONTROLA, nullptr), WM_KEYDOWN, key, 1);
}

LRESULT Query(HWND control, UINT message) {
    return ::SendMessageA(control, message, 0, 0);
}
