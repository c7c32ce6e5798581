// Runs hostcheck as the author of a host does: complete databases pass, and each fault is reported for its function.

#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <iterator>
#include <memory>
#include <mutex>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "faults.h"
#include "orlo/host/property_list.h"

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

std::mutex starting; // a process inherits the environment and all pipes that are open

// Selects a fault or a variant of the faulty database; null: neither. Can be called from several threads.
Outcome HostcheckWith(const char* fault, const std::string& arguments) {
    std::unique_lock<std::mutex> lock(starting);
    ::SetEnvironmentVariableA(kFaultVariable, fault);
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
    lock.unlock();
    char bytes[4096];
    for (DWORD count; ::ReadFile(read, bytes, sizeof bytes, &count, nullptr) && count;)
        outcome.out.append(bytes, count);
    ::WaitForSingleObject(running.get(), INFINITE);
    ::GetExitCodeProcess(running.get(), &outcome.exitCode);
    return outcome;
}

Outcome Hostcheck(const std::string& arguments) {
    return HostcheckWith(nullptr, arguments);
}

// Returns the lines of requirements with that result, without the result.
std::set<std::string> Requirements(const Outcome& outcome, const std::string& result) {
    std::set<std::string> requirements;
    std::istringstream lines(outcome.out);
    for (std::string line; std::getline(lines, line);)
        if (line.rfind(result + ' ', 0) == 0) requirements.insert(line.substr(8, line.find_last_not_of('\r') - 7));
    return requirements;
}

TEST(HostcheckProgram, IsGreenForSoundDatabasesOnly) {
    for (const char* arguments :
         {"drawcore32.dll", "drawcore32.dll --drawing " TEST_DATA "/dxf/kabeja-draft4-roof-details.dxf",
          "skeleton\\drawcore32.dll", "faulty\\drawcore32.dll"}) {
        const Outcome outcome = Hostcheck(arguments + std::string(" --allow stubs"));
        EXPECT_EQ(outcome.exitCode, 0u) << arguments << '\n' << outcome.out;
        EXPECT_NE(std::string::npos, outcome.out.find("functions: 101 of 101 exported")) << outcome.out;
        EXPECT_NE(std::string::npos, outcome.out.find("kept    MatrixScale")) << outcome.out;
    }
    for (const char* variant : kVariants) {
        const Outcome outcome = HostcheckWith(variant, "faulty\\drawcore32.dll --allow stubs");
        EXPECT_EQ(outcome.exitCode, 0u) << variant << '\n' << outcome.out;
    }
}

// Runs hostcheck for all faults, some at the same time.
std::vector<Outcome> OutcomesOfFaults() {
    std::vector<Outcome> outcomes(std::size(kFaults));
    std::atomic<size_t> next{0};
    const auto work = [&] {
        for (size_t i = next++; i < outcomes.size(); i = next++)
            outcomes[i] = HostcheckWith(kFaults[i].name, "faulty\\drawcore32.dll --allow stubs");
    };
    std::thread threads[3];
    for (std::thread& thread : threads)
        thread = std::thread(work);
    for (std::thread& thread : threads)
        thread.join();
    return outcomes;
}

// The mutation score of hostcheck: all faults are found, and no requirement is without a fault that breaks it.
TEST(HostcheckProgram, FindsEachFaultAndEachRequirementCanBreak) {
    const std::vector<Outcome> outcomes = OutcomesOfFaults();
    std::set<std::string> broken;
    for (const Fault& fault : kFaults) {
        const Outcome& outcome = outcomes[&fault - kFaults];
        EXPECT_EQ(outcome.exitCode, 1u) << fault.name;
        EXPECT_NE(std::string::npos, outcome.out.find(std::string("broken  ") + fault.function + ' ')) << fault.name;
        EXPECT_NE(std::string::npos, outcome.out.find("requirements: "))
            << fault.name << ": some requirements were not checked";
        broken.merge(Requirements(outcome, "broken"));
    }
    const Outcome sound = Hostcheck("faulty\\drawcore32.dll");
    std::set<std::string> all = Requirements(sound, "kept");
    all.merge(Requirements(sound, "stub"));
    EXPECT_GT(all.size(), 130u);
    for (const std::string& requirement : all)
        EXPECT_EQ(broken.count(requirement), 1u) << "no fault breaks: " << requirement;
}

TEST(HostcheckProgram, DistinguishesStubsFromFaults) {
    const Outcome rejected = HostcheckWith(kStubs, "faulty\\drawcore32.dll");
    EXPECT_EQ(rejected.exitCode, 1u) << "--allow stubs was not given";
    EXPECT_NE(std::string::npos, rejected.out.find("ViewportNewEx is a stub; lost: samples")) << rejected.out;
    const Outcome allowed = HostcheckWith(kStubs, "faulty\\drawcore32.dll --allow stubs");
    EXPECT_EQ(allowed.exitCode, 0u) << allowed.out;
    EXPECT_TRUE(Requirements(allowed, "broken").empty());
    EXPECT_GT(Requirements(allowed, "stub").size(), 20u);
    // A required function that does nothing is not a stub.
    const Outcome required = HostcheckWith("stub GraphicGetVtbl", "faulty\\drawcore32.dll --allow stubs");
    EXPECT_EQ(required.exitCode, 1u);
    EXPECT_NE(std::string::npos, required.out.find("broken  GraphicGetVtbl")) << required.out;
}

// Without the application there is no drawing, but everything else is checked.
TEST(HostcheckProgram, ChecksWhatDoesNotDependOnAFailure) {
    const Outcome outcome = HostcheckWith("missing AppGetCurrentApp", "faulty\\drawcore32.dll");
    EXPECT_EQ(outcome.exitCode, 1u);
    EXPECT_NE(std::string::npos, outcome.out.find("missing AppGetCurrentApp")) << outcome.out;
    EXPECT_NE(std::string::npos, outcome.out.find("functions: 100 of 101 exported")) << outcome.out;
    EXPECT_NE(std::string::npos, outcome.out.find("there is no current drawing")) << outcome.out;
    EXPECT_GT(Requirements(outcome, "kept").size(), 20u) << outcome.out;
    // All properties are reported, not only the first one.
    const Outcome properties = HostcheckWith("set does nothing", "faulty\\drawcore32.dll");
    for (const char* name : {kPropBrushAngle, kPropTextFormat})
        EXPECT_NE(std::string::npos, properties.out.find(std::string(name) + ": set to")) << properties.out;
}

TEST(HostcheckProgram, ReportsWhyADatabaseCannotBeChecked) {
    struct Row {
        const char* arguments;
        const char* message;
    };
    for (const Row& row : {Row{"nosuch.dll", "cannot load the database"},
                           {"hostcheck.exe", "AppGetCurrentApp"},
                           {"drawcore32.dll --drawing nosuch.dxf", "cannot open the drawing"},
                           {"drawcore32.dll --allow everything", "usage"},
                           {"drawcore32.dll --drawing", "usage"},
                           {"skeleton\\drawcore32.dll --drawing x.dxf", "DrawingOpenDxf"},
                           {"", "usage"},
                           {"--nosuch", "usage"}}) {
        const Outcome outcome = Hostcheck(row.arguments);
        EXPECT_EQ(outcome.exitCode, 2u) << row.arguments;
        EXPECT_NE(std::string::npos, outcome.out.find(row.message)) << row.arguments << ": " << outcome.out;
    }
}

} // namespace
