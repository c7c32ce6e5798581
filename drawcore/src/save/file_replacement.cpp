// Files by the calls of the system.
#include "drawcore/src/save/file_replacement.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <memory>
#include <sys/stat.h>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

#include "drawcore/src/save/save_error.h"

namespace dxf {

namespace {

constexpr int kMostTries = 1000;           // names beside the target
constexpr size_t kPiece = size_t{1} << 20; // that is written or read at once

[[noreturn]] void Fail(const std::string& what, const std::error_code& why) {
    throw SaveError(what + ": " + why.message());
}

std::error_code LastError() {
    return {errno, std::generic_category()};
}

struct CloseFile {
    void operator()(FILE* file) const { std::fclose(file); }
};
using OwnedFile = std::unique_ptr<FILE, CloseFile>;

// Null if there is such a file already.
OwnedFile MakeNew(const std::filesystem::path& path) {
#ifdef _WIN32
    const int handle =
        ::_wopen(path.c_str(), _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY, _S_IREAD | _S_IWRITE);
    return OwnedFile(handle < 0 ? nullptr : ::_fdopen(handle, "wb"));
#else
    const int handle = ::open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
    return OwnedFile(handle < 0 ? nullptr : ::fdopen(handle, "wb"));
#endif
}

OwnedFile OpenToWrite(const std::filesystem::path& path) {
#ifdef _WIN32
    return OwnedFile(::_wfopen(path.c_str(), L"wb"));
#else
    return OwnedFile(std::fopen(path.c_str(), "wb"));
#endif
}

// A disk that gets full takes the beginning of what is written, which is no error of the system's: the runtime of Windows then
// names the error that the system had last.
void NameFullDiskOfShortWrite() {
#ifdef _WIN32
    ::SetLastError(ERROR_DISK_FULL);
#endif
}

bool WritePiece(FILE* file, std::string_view piece) {
    NameFullDiskOfShortWrite();
    return std::fwrite(piece.data(), 1, piece.size(), file) == piece.size();
}

bool FlushToDisk(FILE* file) {
    NameFullDiskOfShortWrite();
#ifdef _WIN32
    return std::fflush(file) == 0 && ::_commit(::_fileno(file)) == 0;
#else
    return std::fflush(file) == 0 && ::fsync(::fileno(file)) == 0;
#endif
}

std::error_code Rename(const std::filesystem::path& from, const std::filesystem::path& to) {
#ifdef _WIN32
    if (::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return {};
    return {static_cast<int>(::GetLastError()), std::system_category()};
#else
    std::error_code error;
    std::filesystem::rename(from, to, error);
    return error;
#endif
}

// A link is followed: the file behind it is replaced, the link stays.
std::filesystem::path FileBehind(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::path file = std::filesystem::canonical(path, error);
    return error ? path : file;
}

} // namespace

FileReplacement::FileReplacement(std::filesystem::path target) : target_(FileBehind(target)) {
    namespace fs = std::filesystem;
    constexpr fs::perms kWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    std::error_code error;
    const fs::file_status status = fs::status(target_, error);
    if (fs::exists(status) && (status.permissions() & kWrite) == fs::perms::none)
        throw SaveError("the file is read-only");
    for (int number = 1; number <= kMostTries; ++number) {
        path_ = target_;
        path_ += "." + std::to_string(number) + ".tmp";
        if (MakeNew(path_)) {
            if (fs::exists(status)) fs::permissions(path_, status.permissions(), error);
            return;
        }
        if (errno != EEXIST) break;
    }
    path_.clear();
    Fail("no file can be made beside the drawing", LastError());
}

FileReplacement::~FileReplacement() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove(path_, ignored);
}

void FileReplacement::Write(std::string_view bytes, const Progress& progress) {
    const char* const what = "the drawing cannot be written";
    OwnedFile file = OpenToWrite(path_);
    if (!file) Fail(what, LastError());
    for (size_t at = 0; at < bytes.size(); at += kPiece) {
        const std::string_view piece = bytes.substr(at, kPiece);
        if (!WritePiece(file.get(), piece)) Fail(what, LastError());
        if (progress) progress(Permille(at + piece.size(), bytes.size()));
    }
    if (!FlushToDisk(file.get())) Fail(what, LastError());
    file.reset();
    if (!Holds(path_, bytes))
        throw SaveError("the drawing was written, but the disk gives back something else");
}

void FileReplacement::TakePlace() {
    if (const std::error_code error = Rename(path_, target_)) Fail("the file cannot be replaced", error);
    path_.clear();
#ifndef _WIN32
    const std::filesystem::path folder = target_.has_parent_path() ? target_.parent_path() : ".";
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return;
    ::fsync(handle); // the new name, too
    ::close(handle);
#endif
}

bool Holds(const std::filesystem::path& path, std::string_view bytes) {
    std::ifstream file(path, std::ios::binary);
    if (!file) Fail("the file cannot be read, perhaps because another program holds it", LastError());
    std::string piece(kPiece, '\0');
    while (file) {
        file.read(piece.data(), static_cast<std::streamsize>(piece.size()));
        const auto size = static_cast<size_t>(file.gcount());
        if (size > bytes.size() || std::memcmp(piece.data(), bytes.data(), size) != 0) return false;
        bytes.remove_prefix(size);
    }
    if (!file.eof()) Fail("the file cannot be read", LastError());
    return bytes.empty();
}

} // namespace dxf
