// Files by their descriptors.

#include "system_file.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

#include "failure.h"

namespace suminfo {
namespace {

bool ReadFrom(int file, uint64_t offset, void* buffer, size_t size) {
    auto* to = static_cast<char*>(buffer);
    while (size > 0) {
        const ssize_t got = ::pread(file, to, size, static_cast<off_t>(offset));
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) return false;
        to += got;
        offset += static_cast<uint64_t>(got);
        size -= static_cast<size_t>(got);
    }
    return true;
}

} // namespace

OwnedFile OpenDocument(const std::string& file) {
    // Nobody may be at the other end of a pipe, and nothing waits for them.
    const int opened = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (opened >= 0) return OwnedFile(opened);
    const int error = errno;
    const auto folder = std::filesystem::path(file).parent_path();
    std::error_code none;
    const bool lacksFolder = error == ENOENT && !folder.empty() && !std::filesystem::exists(folder, none);
    errno = lacksFolder ? ENOTDIR : error;
    FailBySystem("can't be opened");
}

orlo::CompoundReader ReadCompound(const OwnedFile& file) {
    struct stat is = {};
    const bool hasBytes = ::fstat(file.get(), &is) == 0 && S_ISREG(is.st_mode);
    const orlo::ReadAt read = [descriptor = file.get()](uint64_t offset, void* buffer, size_t size) {
        return ReadFrom(descriptor, offset, buffer, size);
    };
    return orlo::CompoundReader(read, hasBytes ? static_cast<uint64_t>(is.st_size) : 0);
}

} // namespace suminfo
