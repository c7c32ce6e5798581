// Expands lists in files, and wildcards.

#include "tools/cli/arguments.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "files/file_error.h"
#include "files/open_file.h"
#include "tools/cli/wildcard.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace fs = std::filesystem;

namespace cli {
namespace {

std::string ContentsOf(const std::string& name) {
    const auto contents = [](std::istream& stream) { return std::string(std::istreambuf_iterator<char>(stream), {}); };
    if (name == "-") return contents(std::cin);
    const fs::path path = fs::u8path(name);
    std::error_code unknown;
    if (fs::is_directory(path, unknown)) throw files::FileError("is a folder");
    files::OpenToRead(path); // throws an error with the reason
    std::ifstream stream(path, std::ios::binary);
    return contents(stream);
}

void AppendLines(std::string_view contents, std::vector<std::string>& lines) {
    for (const std::string_view mark : {"\xFF\xFE", "\xFE\xFF"})
        if (contents.substr(0, mark.size()) == mark) throw files::FileError("is UTF-16; save it as UTF-8");
    contents = WithoutMark(contents);
    const char end = contents.find('\0') == std::string_view::npos ? '\n' : '\0';
    for (size_t at = 0; at < contents.size();) {
        const size_t ended = std::min(contents.find(end, at), contents.size());
        size_t size = ended - at;
        if (end == '\n' && size > 0 && contents[ended - 1] == '\r') --size;
        if (end == '\0' || size > 0) lines.emplace_back(contents.substr(at, size));
        at = ended + 1;
    }
}

#ifdef _WIN32

bool IsSameLetter(wchar_t a, wchar_t b) {
    return a == b || ::CompareStringOrdinal(&a, 1, &b, 1, TRUE) == CSTR_EQUAL;
}

std::vector<std::string> Matching(const std::string& name) {
    const size_t slash = name.find_last_of("/\\:");
    const size_t folderSize = slash == std::string::npos ? 0 : slash + 1;
    const std::string folder = name.substr(0, folderSize);
    const std::wstring pattern = fs::u8path(name.substr(folderSize)).wstring();
    std::vector<std::string> found;
    std::error_code error;
    for (fs::directory_iterator at(folder.empty() ? fs::path(".") : fs::u8path(folder), error), end;
         !error && at != end; at.increment(error)) {
        const std::wstring file = at->path().filename().wstring();
        if (MatchesWildcard<wchar_t>(pattern, file, IsSameLetter))
            found.push_back(folder + at->path().filename().u8string());
    }
    std::sort(found.begin(), found.end());
    return found;
}

#endif

} // namespace

std::vector<std::string> WithListedArguments(const std::vector<std::string>& arguments) {
    std::vector<std::string> all;
    for (const std::string& argument : arguments) {
        if (argument.size() < 2 || argument[0] != '@') {
            all.push_back(argument);
            continue;
        }
        try {
            AppendLines(ContentsOf(argument.substr(1)), all);
        } catch (const files::FileError& error) {
            throw files::FileError(argument + ": " + error.what());
        }
    }
    return all;
}

std::string_view WithoutMark(std::string_view utf8) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    return utf8.substr(0, kMark.size()) == kMark ? utf8.substr(kMark.size()) : utf8;
}

std::vector<std::string> WithoutWildcards(const std::vector<std::string>& names) {
#ifdef _WIN32
    std::vector<std::string> all;
    for (const std::string& name : names) {
        std::vector<std::string> found;
        if (HasWildcard(name)) found = Matching(name);
        if (found.empty()) found.push_back(name);
        all.insert(all.end(), found.begin(), found.end());
    }
    return all;
#else
    return names;
#endif
}

} // namespace cli
