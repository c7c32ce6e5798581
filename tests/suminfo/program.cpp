// Runs a child process with its output in files.

#include "program.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <windows.h>

#include "support/file_bytes.h"

namespace fs = std::filesystem;

namespace {

std::wstring Wide(const std::string& utf8) {
    return fs::u8path(utf8).wstring();
}

// Escapes quotes and the backslashes before them, by the system's rules for command lines.
std::wstring Quoted(const std::string& argument) {
    std::wstring quoted = L"\"";
    size_t backslashes = 0;
    for (const wchar_t c : Wide(argument)) {
        if (c == L'\\') {
            ++backslashes;
            continue;
        }
        quoted.append(c == L'"' ? 2 * backslashes + 1 : backslashes, L'\\');
        backslashes = 0;
        quoted += c;
    }
    return quoted.append(2 * backslashes, L'\\') + L"\"";
}

fs::path Program() {
    wchar_t own[MAX_PATH];
    ::GetModuleFileNameW(nullptr, own, MAX_PATH);
    return fs::path(own).replace_filename("suminfo.exe");
}

HANDLE Inherited(const fs::path& file, DWORD access, DWORD creation) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    return ::CreateFileW(file.c_str(), access, FILE_SHARE_READ, &inherited, creation, 0, nullptr);
}

std::string TextOf(const fs::path& file) {
    const std::vector<uint8_t> bytes = FileBytes(file);
    return {bytes.begin(), bytes.end()};
}

} // namespace

std::wstring CommandLineOf(const std::vector<std::string>& arguments) {
    std::wstring line = L"\"" + Program().wstring() + L"\"";
    for (const std::string& argument : arguments)
        line += L" " + Quoted(argument);
    return line;
}

Outcome RunSuminfo(const std::vector<std::string>& arguments, const fs::path& folder, const std::string& input) {
    const Folder outputs;
    const fs::path in = outputs.Path() / "in", out = outputs.Path() / "out", err = outputs.Path() / "err";
    std::ofstream(in, std::ios::binary) << input;
    std::wstring line = CommandLineOf(arguments);
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = Inherited(in, GENERIC_READ, OPEN_EXISTING);
    start.hStdOutput = Inherited(out, GENERIC_WRITE, CREATE_ALWAYS);
    start.hStdError = Inherited(err, GENERIC_WRITE, CREATE_ALWAYS);
    PROCESS_INFORMATION process = {};
    const BOOL started =
        ::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, folder.c_str(), &start, &process);
    ::CloseHandle(start.hStdInput);
    ::CloseHandle(start.hStdOutput);
    ::CloseHandle(start.hStdError);
    if (!started) {
        ADD_FAILURE() << "cannot start suminfo.exe: " << ::GetLastError();
        return {-1, "", ""};
    }
    DWORD exitCode = 0;
    if (::WaitForSingleObject(process.hProcess, 120000) != WAIT_OBJECT_0) {
        ::TerminateProcess(process.hProcess, 99);
        ADD_FAILURE() << "suminfo does not end";
    }
    ::GetExitCodeProcess(process.hProcess, &exitCode);
    ::CloseHandle(process.hProcess);
    ::CloseHandle(process.hThread);
    return {static_cast<int>(exitCode), TextOf(out), TextOf(err)};
}

std::map<std::string, Json> ByFile(const std::string& lines) {
    std::map<std::string, Json> objects;
    std::istringstream stream(lines);
    for (std::string line; std::getline(stream, line);) {
        Json object = Json::parse(line);
        const auto name = fs::path(object["file"].get<std::string>()).filename().string();
        objects[name] = std::move(object);
    }
    return objects;
}

Folder::Folder() {
    static int count = 0;
    const std::string name = "suminfo-test-" + std::to_string(::GetCurrentProcessId()) + "-" + std::to_string(++count);
    path_ = fs::temp_directory_path() / name;
    fs::create_directories(path_);
}

Folder::~Folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

fs::path Folder::Copy(const fs::path& file, const std::string& name) const {
    const fs::path copy = path_ / (name.empty() ? file.filename() : fs::path(Wide(name)));
    fs::copy_file(file, copy);
    ::SetFileAttributesW(copy.c_str(), FILE_ATTRIBUTE_NORMAL);
    return copy;
}
