// Reads streams with the system's functions, and writes one.

#include "streams.h"

#include <gtest/gtest.h>

#include "orlo/win/com_owner.h"
#include "support/system_streams.h"

using orlo::Owned;
using orlo::Receive;

std::map<std::string, std::vector<unsigned char>> StreamsOf(const std::filesystem::path& file) {
    std::map<std::string, std::vector<unsigned char>> streams;
    Owned<IStorage> storage;
    constexpr DWORD kRead = STGM_READ | STGM_SHARE_EXCLUSIVE;
    EXPECT_EQ(::StgOpenStorage(file.c_str(), nullptr, kRead, nullptr, 0, Receive(storage)), S_OK) << file;
    if (!storage) return streams;
    for (auto& [path, bytes] : SystemStreamsOf(storage.get()))
        streams[std::string(path.begin(), path.end())] = bytes;
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
    Owned<IStorage> storage;
    Owned<IStream> opened;
    ASSERT_EQ(::StgOpenStorage(file.c_str(), nullptr, kReplace, nullptr, 0, Receive(storage)), S_OK);
    const std::wstring name(stream.begin(), stream.end());
    ASSERT_EQ(storage->CreateStream(name.c_str(), kReplace | STGM_CREATE, 0, 0, Receive(opened)), S_OK);
    opened->Write(edited.data(), static_cast<ULONG>(edited.size()), nullptr);
}
