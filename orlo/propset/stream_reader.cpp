// Reads a stream through a buffer and limits the total number of bytes read.

#include "orlo/propset/stream_reader.h"

#include <algorithm>
#include <cstring>

namespace orlo {

namespace {

bool Seek(IStream* stream, LONGLONG move, DWORD origin, ULONGLONG& position) {
    LARGE_INTEGER distance;
    distance.QuadPart = move;
    ULARGE_INTEGER reached;
    if (FAILED(stream->Seek(distance, origin, &reached))) return false;
    position = reached.QuadPart;
    return true;
}

} // namespace

StreamReader::StreamReader(IStream* stream) : stream_(stream) {
    if (!Seek(stream, 0, STREAM_SEEK_CUR, position_) || !Seek(stream, 0, STREAM_SEEK_END, end_)) end_ = 0;
    budget_ = 4 * end_ + 4096;
}

StreamReader::StreamReader(const uint8_t* bytes, size_t size)
    : stream_(nullptr), end_(size), budget_(ULONGLONG{4} * size), windowSize_(size), window_(bytes) {}

size_t StreamReader::Read(void* to, size_t size) {
    auto* out = static_cast<uint8_t*>(to);
    size_t done = 0;
    while (done < size && Left() > 0) {
        if (position_ >= windowAt_ && position_ - windowAt_ < windowSize_) {
            const auto from = static_cast<size_t>(position_ - windowAt_);
            const size_t part = std::min(size - done, windowSize_ - from);
            std::memcpy(out + done, window_ + from, part);
            done += part;
            position_ += part;
        } else if (size - done >= buffer_.size()) {
            const ULONGLONG part = ReadStream(out + done, size - done);
            position_ += part;
            return done + static_cast<size_t>(part);
        } else {
            windowAt_ = position_;
            windowSize_ = static_cast<size_t>(ReadStream(buffer_.data(), buffer_.size()));
            if (windowSize_ == 0) break;
        }
    }
    return done;
}

// Reads from the current position, as many bytes as there are.
ULONGLONG StreamReader::ReadStream(void* to, size_t size) {
    size = static_cast<size_t>(std::min<ULONGLONG>(size, Left()));
    ULONGLONG reached;
    if (size == 0 || !Seek(stream_, static_cast<LONGLONG>(position_), STREAM_SEEK_SET, reached)) return 0;
    size_t done = 0;
    while (done < size) {
        ULONG part = 0;
        const auto wanted = static_cast<ULONG>(std::min<size_t>(size - done, 0x40000000));
        const HRESULT result = stream_->Read(static_cast<uint8_t*>(to) + done, wanted, &part);
        done += part;
        if (FAILED(result) || part == 0) break;
    }
    return done;
}

bool StreamReader::Spend(ULONGLONG bytes) {
    if (bytes > budget_) return false;
    budget_ -= bytes;
    return true;
}

void StreamReader::SynchronizePosition() {
    ULONGLONG reached;
    Seek(stream_, static_cast<LONGLONG>(position_), STREAM_SEEK_SET, reached);
}

} // namespace orlo
