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

void EditSet(const std::filesystem::path& file, const std::string& stream,
             const std::function<void(orlo::SetImage&)>& edit) {
    const std::vector<unsigned char> bytes = StreamsOf(file).at(stream);
    std::vector<orlo::Finding> findings;
    std::optional<orlo::SetImage> image = orlo::ReadSetImage(bytes.data(), bytes.size(), findings);
    ASSERT_TRUE(image);
    edit(*image);
    const orlo::Bytes edited = orlo::WriteSetImage(*image).value();
    constexpr DWORD kReplace = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;
    IStorage* storage = nullptr;
    IStream* opened = nullptr;
    ASSERT_EQ(::StgOpenStorage(file.c_str(), nullptr, kReplace, nullptr, 0, &storage), S_OK);
    const std::wstring name(stream.begin(), stream.end());
    ASSERT_EQ(storage->CreateStream(name.c_str(), kReplace | STGM_CREATE, 0, 0, &opened), S_OK);
    opened->Write(edited.data(), static_cast<ULONG>(edited.size()), nullptr);
    opened->Release();
    storage->Release();
}
