// A stream in memory that can be made to fail, for tests of property sets on both systems.
#pragma once

#include <objidl.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor" // the system's interface has no virtual destructor; it is never
                                                    // deleted through the interface

#if defined(_WIN32)
// Functions that property sets never call, and reference counting for an object on the stack.
class UnusedCalls : public IStream {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE SetSize(ULARGE_INTEGER) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Commit(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Revert() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Clone(IStream**) override { return E_NOTIMPL; }
};
#else
using UnusedCalls = IStream;
#endif

class MemoryStream final : public UnusedCalls {
public:
    MemoryStream() = default;
    explicit MemoryStream(std::vector<uint8_t> bytes) : bytes_(std::move(bytes)) {}

    const std::vector<uint8_t>& Content() const { return bytes_; }
    ULONGLONG Position() const { return position_; }
    void Rewind(ULONGLONG position = 0) { position_ = position; }
    // Limit the number of bytes read or written; the call that reaches the limit transfers fewer bytes.
    void LimitReads(size_t bytes) { readable_ = bytes; }
    void LimitWrites(size_t bytes) { writable_ = bytes; }
    int Transfers() const { return transfers_; } // number of reads and writes so far

    HRESULT STDMETHODCALLTYPE Read(void* buffer, ULONG size, ULONG* done) override;
    HRESULT STDMETHODCALLTYPE Write(const void* buffer, ULONG size, ULONG* done) override;
    HRESULT STDMETHODCALLTYPE Seek(LARGE_INTEGER move, DWORD origin, ULARGE_INTEGER* position) override;

private:
    std::vector<uint8_t> bytes_;
    ULONGLONG position_ = 0;
    size_t readable_ = SIZE_MAX;
    size_t writable_ = SIZE_MAX;
    int transfers_ = 0;
};

#pragma GCC diagnostic pop
