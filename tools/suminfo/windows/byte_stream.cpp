// The system's stream over a block of memory.

#include "byte_stream.h"

#include <objbase.h>

#include "orlo/win/com_owner.h"
#include "storage_failure.h"

namespace suminfo {

class ByteStream::Stream {
public:
    orlo::Owned<IStream> made;
};

ByteStream::ByteStream(const orlo::Bytes& bytes) : stream_(std::make_unique<Stream>()) {
    HRESULT result = ::CreateStreamOnHGlobal(nullptr, TRUE, orlo::Receive(stream_->made));
    if (SUCCEEDED(result)) result = get()->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
    if (FAILED(result)) Fail(result, "it can't be read");
    get()->Seek({}, STREAM_SEEK_SET, nullptr);
}

ByteStream::~ByteStream() = default;

IStream* ByteStream::get() const {
    return stream_->made.get();
}

orlo::Bytes ByteStream::Bytes() const {
    STATSTG is = {};
    get()->Stat(&is, STATFLAG_NONAME);
    orlo::Bytes bytes(static_cast<size_t>(is.cbSize.QuadPart));
    ULONG came = 0;
    get()->Seek({}, STREAM_SEEK_SET, nullptr);
    get()->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &came);
    bytes.resize(came);
    return bytes;
}

} // namespace suminfo
