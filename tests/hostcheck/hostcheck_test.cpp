// Runs hostcheck as the author of a host does: complete databases pass, and each fault is reported for its function.

#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <set>
#include <sstream>
#include <string>

#include "faults.h"

namespace {

struct CloseIt {
    void operator()(void* handle) const { ::CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, CloseIt>;

struct Outcome {
    DWORD exitCode = 99;
    std::string out; // standard output and standard error
};

std::string Folder() {
    char own[MAX_PATH];
    ::GetModuleFileNameA(nullptr, own, MAX_PATH);
    const std::string path = own;
    return path.substr(0, path.rfind('\\') + 1);
}

Outcome Hostcheck(const std::string& arguments) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    HANDLE read = nullptr, write = nullptr;
    ::CreatePipe(&read, &write, &inherited, 0);
    const Handle ours(read);
    Handle theirs(write);
    ::SetHandleInformation(read, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOA start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = write;
    std::string command = Folder() + "hostcheck.exe " + arguments;
    PROCESS_INFORMATION process = {};
    Outcome outcome;
    if (!::CreateProcessA(nullptr, &command[0], nullptr, nullptr, TRUE, 0, nullptr, Folder().c_str(), &start, &process))
        return outcome;
    const Handle thread(process.hThread), running(process.hProcess);
    theirs.reset();
    char bytes[4096];
    for (DWORD count; ::ReadFile(read, bytes, sizeof bytes, &count, nullptr) && count;)
        outcome.out.append(bytes, count);
    ::WaitForSingleObject(running.get(), INFINITE);
    ::GetExitCodeProcess(running.get(), &outcome.exitCode);
    return outcome;
}

TEST(HostcheckProgram, PassesForCompleteDatabases) {
    ::SetEnvironmentVariableA(kFaultVariable, nullptr);
    for (const char* arguments :
         {"drawcore32.dll", "drawcore32.dll --drawing " TEST_DATA "/dxf/kabeja-draft4-roof-details.dxf",
          "skeleton\\drawcore32.dll", "faulty\\drawcore32.dll"}) {
        const Outcome outcome = Hostcheck(arguments);
        EXPECT_EQ(outcome.exitCode, 0u) << arguments << '\n' << outcome.out;
        EXPECT_NE(std::string::npos, outcome.out.find("passed  MatrixScale")) << outcome.out;
    }
}

// Returns the lines of requirements with that result, without the result.
std::set<std::string> Requirements(const Outcome& outcome, const std::string& state) {
    std::set<std::string> requirements;
    std::istringstream lines(outcome.out);
    for (std::string line; std::getline(lines, line);)
        if (line.rfind(state, 0) == 0 && line.find("is exported") == std::string::npos)
            requirements.insert(line.substr(8, line.find_last_not_of('\r') - 7));
    return requirements;
}

TEST(HostcheckProgram, ReportsEachFaultAndEachRequirementCanFail) {
    std::set<std::string> failed;
    for (const Fault& fault : kFaults) {
        ::SetEnvironmentVariableA(kFaultVariable, fault.name);
        const Outcome outcome = Hostcheck("faulty\\drawcore32.dll");
        EXPECT_EQ(outcome.exitCode, 1u) << fault.name;
        EXPECT_NE(std::string::npos, outcome.out.find(std::string("FAILED  ") + fault.function + ' ')) << fault.name;
        EXPECT_NE(std::string::npos, outcome.out.find(" passed, "))
            << fault.name << ": some requirements were not checked";
        failed.merge(Requirements(outcome, "FAILED"));
    }
    ::SetEnvironmentVariableA(kFaultVariable, nullptr);
    const std::set<std::string> all = Requirements(Hostcheck("faulty\\drawcore32.dll"), "passed");
    EXPECT_GT(all.size(), 100u);
    for (const std::string& requirement : all)
        EXPECT_EQ(failed.count(requirement), 1u) << "no fault violates: " << requirement;
}

TEST(HostcheckProgram, ReportsWhyADatabaseCannotBeChecked) {
    struct Row {
        const char* arguments;
        const char* message;
    };
    for (const Row& row : {Row{"nosuch.dll", "cannot load the database"},
                           {"hostcheck.exe", "AppGetCurrentApp"},
                           {"drawcore32.dll --drawing nosuch.dxf", "cannot open the drawing"},
                           {"skeleton\\drawcore32.dll --drawing x.dxf", "DrawingOpenDxf"},
                           {"", "usage"},
                           {"--nosuch", "usage"}}) {
        const Outcome outcome = Hostcheck(row.arguments);
        EXPECT_EQ(outcome.exitCode, 2u) << row.arguments;
        EXPECT_NE(std::string::npos, outcome.out.find(row.message)) << row.arguments << ": " << outcome.out;
    }
}

} // namespace
