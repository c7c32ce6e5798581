// Folders of this machine.

#include "folders.h"

#include <array>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>

#include "orlo/summary/compound_reader.h"
#include "system_file.h"

namespace suminfo {
namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

std::optional<struct stat> Look(const std::string& path) {
    struct stat is;
    if (::stat(path.c_str(), &is) != 0) return std::nullopt;
    return is;
}

} // namespace

bool IsFolder(const std::string& path) {
    const auto is = Look(path);
    return is && S_ISDIR(is->st_mode);
}

bool IsThere(const std::string& path) {
    return Look(path).has_value();
}

bool MayBeDocument(const std::string& path) {
    const auto is = Look(path);
    if (!is || !S_ISREG(is->st_mode)) return false;
    const OwnedFile file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::array<uint8_t, orlo::kCompoundSignature.size()> head;
    return file.get() < 0 || (::read(file.get(), head.data(), head.size()) == ssize_t{head.size()} &&
                              head == orlo::kCompoundSignature);
}

bool EndsPath(const std::string& path) {
    return path.back() == '/';
}

std::optional<std::vector<std::string>> NamesIn(const std::string& folder) {
    const std::unique_ptr<DIR, CloseFolder> opened(::opendir(folder.c_str()));
    if (!opened) return std::nullopt;
    std::vector<std::string> names;
    while (const dirent* entry = ::readdir(opened.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") names.emplace_back(name);
    }
    return names;
}

std::optional<FileIdentity> IdentityOf(const std::string& path) {
    const auto is = Look(path);
    if (!is) return std::nullopt;
    return FileIdentity{is->st_dev, is->st_ino};
}

} // namespace suminfo
