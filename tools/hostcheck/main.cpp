// hostcheck: checks whether a host's drawing database meets the requirements of the library.

#include <windows.h>

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "inspection.h"
#include "report.h"
#include "requirement.h"

namespace {

constexpr char kUsage[] =
    "usage: hostcheck DATABASE.dll [--drawing FILE] [--allow stubs]\n"
    "Checks a drawing database against the contract and prints a line for each requirement:\n"
    "  kept     the requirement is met\n"
    "  broken   it is not met; the line below describes the result\n"
    "  stub     a function is not implemented, which the contract permits; the line below says what the sheet loses\n"
    "Exit code: 0 if all requirements are kept (or, with --allow stubs, stubs), 1 if not, 2 if nothing was checked.\n";

// Returns the absolute path.
std::wstring FullPath(const std::wstring& path) {
    wchar_t full[MAX_PATH];
    const DWORD length = path.empty() ? 0 : ::GetFullPathNameW(path.c_str(), MAX_PATH, full, nullptr);
    return length > 0 && length < MAX_PATH ? std::wstring(full, length) : path;
}

struct Options {
    std::wstring database, drawingFile;
    bool allowStubs = false;
};

// Returns false if the arguments are not valid.
bool Parse(const std::vector<std::wstring>& arguments, Options& options) {
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::wstring& argument = arguments[i];
        const bool isOption = argument[0] == L'-';
        const std::wstring value = isOption && i + 1 < arguments.size() ? arguments[++i] : L"";
        if (!isOption && options.database.empty())
            options.database = FullPath(argument);
        else if (argument == L"--drawing" && !value.empty())
            options.drawingFile = FullPath(value);
        else if (argument == L"--allow" && value == L"stubs")
            options.allowStubs = true;
        else
            return false;
    }
    return !options.database.empty();
}

int Run(const Options& options) {
    const Inspected inspected = InspectInProcesses(options.database, options.drawingFile);
    const bool complete = inspected.error.empty();
    if (!complete) std::fprintf(stderr, "hostcheck: %s\n", inspected.error.c_str());
    if (!complete && inspected.kept + inspected.broken + inspected.stubs == 0) return 2;
    const size_t all = AllFunctions().size();
    std::printf("functions: %zu of %zu exported\n", all - inspected.missing, all);
    std::printf("requirements: %zu kept, %zu broken, %zu stubs\n", inspected.kept, inspected.broken, inspected.stubs);
    const bool kept = complete && inspected.missing == 0 && inspected.broken == 0;
    return kept && (inspected.stubs == 0 || options.allowStubs) ? 0 : 1;
}

} // namespace

int wmain(int count, wchar_t** values) try {
    const std::vector<std::wstring> arguments(values + 1, values + count);
    if (arguments.size() == 5 && arguments[0] == L"--inspect") {
        const auto report = reinterpret_cast<HANDLE>(static_cast<uintptr_t>(std::stoull(arguments[1])));
        Inspect(arguments[3], arguments[4], std::stoul(arguments[2]), report);
        return 0;
    }
    if (arguments.size() == 1 && arguments[0] == L"--help") {
        std::printf("%s", kUsage);
        return 0;
    }
    Options options;
    if (Parse(arguments, options)) return Run(options);
    std::fprintf(stderr, "%s", kUsage);
    return 2;
} catch (const std::exception& exception) {
    std::fprintf(stderr, "hostcheck: %s\n", exception.what());
    return 2;
}
