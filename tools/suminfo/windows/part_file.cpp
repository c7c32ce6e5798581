// Makes the file under an unused name, with the target's permissions, and renames it.

#include "part_file.h"

#include <utility>
#include <vector>
#include <windows.h>

#include "failure.h"
#include "wide_text.h"

namespace suminfo {
namespace {

using Permissions = std::vector<uint8_t>; // self-relative; empty if the file system has none

Permissions PermissionsOf(const std::wstring& file) {
    DWORD size = 0;
    ::GetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    Permissions permissions(size);
    if (!::GetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION, permissions.data(), size, &size))
        permissions.clear();
    return permissions;
}

// Permissions: null for those that the folder gives.
std::wstring MakeBeside(const std::wstring& target, Permissions* permissions) {
    SECURITY_ATTRIBUTES security = {sizeof security, permissions ? permissions->data() : nullptr, FALSE};
    const std::wstring folder = target.substr(0, target.find_last_of(L"\\/:") + 1);
    const std::wstring name = folder + L"suminfo-" + std::to_wstring(::GetCurrentProcessId()) + L"-";
    for (int count = 0;; ++count) { // what a program that was killed has left may have the name
        std::wstring path = name + std::to_wstring(count) + L".part";
        const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, &security, CREATE_NEW, 0, nullptr);
        if (file != INVALID_HANDLE_VALUE) {
            ::CloseHandle(file);
            return path;
        }
        if (::GetLastError() != ERROR_FILE_EXISTS) FailBySystem("no file can be made beside it");
    }
}

} // namespace

PartFile::PartFile(std::string target) : target_(std::move(target)) {
    const std::wstring beside = ToWide(target_);
    std::wstring path = MakeBeside(beside, nullptr);
    path_ = ToUtf8(path);
    Permissions wanted = PermissionsOf(beside);
    if (wanted.empty() || wanted == PermissionsOf(path)) return;
    // Made anew: while it is empty nobody reads anything, and inherited permissions aren't written down without need.
    ::DeleteFileW(path.c_str());
    path_ = ToUtf8(MakeBeside(beside, &wanted));
}

PartFile::~PartFile() {
    if (!path_.empty()) ::DeleteFileW(ToWide(path_).c_str());
}

FILE* PartFile::Open() const {
    return ::_wfopen(ToWide(path_).c_str(), L"w+b");
}

void PartFile::TakePlace() {
    constexpr DWORD kHow = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (!::MoveFileExW(ToWide(path_).c_str(), ToWide(target_).c_str(), kHow))
        FailBySystem("can't be replaced");
    path_.clear();
}

} // namespace suminfo
