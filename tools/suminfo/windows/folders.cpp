// Folders of Windows, and of Wine.

#include "folders.h"

#include <memory>
#include <objbase.h>
#include <windows.h>

#include "system_file.h"
#include "wide_text.h"

namespace suminfo {
namespace {

struct CloseSearch {
    void operator()(HANDLE search) const { ::FindClose(search); }
};

uint64_t Joined(DWORD high, DWORD low) {
    return uint64_t{high} << 32 | low;
}

DWORD AttributesOf(const std::string& path) {
    return ::GetFileAttributesW(ToWide(path).c_str());
}

} // namespace

bool IsFolder(const std::string& path) {
    const DWORD attributes = AttributesOf(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool IsThere(const std::string& path) {
    return AttributesOf(path) != INVALID_FILE_ATTRIBUTES;
}

bool MayBeDocument(const std::string& path) {
    return ::StgIsStorageFile(ToWide(path).c_str()) != S_FALSE;
}

bool EndsPath(const std::string& path) {
    return path.back() == '/' || path.back() == '\\';
}

std::optional<std::vector<std::string>> NamesIn(const std::string& folder) {
    WIN32_FIND_DATAW found;
    const std::string all = folder + (EndsPath(folder) ? "*" : "/*");
    const HANDLE opened = ::FindFirstFileW(ToWide(all).c_str(), &found);
    if (opened == INVALID_HANDLE_VALUE) return std::nullopt;
    const std::unique_ptr<void, CloseSearch> search(opened);
    std::vector<std::string> names;
    do {
        const std::wstring_view name = found.cFileName;
        if (name != L"." && name != L"..") names.push_back(ToUtf8(name));
    } while (::FindNextFileW(search.get(), &found));
    return names;
}

// The index of a file is its own on one volume only, and not every system tells volumes apart; its times do.
std::optional<FileIdentity> IdentityOf(const std::string& path) {
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE opened = ::CreateFileW(ToWide(path).c_str(), 0, kShareAll, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS, nullptr); // folders too
    if (opened == INVALID_HANDLE_VALUE) return std::nullopt;
    const OwnedFile file(opened);
    BY_HANDLE_FILE_INFORMATION is;
    if (!::GetFileInformationByHandle(file.get(), &is)) return std::nullopt;
    return FileIdentity{is.dwVolumeSerialNumber, Joined(is.nFileIndexHigh, is.nFileIndexLow),
                        Joined(is.ftCreationTime.dwHighDateTime, is.ftCreationTime.dwLowDateTime),
                        Joined(is.ftLastWriteTime.dwHighDateTime, is.ftLastWriteTime.dwLowDateTime)};
}

} // namespace suminfo
