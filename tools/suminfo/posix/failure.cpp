// The system's errors in words.

#include "failure.h"

#include <cerrno>
#include <system_error>

namespace suminfo {
namespace {

std::string TextOf(int error) {
    switch (error) {
    case ENOENT:
        return why::kNoFile;
    case ENOTDIR:
        return why::kNoFolder;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
        return why::kDenied;
    case ENOSPC:
    case EDQUOT:
        return why::kFull;
    case EIO:
        return why::kNotWritten;
    case ENOMEM:
        return why::kNoMemory;
    default:
        return std::generic_category().message(error);
    }
}

} // namespace

void FailBySystem(const std::string& doing) {
    throw Failure(doing + ": " + TextOf(errno));
}

} // namespace suminfo
