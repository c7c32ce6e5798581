// The bytes of a compound file in memory, on a simulated disk that can be full.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>
#include <windows.h>

#include <objidl.h>

// COM interfaces have no virtual destructor; this object is never deleted through one.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
class FailingBytes final : public ILockBytes {
public:
    explicit FailingBytes(std::vector<uint8_t> content = {}) : bytes(std::move(content)) {}

    // In bytes. Writing beyond it fails like on a full disk; overwriting succeeds.
    ULONGLONG capacity = ~ULONGLONG{0};
    std::vector<uint8_t> bytes;
    // Records the contents after each step: the states in which a killed program may leave the disk.
    bool keepsHistory = false;
    std::vector<std::vector<uint8_t>> history;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; } // on the stack
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE ReadAt(ULARGE_INTEGER at, void* buffer, ULONG size, ULONG* done) override;
    HRESULT STDMETHODCALLTYPE WriteAt(ULARGE_INTEGER at, const void* buffer, ULONG size, ULONG* done) override;
    HRESULT STDMETHODCALLTYPE Flush() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetSize(ULARGE_INTEGER size) override;
    HRESULT STDMETHODCALLTYPE LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override {
        return STG_E_INVALIDFUNCTION;
    }
    HRESULT STDMETHODCALLTYPE UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override {
        return STG_E_INVALIDFUNCTION;
    }
    HRESULT STDMETHODCALLTYPE Stat(STATSTG* stat, DWORD flags) override;
};
#pragma GCC diagnostic pop
