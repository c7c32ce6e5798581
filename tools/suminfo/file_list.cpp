// Lists files. Folders are identified by the system's numbers, because otherwise a link to a parent folder would be
// followed forever.

#include "file_list.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <set>

#include "commands.h"
#include "files/file_error.h"
#include "files/open_file.h"
#include "orlo/summary/compound_reader.h"

#ifdef _WIN32
#include <windows.h>

#include "orlo/win/encoded_text.h"
#else
#include <sys/stat.h>
#endif

namespace fs = std::filesystem;

namespace suminfo {
namespace {

// Numbers that identify a file or a folder.
using FileIdentity = std::array<uint64_t, 4>;

#ifdef _WIN32

constexpr wchar_t kSeparators[] = L"/\\";

std::string Utf8(const std::wstring& name) {
    return orlo::Narrow(name, CP_UTF8);
}

uint64_t Joined(DWORD high, DWORD low) {
    return uint64_t{high} << 32 | low;
}

// The index of a file is unique only within its volume, and some systems do not distinguish volumes; the times do.
std::optional<FileIdentity> IdentityOf(const std::string& path) {
    const files::OpenFile file =
        files::OpenShared(fs::u8path(path), 0, FILE_FLAG_BACKUP_SEMANTICS); // also opens folders
    BY_HANDLE_FILE_INFORMATION is;
    if (!file || !::GetFileInformationByHandle(file.get(), &is)) return std::nullopt;
    return FileIdentity{is.dwVolumeSerialNumber, Joined(is.nFileIndexHigh, is.nFileIndexLow),
                        Joined(is.ftCreationTime.dwHighDateTime, is.ftCreationTime.dwLowDateTime),
                        Joined(is.ftLastWriteTime.dwHighDateTime, is.ftLastWriteTime.dwLowDateTime)};
}

#else

constexpr char kSeparators[] = "/";

const std::string& Utf8(const std::string& name) {
    return name;
}

std::optional<FileIdentity> IdentityOf(const std::string& path) {
    struct stat is;
    if (::stat(path.c_str(), &is) != 0) return std::nullopt;
    return FileIdentity{is.st_dev, is.st_ino};
}

#endif

bool IsFolder(const std::string& path) {
    std::error_code unknown;
    return fs::is_directory(fs::u8path(path), unknown);
}

bool Exists(const std::string& path) {
    std::error_code unknown;
    return fs::exists(fs::u8path(path), unknown);
}

// Returns true for a compound file, and for a file that cannot be opened, so that the failure is reported.
bool MayBeDocument(const std::string& path) {
    std::error_code unknown;
    if (!fs::is_regular_file(fs::u8path(path), unknown)) return false;
    try {
        std::array<uint8_t, orlo::kCompoundSignature.size()> head;
        const files::OpenFile file = files::OpenToRead(fs::u8path(path));
        return files::ReadAt(file.get(), 0, head.data(), head.size()) && head == orlo::kCompoundSignature;
    } catch (const files::FileError&) {
        return true;
    }
}

// Returns the paths of the folder's entries, sorted by name, or nothing if it cannot be listed. Paths are built without
// fs::path, which interprets the a of a:b.doc as a drive.
std::optional<std::vector<std::string>> EntriesOf(const std::string& folder) {
    std::error_code error;
    const fs::path native = fs::u8path(folder);
    const bool endsPath = native.native().find_last_of(kSeparators) == native.native().size() - 1;
    std::vector<std::string> entries;
    for (fs::directory_iterator at(native, error), end; !error && at != end; at.increment(error)) {
        const auto& path = at->path().native();
        entries.push_back((endsPath ? folder : folder + '/') + Utf8(path.substr(path.find_last_of(kSeparators) + 1)));
    }
    if (error) return std::nullopt;
    std::sort(entries.begin(), entries.end());
    return entries;
}

class Walk {
public:
    void Add(const std::string& path) {
        if (path != kStandardStream && IsFolder(path))
            AddFolder(path);
        else if (IsNew(path))
            list_.files.push_back(path);
    }

    FileList Take() { return std::move(list_); }

private:
    void AddFolder(const std::string& folder) {
        if (!IsNew(folder)) return;
        const auto entries = EntriesOf(folder);
        if (!entries) return Miss(folder, "cannot read the folder");
        for (const std::string& entry : *entries) {
            if (!Exists(entry)) // Wine lists names that it cannot open, with a question mark
                Miss(entry, "the system cannot open a file with this name");
            else if (IsFolder(entry) || MayBeDocument(entry))
                Add(entry);
        }
    }

    void Miss(const std::string& path, const char* reason) { list_.unreadable.push_back({path, reason}); }

    bool IsNew(const std::string& path) {
        const std::optional<FileIdentity> identity = IdentityOf(path);
        return !identity || listed_.insert(*identity).second;
    }

    FileList list_;
    std::set<FileIdentity> listed_;
};

} // namespace

FileList FilesOf(const std::vector<std::string>& named, bool recursive) {
    if (!recursive) return {named, {}};
    Walk walk;
    for (const std::string& name : named)
        walk.Add(name);
    return walk.Take();
}

} // namespace suminfo
