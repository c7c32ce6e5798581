// Folders are told apart by what the system says of them: a link to one that holds it would otherwise never end.

#include "file_list.h"

#include <algorithm>
#include <set>

#include "folders.h"

namespace suminfo {
namespace {

// The paths of what is in the folder, by name; nothing if it can't be listed. They are put together by hand: what takes
// paths apart takes the a of a:b.doc for a drive.
std::optional<std::vector<std::string>> EntriesOf(const std::string& folder) {
    std::optional<std::vector<std::string>> entries = NamesIn(folder);
    if (!entries) return std::nullopt;
    for (std::string& name : *entries)
        name = (EndsPath(folder) ? folder : folder + '/') + name;
    std::sort(entries->begin(), entries->end());
    return entries;
}

class Walk {
public:
    void Add(const std::string& path) {
        if (IsFolder(path))
            AddFolder(path);
        else if (IsNew(path))
            list_.files.push_back(path);
    }

    FileList Take() { return std::move(list_); }

private:
    void AddFolder(const std::string& folder) {
        if (!IsNew(folder)) return;
        const auto entries = EntriesOf(folder);
        if (!entries) return Miss(folder, "the folder can't be read");
        for (const std::string& entry : *entries) {
            if (!IsThere(entry)) // Wine lists names that it can't open, with a question mark for one
                Miss(entry, "the system can't open a file of this name");
            else if (IsFolder(entry) || MayBeDocument(entry))
                Add(entry);
        }
    }

    void Miss(const std::string& path, const char* why) { list_.unreadable.push_back({path, why}); }

    bool IsNew(const std::string& path) {
        const std::optional<FileIdentity> identity = IdentityOf(path);
        return !identity || seen_.insert(*identity).second;
    }

    FileList list_;
    std::set<FileIdentity> seen_;
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
