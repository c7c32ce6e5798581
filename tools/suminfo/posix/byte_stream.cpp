// The stream interface of native/include over a vector.

#include "byte_stream.h"

#include <algorithm>
#include <cstring>

namespace suminfo {

class ByteStream::Stream final : public IStream {
public:
    explicit Stream(const orlo::Bytes& bytes) : bytes_(bytes) {}
    const orlo::Bytes& Content() const { return bytes_; }

    HRESULT Read(void* buffer, ULONG size, ULONG* done) override {
        const size_t there = at_ < bytes_.size() ? std::min<size_t>(size, bytes_.size() - at_) : 0;
        if (there > 0) std::memcpy(buffer, bytes_.data() + at_, there);
        return Moved(there, done);
    }

    HRESULT Write(const void* buffer, ULONG size, ULONG* done) override {
        if (bytes_.size() < at_ + size) bytes_.resize(at_ + size);
        if (size > 0) std::memcpy(bytes_.data() + at_, buffer, size);
        return Moved(size, done);
    }

    HRESULT Seek(LARGE_INTEGER move, DWORD origin, ULARGE_INTEGER* position) override {
        const size_t from = origin == STREAM_SEEK_SET ? 0 : origin == STREAM_SEEK_CUR ? at_ : bytes_.size();
        if (move.QuadPart < -static_cast<LONGLONG>(from)) return E_FAIL;
        at_ = from + static_cast<size_t>(move.QuadPart);
        if (position) position->QuadPart = at_;
        return S_OK;
    }

private:
    HRESULT Moved(size_t by, ULONG* done) {
        at_ += by;
        if (done) *done = static_cast<ULONG>(by);
        return S_OK;
    }

    orlo::Bytes bytes_;
    size_t at_ = 0;
};

ByteStream::ByteStream(const orlo::Bytes& bytes) : stream_(std::make_unique<Stream>(bytes)) {}
ByteStream::~ByteStream() = default;

IStream* ByteStream::get() const {
    return stream_.get();
}

orlo::Bytes ByteStream::Bytes() const {
    return stream_->Content();
}

} // namespace suminfo
