// Makes the file under an unused name, with the target's permissions, and renames it.

#include "part_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "failure.h"
#include "system_file.h"

namespace suminfo {
namespace {

constexpr mode_t kUsual = 0666; // less what the user's mask takes away

std::string MakeBeside(const std::string& target) {
    const std::string folder = target.substr(0, target.rfind('/') + 1);
    const std::string name = folder + "suminfo-" + std::to_string(::getpid()) + "-";
    for (int count = 0;; ++count) { // what a program that was killed has left may have the name
        std::string path = name + std::to_string(count) + ".part";
        const OwnedFile file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kUsual));
        if (file.get() >= 0) return path;
        if (errno == ENOENT) errno = ENOTDIR; // the folder isn't there
        if (errno != EEXIST) FailBySystem("no file can be made beside it");
    }
}

// With a file of the same permissions, which the part gets. Nothing takes the place of a folder or a device.
bool IsReplaceable(const std::string& target, const std::string& part) {
    struct stat is;
    if (::stat(target.c_str(), &is) != 0) return errno == ENOENT;
    if (!S_ISREG(is.st_mode)) errno = EISDIR;
    return S_ISREG(is.st_mode) && ::access(target.c_str(), W_OK) == 0 &&
           ::chmod(part.c_str(), is.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO)) == 0;
}

// Else a machine that stops could find the new name and no bytes under it.
bool IsOnDisk(const std::string& path) {
    const OwnedFile file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    return file.get() >= 0 && ::fsync(file.get()) == 0;
}

} // namespace

PartFile::PartFile(std::string target) : target_(std::move(target)), path_(MakeBeside(target_)) {
    if (IsReplaceable(target_, path_)) return;
    const int error = errno;
    ::unlink(path_.c_str());
    errno = error;
    FailBySystem("can't be replaced");
}

PartFile::~PartFile() {
    if (!path_.empty()) ::unlink(path_.c_str());
}

FILE* PartFile::Open() const {
    return std::fopen(path_.c_str(), "w+b");
}

void PartFile::TakePlace() {
    if (!IsOnDisk(path_)) FailBySystem("can't be written");
    if (::rename(path_.c_str(), target_.c_str()) != 0) FailBySystem("can't be replaced");
    path_.clear();
}

} // namespace suminfo
