// Creates, describes and renames files with system calls.

#include "files/file_replacement.h"

#include <algorithm>
#include <atomic>
#include <string>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#else
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#endif

#include "files/file_error.h"
#include "files/open_file.h"

namespace fs = std::filesystem;

namespace files {
namespace {

constexpr char kNotReplaced[] = "the file cannot be replaced";
constexpr char kNotPreserved[] = "owner, permissions and attributes of the file cannot be preserved";

// The file to remove on an interrupt, or null.
std::atomic<const fs::path::value_type*> temporaryFile{nullptr};

[[noreturn]] void ThrowNotRegular() {
    throw FileError("not a regular file; it cannot be replaced");
}

struct TargetFile {
    fs::path path;
    bool exists;
};

#ifdef _WIN32

unsigned long ProcessId() {
    return ::GetCurrentProcessId();
}

struct BlockedSignals {
    ~BlockedSignals() {} // nothing to restore: an interrupt runs in its own thread, which retries
};

// Returns the file that a name refers to. Device names exist in every folder.
TargetFile FindFile(const fs::path& target) {
    const DWORD attributes = ::GetFileAttributesW(target.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) ThrowNotRegular();
    const OpenFile file = OpenShared(target, FILE_READ_ATTRIBUTES);
    if (!file && attributes == INVALID_FILE_ATTRIBUTES) return {target, false};
    if (!file) ThrowLastError(kNotReplaced); // such as a dangling link
    if (::GetFileType(file.get()) != FILE_TYPE_DISK) ThrowNotRegular();
    if (attributes & FILE_ATTRIBUTE_READONLY) throw FileError("the file is read-only");
    std::wstring path(32768, L'\0'); // the maximum length of a path
    const DWORD size = ::GetFinalPathNameByHandleW(file.get(), path.data(), static_cast<DWORD>(path.size()), 0);
    if (size == 0 || size >= path.size()) return {target, true}; // a file system that does not support such names
    path.resize(size);
    return {path, true};
}

OpenFile Create(const fs::path& path, bool) {
    return OpenFile(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
}

bool Exists(const std::error_code& error) {
    return error.value() == ERROR_FILE_EXISTS || error.value() == ERROR_ALREADY_EXISTS;
}

using AccessList = std::vector<char>; // self-relative; empty if the file system has none

AccessList AccessListOf(const fs::path& path) {
    DWORD size = 0;
    ::GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    AccessList list(size);
    if (!::GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, list.data(), size, &size)) list.clear();
    return list;
}

void CopyAttributes(const fs::path& from, const fs::path& to) {
    AccessList list = AccessListOf(from);
    if (!list.empty() && list != AccessListOf(to) &&
        !::SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, list.data()))
        ThrowLastError(kNotPreserved);
    WIN32_FILE_ATTRIBUTE_DATA original;
    if (!::GetFileAttributesExW(from.c_str(), GetFileExInfoStandard, &original)) ThrowLastError(kNotPreserved);
    ::SetFileTime(OpenToWrite(to).get(), &original.ftCreationTime, nullptr, nullptr);
    constexpr DWORD kSettable =
        FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    const DWORD attributes = original.dwFileAttributes & kSettable;
    if (!::SetFileAttributesW(to.c_str(), attributes != 0 ? attributes : FILE_ATTRIBUTE_NORMAL))
        ThrowLastError(kNotPreserved);
}

// Replaces in a single step. ReplaceFileW would preserve more, such as named streams, but takes several steps, between
// which no file has the name.
void Rename(const fs::path& from, const fs::path& to) {
    if (!::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        ThrowLastError(kNotReplaced);
}

bool Remove(const wchar_t* path) {
    return ::DeleteFileW(path);
}

// A file that is being written cannot be removed; retries until it can.
BOOL WINAPI RemoveAndEnd(DWORD) {
    constexpr int kTries = 100;
    for (int i = 0; i < kTries; ++i) {
        const wchar_t* const path = temporaryFile.load();
        if (!path || Remove(path)) break;
        ::Sleep(10);
    }
    return FALSE; // end the program
}

#else

unsigned long ProcessId() {
    return static_cast<unsigned long>(::getpid());
}

// Blocks signals during its lifetime.
class BlockedSignals {
public:
    BlockedSignals() {
        sigset_t all;
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_BLOCK, &all, &before_);
    }
    ~BlockedSignals() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    BlockedSignals(const BlockedSignals&) = delete;
    BlockedSignals& operator=(const BlockedSignals&) = delete;

private:
    sigset_t before_;
};

TargetFile FindFile(const fs::path& target) {
    std::error_code error;
    const fs::file_status status = fs::status(target, error);
    if (status.type() == fs::file_type::not_found) {
        if (fs::is_symlink(target, error)) ThrowNotRegular(); // a dangling link
        return {target, false};
    }
    if (!fs::status_known(status)) throw FileError(kNotReplaced, error);
    if (!fs::is_regular_file(status)) ThrowNotRegular();
    constexpr fs::perms kWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if ((status.permissions() & kWrite) == fs::perms::none) throw FileError("the file is read-only");
    if (::access(target.c_str(), W_OK) != 0) ThrowLastError(kNotReplaced);
    return {fs::canonical(target), true};
}

// Other users must not be able to read the new contents before the file has the permissions of the old one.
OpenFile Create(const fs::path& path, bool isPrivate) {
    return OpenFile(::open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, isPrivate ? 0600 : 0666));
}

