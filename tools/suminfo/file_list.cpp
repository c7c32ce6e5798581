// Folders are told apart by what the system says of them: a link to one that holds it would otherwise never end.

#include "file_list.h"

#include <algorithm>
#include <array>
#include <memory>
#include <objbase.h>
#include <optional>
#include <set>
#include <windows.h>

#include "text.h"

namespace suminfo {
namespace {

// The index of a file is its own on one volume only, and not every system tells volumes apart; its times do.
using Identity = std::array<DWORD, 7>;

struct CloseFile {
    void operator()(HANDLE file) const { ::CloseHandle(file); }
};
struct CloseSearch {
    void operator()(HANDLE search) const { ::FindClose(search); }
};

std::optional<Identity> IdentityOf(const std::wstring& path) {
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE opened = ::CreateFileW(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS, nullptr); // folders too
    if (opened == INVALID_HANDLE_VALUE) return std::nullopt;
    const std::unique_ptr<void, CloseFile> file(opened);
    BY_HANDLE_FILE_INFORMATION is;
    if (!::GetFileInformationByHandle(file.get(), &is)) return std::nullopt;
    return Identity{is.dwVolumeSerialNumber,
                    is.nFileIndexHigh,
                    is.nFileIndexLow,
                    is.ftCreationTime.dwHighDateTime,
                    is.ftCreationTime.dwLowDateTime,
                    is.ftLastWriteTime.dwHighDateTime,
                    is.ftLastWriteTime.dwLowDateTime};
}

// The paths of what is in the folder, by name; nothing if it can't be listed. They are put together by hand: what takes
// paths apart takes the a of a:b.doc for a drive.
std::optional<std::vector<std::wstring>> EntriesOf(const std::wstring& folder) {
    const bool isClosed = folder.back() == L'/' || folder.back() == L'\\';
    const std::wstring inside = isClosed ? folder : folder + L'/';
    WIN32_FIND_DATAW found;
    const HANDLE opened = ::FindFirstFileW((inside + L'*').c_str(), &found);
    if (opened == INVALID_HANDLE_VALUE) return std::nullopt;
    const std::unique_ptr<void, CloseSearch> search(opened);
    std::vector<std::wstring> entries;
    do {
        const std::wstring name = found.cFileName;
        if (name != L"." && name != L"..") entries.push_back(inside + name);
    } while (::FindNextFileW(search.get(), &found));
    std::sort(entries.begin(), entries.end());
    return entries;
}

bool IsFolder(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool IsThere(const std::wstring& path) {
    return ::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// One that can't be read is named among the files: the work on it says why it fails.
bool MayBeDocument(const std::wstring& path) {
    return ::StgIsStorageFile(path.c_str()) != S_FALSE;
}

class Walk {
public:
    void Add(const std::wstring& path) {
        if (IsFolder(path))
            AddFolder(path);
        else if (IsNew(path))
            list_.files.push_back(ToUtf8(path));
    }

    FileList Take() { return std::move(list_); }

private:
    void AddFolder(const std::wstring& folder) {
        if (!IsNew(folder)) return;
        const auto entries = EntriesOf(folder);
        if (!entries) return Miss(folder, "the folder can't be read");
        for (const std::wstring& entry : *entries) {
            if (!IsThere(entry)) // Wine lists names that it can't open, with a question mark for one
                Miss(entry, "the system can't open a file of this name");
            else if (IsFolder(entry) || MayBeDocument(entry))
                Add(entry);
        }
    }

    void Miss(const std::wstring& path, const char* why) { list_.unreadable.push_back({ToUtf8(path), why}); }

    bool IsNew(const std::wstring& path) {
        const std::optional<Identity> identity = IdentityOf(path);
        return !identity || seen_.insert(*identity).second;
    }

    FileList list_;
    std::set<Identity> seen_;
};

} // namespace

FileList FilesOf(const std::vector<std::string>& named, bool recursive) {
    if (!recursive) return {named, {}};
    Walk walk;
    for (const std::string& name : named)
        walk.Add(ToWide(name));
    return walk.Take();
}

} // namespace suminfo
