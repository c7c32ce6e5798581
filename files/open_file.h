// OpenFile: owns a system file handle; can be read at any offset.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <utility>

namespace files {

#ifdef _WIN32
using NativeFile = void*; // a HANDLE
#else
using NativeFile = int;
#endif

// Returns the handle value that the system returns on failure.
inline NativeFile NoFile() {
#ifdef _WIN32
    return reinterpret_cast<void*>(intptr_t{-1});
#else
    return -1;
#endif
}

class OpenFile {
public:
    // Takes ownership of the handle.
    explicit OpenFile(NativeFile file) : file_(file) {}
    OpenFile(OpenFile&& other) noexcept : file_(std::exchange(other.file_, NoFile())) {}
    ~OpenFile();

    explicit operator bool() const { return file_ != NoFile(); }
    NativeFile get() const { return file_; }

private:
    NativeFile file_;
};

// Opens an existing file for reading. Other programs can read, write and replace it meanwhile. Throws FileError.
OpenFile OpenToRead(const std::filesystem::path& path);
// Opens an existing file for reading. On Windows no other program can write it as long as it is open. Throws FileError,
// also if another program already has it open for writing.
OpenFile OpenAgainstWriters(const std::filesystem::path& path);
// Opens an existing file for writing at its beginning. Throws FileError.
OpenFile OpenToWrite(const std::filesystem::path& path);

#ifdef _WIN32
// Opens an existing file, or with flags a folder, with the given access. Returns an OpenFile without a handle on
// failure.
OpenFile OpenShared(const std::filesystem::path& path, unsigned long access, unsigned long flags = 0);
#endif

// Returns the size in bytes; 0 for a pipe or a device.
uint64_t SizeOf(NativeFile file);
// Returns false if the file does not have all of these bytes.
bool ReadAt(NativeFile file, uint64_t offset, void* buffer, size_t size);
// Throws FileError.
void Append(NativeFile file, std::string_view bytes);
// Returns after the bytes have been written to disk. Throws FileError.
void Flush(NativeFile file);

// Returns true if the file contains exactly these bytes. Throws FileError if it cannot be read.
bool HasContents(const std::filesystem::path& path, std::string_view bytes);

} // namespace files