bool Exists(const std::error_code& error) {
    return error == std::errc::file_exists;
}

std::string ExtendedAttribute(const fs::path& path, const char* name) {
    std::string value(65536, '\0'); // the system's limit
    const ssize_t size = ::getxattr(path.c_str(), name, value.data(), value.size());
    value.resize(size > 0 ? static_cast<size_t>(size) : 0);
    return value;
}

// Includes access lists. Labels of security modules are set by the system.
void CopyExtendedAttributes(const fs::path& from, const fs::path& to) {
    std::string names(65536, '\0');
    const ssize_t size = ::listxattr(from.c_str(), names.data(), names.size());
    names.resize(size > 0 ? static_cast<size_t>(size) : 0); // NUL-terminated
    for (size_t at = 0; at < names.size(); at = names.find('\0', at) + 1) {
        const std::string name = names.c_str() + at;
        const std::string value = ExtendedAttribute(from, name.c_str());
        const bool isOfUsers = name.compare(0, 5, "user.") == 0 || name.compare(0, 7, "system.") == 0;
        if (::setxattr(to.c_str(), name.c_str(), value.data(), value.size(), 0) != 0 && isOfUsers)
            ThrowLastError(kNotPreserved);
    }
}

void CopyAttributes(const fs::path& from, const fs::path& to) {
    struct stat original, created;
    if (::stat(from.c_str(), &original) != 0 || ::stat(to.c_str(), &created) != 0) ThrowLastError(kNotPreserved);
    const bool isOther = original.st_uid != created.st_uid || original.st_gid != created.st_gid;
    if (isOther && ::chown(to.c_str(), original.st_uid, original.st_gid) != 0) ThrowLastError(kNotPreserved);
    constexpr mode_t kPermissions = 07777;
    if (::chmod(to.c_str(), original.st_mode & kPermissions) != 0) ThrowLastError(kNotPreserved);
    CopyExtendedAttributes(from, to);
}

void Rename(const fs::path& from, const fs::path& to) {
    if (::rename(from.c_str(), to.c_str()) != 0) ThrowLastError(kNotReplaced);
    const fs::path folder = to.has_parent_path() ? to.parent_path() : ".";
    const OpenFile opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened) ::fsync(opened.get()); // also flushes the new name
}

bool Remove(const char* path) {
    return ::unlink(path) == 0;
}

void RemoveAndEnd(int signal) {
    if (const char* path = temporaryFile.load()) Remove(path);
    std::signal(signal, SIG_DFL);
    ::raise(signal);
}

#endif

} // namespace

bool RequireReplaceable(const fs::path& target) {
    return FindFile(target).exists;
}

FileReplacement::FileReplacement(const fs::path& target, const fs::path& original) {
    TargetFile found = FindFile(target);
    target_ = std::move(found.path);
    original_ = original.empty() && found.exists ? target_ : original;
    for (int number = 0;; ++number) { // a file may remain from an earlier process with the same identifier
        path_ = target_.parent_path() / ("orlo-" + std::to_string(ProcessId()) + "-" + std::to_string(number) + ".tmp");
        const BlockedSignals blocked;
        if (Create(path_, !original_.empty())) {
            temporaryFile = path_.c_str();
            return;
        }
        const std::error_code error = LastError();
        if (Exists(error)) continue;
        const bool hasNoFolder = error == std::errc::no_such_file_or_directory;
        throw FileError("cannot create a file in its folder",
                        hasNoFolder ? std::make_error_code(std::errc::not_a_directory) : error);
    }
}

FileReplacement::~FileReplacement() {
    if (path_.empty()) return;
    Remove(path_.c_str());
    temporaryFile = nullptr;
}

void FileReplacement::Write(std::string_view bytes, const std::function<void(size_t written)>& progress) {
    constexpr size_t kChunkSize = size_t{1} << 20;
    {
        const OpenFile file = OpenToWrite(path_);
        for (size_t at = 0; at < bytes.size(); at += kChunkSize) {
            Append(file.get(), bytes.substr(at, kChunkSize));
            if (progress) progress(std::min(at + kChunkSize, bytes.size()));
        }
    }
    if (!HasContents(path_, bytes)) throw FileError("the file cannot be written", std::errc::io_error);
}

void FileReplacement::Commit() {
    if (!original_.empty()) CopyAttributes(original_, path_);
    Flush(OpenToWrite(path_).get());
    Rename(path_, target_);
    temporaryFile = nullptr;
    path_.clear();
}

void RemoveTemporaryFileOnInterrupt() {
#ifdef _WIN32
    ::SetConsoleCtrlHandler(RemoveAndEnd, TRUE);
#else
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGXFSZ})
        if (std::signal(signal, RemoveAndEnd) == SIG_IGN)
            std::signal(signal, SIG_IGN); // keep ignored signals ignored, as set by nohup
#endif
}

} // namespace files
