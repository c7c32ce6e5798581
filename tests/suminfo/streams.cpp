// Storages in storages.

#include "streams.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <objbase.h>

namespace {

constexpr DWORD kRead = STGM_READ | STGM_SHARE_EXCLUSIVE;
using Streams = std::map<std::string, std::vector<unsigned char>>;

void Collect(IStorage* storage, const std::string& prefix, Streams& streams) {
    IEnumSTATSTG* list = nullptr;
    ASSERT_EQ(storage->EnumElements(0, nullptr, 0, &list), S_OK);
    STATSTG stat;
    while (list->Next(1, &stat, nullptr) == S_OK) {
        const std::wstring wide = stat.pwcsName;
        ::CoTaskMemFree(stat.pwcsName);
        const std::string name = prefix + std::filesystem::path(wide).string();
        IStorage* inner = nullptr;
        IStream* stream = nullptr;
        if (stat.type == STGTY_STORAGE &&
            storage->OpenStorage(wide.c_str(), nullptr, kRead, nullptr, 0, &inner) == S_OK) {
            Collect(inner, name + "/", streams);
            inner->Release();
        } else if (storage->OpenStream(wide.c_str(), nullptr, kRead, 0, &stream) == S_OK) {
            std::vector<unsigned char>& bytes = streams[name];
            bytes.resize(static_cast<size_t>(stat.cbSize.QuadPart));
            stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
            stream->Release();
        }
    }
    list->Release();
}

} // namespace

Streams StreamsOf(const std::filesystem::path& file) {
    Streams streams;
    IStorage* storage = nullptr;
    const HRESULT opened = ::StgOpenStorage(file.c_str(), nullptr, kRead, nullptr, 0, &storage);
    EXPECT_EQ(opened, S_OK) << file;
    if (FAILED(opened)) return streams;
    Collect(storage, "", streams);
    storage->Release();
    return streams;
}
