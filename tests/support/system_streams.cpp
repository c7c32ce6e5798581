// Reads nested storages.

#include "system_streams.h"

#include "orlo/win/com_owner.h"

using orlo::Owned;
using orlo::Receive;

namespace {

constexpr DWORD kRead = STGM_READ | STGM_SHARE_EXCLUSIVE;
using Streams = std::map<std::u16string, std::vector<uint8_t>>;

std::vector<uint8_t> ReadAll(IStream* stream) {
    std::vector<uint8_t> bytes, piece(4096);
    for (ULONG got = 1; got != 0;) {
        if (FAILED(stream->Read(piece.data(), static_cast<ULONG>(piece.size()), &got))) break;
        bytes.insert(bytes.end(), piece.begin(), piece.begin() + static_cast<ptrdiff_t>(got));
    }
    return bytes;
}

void Collect(IStorage* storage, const std::u16string& prefix, Streams& streams) {
    Owned<IEnumSTATSTG> list;
    if (FAILED(storage->EnumElements(0, nullptr, 0, Receive(list)))) return;
    STATSTG stat;
    while (list->Next(1, &stat, nullptr) == S_OK) {
        const std::wstring name = stat.pwcsName ? stat.pwcsName : L"";
        ::CoTaskMemFree(stat.pwcsName);
        const std::u16string path = prefix + std::u16string(name.begin(), name.end());
        Owned<IStorage> inner;
        Owned<IStream> stream;
        if (stat.type != STGTY_STORAGE) {
            storage->OpenStream(name.c_str(), nullptr, kRead, 0, Receive(stream));
            streams[path] = stream ? ReadAll(stream.get()) : std::vector<uint8_t>();
        } else if (SUCCEEDED(storage->OpenStorage(name.c_str(), nullptr, kRead, nullptr, 0, Receive(inner)))) {
            Collect(inner.get(), path + u'/', streams);
        }
    }
}

} // namespace

Streams SystemStreamsOf(IStorage* storage) {
    Streams streams;
    Collect(storage, {}, streams);
    return streams;
}
