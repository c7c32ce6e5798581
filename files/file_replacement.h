// FileReplacement: writes a file under a temporary name in the target's folder, then replaces the target in one step.
// After any failure, including the end of the process, the target is either the old or the new file.
//
//   files::FileReplacement replacement(path);
//   replacement.Write(bytes);    // or any other writer, using replacement.Path()
//   replacement.Commit();
//
// Links are followed. The target's owner, group, permissions and extended attributes are preserved; on Windows its
// access list, attributes and creation time. Other names of the same file (hard links) keep the old contents.
#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

namespace files {

// Throws FileError if the file exists and cannot be replaced: it is read-only or not a regular file. Returns whether it
// exists.
bool RequireReplaceable(const std::filesystem::path& target);

class FileReplacement {
public:
    // Creates the empty temporary file. Throws FileError if the target is read-only or not a regular file, or if no
    // file can be created in its folder. The new file gets the attributes of `original` or, if that is empty, those of
    // the target.
    explicit FileReplacement(const std::filesystem::path& target, const std::filesystem::path& original = {});
    // Removes the temporary file unless it has replaced the target.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    // Returns the file to replace: the target, or the file that a link refers to.
    const std::filesystem::path& Target() const { return target_; }
    // Returns the temporary file.
    const std::filesystem::path& Path() const { return path_; }

    // Writes the bytes and verifies them by reading. Throws FileError, and any exception thrown by `progress`.
    void Write(std::string_view bytes, const std::function<void(size_t written)>& progress = {});
    // Replaces the target. No handle to either file may be open. If it throws FileError, the target is unchanged.
    void Commit();

private:
    std::filesystem::path target_;
    std::filesystem::path original_; // whose attributes the file gets; empty for a new file
    std::filesystem::path path_;     // empty after the temporary file has been renamed or removed
};

// Installs handlers that remove the temporary file if the program is interrupted or terminated, including when a file
// exceeds the limit of file sizes. For command-line programs, which replace one file at a time.
void RemoveTemporaryFileOnInterrupt();

} // namespace files
