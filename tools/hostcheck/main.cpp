// hostcheck: checks whether a host's drawing database meets the requirements of the library.

#include <windows.h>

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "inspection.h"
#include "report.h"

namespace {

constexpr char kUsage[] = "usage: hostcheck DATABASE.dll [--drawing FILE]\n"
                          "Checks a drawing database against the contract and prints a line for each requirement.\n"
                          "Exit code: 0 all checks passed, 1 some failed, 2 nothing was checked.\n";

// Returns the absolute path.
std::wstring FullPath(const std::wstring& path) {
    wchar_t full[MAX_PATH];
    const DWORD length = path.empty() ? 0 : ::GetFullPathNameW(path.c_str(), MAX_PATH, full, nullptr);
    return length > 0 && length < MAX_PATH ? std::wstring(full, length) : path;
}

int Run(const std::wstring& database, const std::wstring& drawingFile) {
    const Inspected inspected = InspectInProcesses(database, drawingFile);
    if (!inspected.error.empty()) {
        std::fprintf(stderr, "hostcheck: %s\n", inspected.error.c_str());
        return inspected.failed ? 1 : 2;
    }
    std::printf("%zu passed, %zu failed\n", inspected.passed, inspected.failed);
    return inspected.failed ? 1 : 0;
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
    const bool hasDrawing = arguments.size() == 3 && arguments[1] == L"--drawing";
    if (arguments.size() == 1 && arguments[0][0] != L'-') return Run(FullPath(arguments[0]), L"");
    if (hasDrawing) return Run(FullPath(arguments[0]), FullPath(arguments[2]));
    std::fprintf(stderr, "%s", kUsage);
    return 2;
} catch (const std::exception& exception) {
    std::fprintf(stderr, "hostcheck: %s\n", exception.what());
    return 2;
}
