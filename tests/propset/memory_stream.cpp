// Reads and writes the bytes, up to the requested failure.
#include "tests/propset/memory_stream.h"

HRESULT MemoryStream::Read(void* buffer, ULONG size, ULONG* done) {
    ++transfers_;
    const size_t left = position_ < bytes_.size() ? bytes_.size() - static_cast<size_t>(position_) : 0;
    const size_t part = std::min({size_t{size}, left, readable_});
    if (part > 0) std::memcpy(buffer, bytes_.data() + position_, part);
    position_ += part;
    if (readable_ != SIZE_MAX) readable_ -= part;
    if (done != nullptr) *done = static_cast<ULONG>(part);
    return part == size ? S_OK : S_FALSE;
}

HRESULT MemoryStream::Write(const void* buffer, ULONG size, ULONG* done) {
    ++transfers_;
    const size_t part = std::min(size_t{size}, writable_);
    const auto end = static_cast<size_t>(position_) + part;
    if (end > bytes_.size()) bytes_.resize(end);
    if (part > 0) std::memcpy(bytes_.data() + position_, buffer, part);
    position_ = end;
    if (writable_ != SIZE_MAX) writable_ -= part;
    if (done != nullptr) *done = static_cast<ULONG>(part);
    return S_OK;
}

HRESULT MemoryStream::Seek(LARGE_INTEGER move, DWORD origin, ULARGE_INTEGER* position) {
    LONGLONG from = 0;
    if (origin == STREAM_SEEK_CUR) from = static_cast<LONGLONG>(position_);
    if (origin == STREAM_SEEK_END) from = static_cast<LONGLONG>(bytes_.size());
    if (from + move.QuadPart < 0) return E_FAIL;
    position_ = static_cast<ULONGLONG>(from + move.QuadPart);
    if (position != nullptr) position->QuadPart = position_;
    return S_OK;
}
