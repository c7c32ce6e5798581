// Reads at offsets of a file that others may have open.

#include "orlo/summary/compound_file.h"

#include <memory>
#include <windows.h>

namespace orlo {
namespace {

struct CloseFile {
    void operator()(HANDLE file) const { ::CloseHandle(file); }
};
using OwnedFile = std::unique_ptr<void, CloseFile>;

bool ReadFrom(HANDLE file, uint64_t offset, void* buffer, size_t size) {
    OVERLAPPED at = {};
    at.Offset = static_cast<DWORD>(offset);
    at.OffsetHigh = static_cast<DWORD>(offset >> 32);
    DWORD done = 0;
    return ::ReadFile(file, buffer, static_cast<DWORD>(size), &done, &at) && done == size;
}

} // namespace

CompoundReader ReadCompoundFile(void* file) {
    LARGE_INTEGER size;
    if (!::GetFileSizeEx(file, &size)) size.QuadPart = 0;
    const ReadAt read = [file](uint64_t offset, void* buffer, size_t count) {
        return ReadFrom(file, offset, buffer, count);
    };
    return CompoundReader(read, static_cast<uint64_t>(size.QuadPart));
}

CompoundState StateOfCompoundFile(const wchar_t* path) {
    constexpr DWORD kSharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE opened = ::CreateFileW(path, GENERIC_READ, kSharing, nullptr, OPEN_EXISTING, 0, nullptr);
    if (opened == INVALID_HANDLE_VALUE) return CompoundState::foreign;
    const OwnedFile file(opened);
    return ReadCompoundFile(opened).State();
}

} // namespace orlo
