// The list of recent drawings, in the registry.

#include "demo/viewer/recent_files.h"

#include <algorithm>

#include <windows.h>

#include "demo/viewer/file_name.h"
#include "demo/viewer/settings.h"

namespace {

constexpr const wchar_t* kValue = L"RecentFiles";

// The system compares file names ignoring case.
bool IsSameFile(const std::string& a, const std::string& b) {
    return ::CompareStringOrdinal(Wide(a).c_str(), -1, Wide(b).c_str(), -1, TRUE) == CSTR_EQUAL;
}

std::string FullPath(const std::string& path) {
    wchar_t full[MAX_PATH] = L"";
    const DWORD length = ::GetFullPathNameW(Wide(path).c_str(), MAX_PATH, full, nullptr);
    return length && length < MAX_PATH ? Utf8(full) : path;
}

void Write(const std::vector<std::string>& files) {
    std::wstring texts; // each NUL-terminated, and one more NUL at the end
    for (const std::string& file : files)
        texts += Wide(file) + L'\0';
    ::RegSetKeyValueW(HKEY_CURRENT_USER, Settings::Key().c_str(), kValue, REG_MULTI_SZ, texts.c_str(),
                      static_cast<DWORD>((texts.size() + 1) * sizeof(wchar_t)));
}

std::vector<std::string> Without(std::vector<std::string> files, const std::string& path) {
    files.erase(
        std::remove_if(files.begin(), files.end(), [&](const std::string& file) { return IsSameFile(file, path); }),
        files.end());
    return files;
}

} // namespace

std::vector<std::string> RecentFiles::List() {
    DWORD bytes = 0;
    if (::RegGetValueW(HKEY_CURRENT_USER, Settings::Key().c_str(), kValue, RRF_RT_REG_MULTI_SZ, nullptr, nullptr,
                       &bytes))
        return {};
    std::wstring texts(bytes / sizeof(wchar_t) + 1, L'\0');
    bytes = static_cast<DWORD>(texts.size() * sizeof(wchar_t));
    if (::RegGetValueW(HKEY_CURRENT_USER, Settings::Key().c_str(), kValue, RRF_RT_REG_MULTI_SZ, nullptr, texts.data(),
                       &bytes))
        return {};
    std::vector<std::string> files;
    for (size_t begin = 0; files.size() < kMax && begin < texts.size() && texts[begin];) {
        const std::wstring file = texts.c_str() + begin;
        files.push_back(Utf8(file.c_str()));
        begin += file.size() + 1;
    }
    return files;
}

void RecentFiles::Add(const std::string& path) {
    const std::string full = FullPath(path);
    std::vector<std::string> files = Without(List(), full);
    files.insert(files.begin(), full);
    files.resize(std::min(files.size(), kMax));
    Write(files);
}

void RecentFiles::Remove(const std::string& path) {
    Write(Without(List(), FullPath(path)));
}
