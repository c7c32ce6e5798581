// Runs a test program at another resolution or in another color scheme.

#include "support/test_environment.h"

#include <windows.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace {

constexpr int kNotStarted = 76; // exit code; distinct from 1 (failed) and the system's own codes

// A program reads the resolution when it starts. The setting applies to all programs of the session, so it is changed
// only while this one starts.
class ResolutionSetting {
public:
    explicit ResolutionSetting(DWORD dpi) {
        DWORD size = sizeof m_before;
        m_wasSet = ::RegGetValueA(HKEY_CURRENT_USER, kKey, kName, RRF_RT_REG_DWORD, nullptr, &m_before, &size) ==
                   ERROR_SUCCESS;
        Set(dpi);
    }
    ~ResolutionSetting() {
        if (m_wasSet)
            Set(m_before);
        else
            ::RegDeleteKeyValueA(HKEY_CURRENT_USER, kKey, kName);
    }
    ResolutionSetting(const ResolutionSetting&) = delete;
    ResolutionSetting& operator=(const ResolutionSetting&) = delete;

private:
    static constexpr char kKey[] = "Control Panel\\Desktop", kName[] = "LogPixels";
    static void Set(DWORD dpi) { ::RegSetKeyValueA(HKEY_CURRENT_USER, kKey, kName, REG_DWORD, &dpi, sizeof dpi); }

    DWORD m_before = 0;
    bool m_wasSet = false;
};

bool Takes(const std::string& argument, const std::string& option, std::string& value) {
    if (argument.rfind(option, 0) != 0) return false;
    value = argument.substr(option.size());
    return true;
}

} // namespace

TestEnvironment::TestEnvironment(const std::vector<std::string>& arguments) {
    for (const std::string& argument : arguments) {
        std::string value;
        if (Takes(argument, "--dpi=", value))
            dpi = std::atoi(value.c_str());
        else if (Takes(argument, "--scheme=", value))
            blackScheme = value == "black";
        else
            Takes(argument, "--started=", started);
    }
}

int RunAgainAt(int dpi, const std::vector<std::string>& arguments) {
    const std::string event = "orlo test " + std::to_string(::GetCurrentProcessId());
    char program[MAX_PATH];
    ::GetModuleFileNameA(nullptr, program, sizeof program);
    std::string command = '"' + std::string(program) + "\" \"--started=" + event + '"';
    std::string resolution;
    for (const std::string& argument : arguments)
        if (!Takes(argument, "--dpi=", resolution)) command += " \"" + argument + '"';

    const HANDLE started = ::CreateEventA(nullptr, TRUE, FALSE, event.c_str());
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    {
        const ResolutionSetting setting(static_cast<DWORD>(dpi));
        if (!::CreateProcessA(program, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process))
            return kNotStarted;
        const HANDLE either[] = {started, process.hProcess};
        ::WaitForMultipleObjects(2, either, FALSE, INFINITE);
    }
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = kNotStarted;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    ::CloseHandle(started);
    return static_cast<int>(code);
}

void ReportStarted(const std::string& name) {
    if (name.empty()) return;
    const HANDLE event = ::OpenEventA(EVENT_MODIFY_STATE, FALSE, name.c_str());
    ::SetEvent(event);
    ::CloseHandle(event);
}
