// Reads and writes the bytes, and fails if the disk is full.

#include "failing_bytes.h"

#include <algorithm>

HRESULT FailingBytes::QueryInterface(REFIID id, void** object) {
    if (!::IsEqualGUID(id, IID_IUnknown) && !::IsEqualGUID(id, IID_ILockBytes)) return E_NOINTERFACE;
    *object = this;
    return S_OK;
}

HRESULT FailingBytes::ReadAt(ULARGE_INTEGER at, void* buffer, ULONG size, ULONG* done) {
    const size_t from = std::min<size_t>(bytes.size(), static_cast<size_t>(at.QuadPart));
    const size_t count = std::min<size_t>(size, bytes.size() - from);
    std::copy_n(bytes.begin() + static_cast<ptrdiff_t>(from), count, static_cast<uint8_t*>(buffer));
    if (done) *done = static_cast<ULONG>(count);
    return S_OK;
}

HRESULT FailingBytes::WriteAt(ULARGE_INTEGER at, const void* buffer, ULONG size, ULONG* done) {
    if (done) *done = 0;
    if (at.QuadPart + size > capacity) return STG_E_MEDIUMFULL;
    const auto from = static_cast<size_t>(at.QuadPart);
    if (bytes.size() < from + size) bytes.resize(from + size);
    std::copy_n(static_cast<const uint8_t*>(buffer), size, bytes.begin() + static_cast<ptrdiff_t>(from));
    if (keepsHistory) history.push_back(bytes);
    if (done) *done = size;
    return S_OK;
}

HRESULT FailingBytes::SetSize(ULARGE_INTEGER size) {
    if (size.QuadPart > std::max<ULONGLONG>(capacity, bytes.size())) return STG_E_MEDIUMFULL;
    bytes.resize(static_cast<size_t>(size.QuadPart));
    if (keepsHistory) history.push_back(bytes);
    return S_OK;
}

HRESULT FailingBytes::Stat(STATSTG* stat, DWORD) {
    *stat = {};
    stat->type = STGTY_LOCKBYTES;
    stat->cbSize.QuadPart = bytes.size();
    return S_OK;
}
