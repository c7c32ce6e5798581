// Files opened with system calls.

#include "files/open_file.h"

#include <algorithm>
#include <cstring>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "files/file_error.h"

namespace files {
namespace {

constexpr size_t kChunkSize = size_t{1} << 20; // maximum number of bytes per call

[[noreturn]] void FailToOpen(const std::filesystem::path& path) {
    std::error_code error = LastError();
#ifndef _WIN32 // distinguishes a missing folder from a missing file
    std::error_code ignored;
    const auto folder = path.parent_path();
    if (error == std::errc::no_such_file_or_directory && !folder.empty() && !std::filesystem::exists(folder, ignored))
        error = std::make_error_code(std::errc::not_a_directory);
#else
    (void)path;
#endif
    throw FileError("the file cannot be opened", error);
}

#ifdef _WIN32
size_t ReadSome(NativeFile file, uint64_t offset, void* buffer, size_t size) {
    OVERLAPPED at = {};
    at.Offset = static_cast<DWORD>(offset);
    at.OffsetHigh = static_cast<DWORD>(offset >> 32);
    DWORD done = 0;
    return ::ReadFile(file, buffer, static_cast<DWORD>(size), &done, &at) ? done : 0;
}

size_t WriteSome(NativeFile file, const char* bytes, size_t size) {
    DWORD done = 0;
    ::SetLastError(ERROR_DISK_FULL); // a full disk accepts part of the bytes without an error
    return ::WriteFile(file, bytes, static_cast<DWORD>(size), &done, nullptr) ? done : 0;
}
#else
size_t ReadSome(NativeFile file, uint64_t offset, void* buffer, size_t size) {
    ssize_t done;
    do
        done = ::pread(file, buffer, size, static_cast<off_t>(offset));
    while (done < 0 && errno == EINTR);
    return done > 0 ? static_cast<size_t>(done) : 0;
}

size_t WriteSome(NativeFile file, const char* bytes, size_t size) {
    ssize_t done;
    do
        done = ::write(file, bytes, size);
    while (done < 0 && errno == EINTR);
    return done > 0 ? static_cast<size_t>(done) : 0;
}
#endif

} // namespace

OpenFile::~OpenFile() {
    if (file_ == NoFile()) return;
#ifdef _WIN32
    ::CloseHandle(file_);
#else
    ::close(file_);
#endif
}

#ifdef _WIN32
OpenFile OpenShared(const std::filesystem::path& path, unsigned long access, unsigned long flags) {
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return OpenFile(::CreateFileW(path.c_str(), access, kShareAll, nullptr, OPEN_EXISTING, flags, nullptr));
}
#endif

namespace {

#ifdef _WIN32
constexpr unsigned long kToRead = GENERIC_READ, kToWrite = GENERIC_WRITE;
#else
constexpr int kToRead = O_RDONLY, kToWrite = O_WRONLY;

OpenFile OpenShared(const std::filesystem::path& path, int access) {
    // Does not wait for the writer of a pipe.
    return OpenFile(::open(path.c_str(), access | O_CLOEXEC | O_NONBLOCK));
}
#endif

OpenFile OpenExisting(const std::filesystem::path& path, decltype(+kToRead) access) {
    OpenFile file = OpenShared(path, access);
    if (!file) FailToOpen(path);
    return file;
}

} // namespace

OpenFile OpenToRead(const std::filesystem::path& path) {
    return OpenExisting(path, kToRead);
}

OpenFile OpenAgainstWriters(const std::filesystem::path& path) {
#ifdef _WIN32
    const auto open = [&path](DWORD access, DWORD sharing) {
        OpenFile file(::CreateFileW(path.c_str(), access, sharing, nullptr, OPEN_EXISTING, 0, nullptr));
        if (!file) FailToOpen(path);
        return file;
    };
    open(GENERIC_READ | GENERIC_WRITE, 0); // excludes readers too, which would continue with outdated contents
    return open(GENERIC_READ, FILE_SHARE_READ);
#else
    return OpenToRead(path);
#endif
}

OpenFile OpenToWrite(const std::filesystem::path& path) {
    return OpenExisting(path, kToWrite);
}

uint64_t SizeOf(NativeFile file) {
#ifdef _WIN32
    LARGE_INTEGER size;
    const bool isKnown = ::GetFileType(file) == FILE_TYPE_DISK && ::GetFileSizeEx(file, &size);
    return isKnown ? static_cast<uint64_t>(size.QuadPart) : 0;
#else
    struct stat is;
    const bool isKnown = ::fstat(file, &is) == 0 && S_ISREG(is.st_mode);
    return isKnown ? static_cast<uint64_t>(is.st_size) : 0;
#endif
}

bool ReadAt(NativeFile file, uint64_t offset, void* buffer, size_t size) {
    auto* to = static_cast<char*>(buffer);
    while (size > 0) {
        const size_t done = ReadSome(file, offset, to, std::min(size, kChunkSize));
        if (done == 0) return false;
        to += done;
        offset += done;
        size -= done;
    }
    return true;
}

void Append(NativeFile file, std::string_view bytes) {
    while (!bytes.empty()) {
        const size_t done = WriteSome(file, bytes.data(), std::min(bytes.size(), kChunkSize));
        if (done == 0) ThrowLastError("the file cannot be written");
        bytes.remove_prefix(done);
    }
}

void Flush(NativeFile file) {
#ifdef _WIN32
    const bool isDone = ::FlushFileBuffers(file);
#else
    const bool isDone = ::fsync(file) == 0;
#endif
    if (!isDone) ThrowLastError("the file cannot be written");
}

bool HasContents(const std::filesystem::path& path, std::string_view bytes) {
    const OpenFile file = OpenToRead(path);
    if (SizeOf(file.get()) != bytes.size()) return false;
    std::vector<char> chunk(std::min(bytes.size(), kChunkSize));
    for (size_t at = 0; at < bytes.size(); at += chunk.size()) {
        const size_t size = std::min(chunk.size(), bytes.size() - at);
        if (!ReadAt(file.get(), at, chunk.data(), size)) ThrowLastError("the file cannot be read");
        if (std::memcmp(chunk.data(), bytes.data() + at, size) != 0) return false;
    }
    return true;
}

} // namespace files
