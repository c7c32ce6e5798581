// FileReplacement: a file is written under another name in the same folder and then takes the place of its target in
// one step. After any failure, and wherever the process ends, the target is the old file or the new one.
//
//   files::FileReplacement replacement(path);
//   replacement.Write(bytes);    // or any other writer, by replacement.Path()
//   replacement.TakePlace();
//
// Links are followed. Owner, group, permissions and extended attributes of the target stay; on Windows the access list,
// the attributes and the time of creation. Another name of the same file (a hard link) keeps the old contents.
#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

namespace files {

class FileReplacement {
public:
    // Creates the temporary file, empty. Throws FileError if the target is read-only or is not a regular file, or if no
    // file can be created in its folder.
    explicit FileReplacement(const std::filesystem::path& target);
    // Removes the temporary file unless it has taken the target's place.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    // The file that is replaced: the target, or the file that a link leads to.
    const std::filesystem::path& Target() const { return target_; }
    // The temporary file.
    const std::filesystem::path& Path() const { return path_; }

    // Writes the bytes and reads them back. Throws FileError, and whatever `progress` throws.
    void Write(std::string_view bytes, const std::function<void(size_t written)>& progress = {});
    // Replaces the target; no handle to either file may be open. After a FileError the target is as before.
    void TakePlace();

private:
    std::filesystem::path target_;
    bool isThere_;               // there is a file to replace
    std::filesystem::path path_; // empty once the temporary file is gone
};

// From now on a signal that interrupts or ends the program removes the temporary file first. For command-line programs,
// which replace one file at a time.
void RemoveTemporaryFileOnInterrupt();

} // namespace files
