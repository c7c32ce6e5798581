// StreamReader: reads a stream through a buffer, so that a property set of typical size needs a single Read, and limits
// the total number of bytes read from untrusted data. Internal to the library.
#pragma once

#include <objidl.h>

#include <array>
#include <cstdint>

namespace orlo {

class StreamReader {
public:
    // Starts at the stream's position. The stream must outlive the reader. A stream that fails to report its position
    // or its end is treated as empty.
    explicit StreamReader(IStream* stream);
    // Reads bytes in memory, which must outlive the reader.
    StreamReader(const uint8_t* bytes, size_t size);

    ULONGLONG Position() const { return position_; }
    void SeekTo(ULONGLONG position) { position_ = position; }
    // Returns the number of bytes between the position and the end.
    ULONGLONG Left() const { return position_ < end_ ? end_ - position_ : 0; }

    // Reads and advances. Returns fewer bytes than requested only at the end or if the stream fails.
    size_t Read(void* to, size_t size);
    // Returns false if fewer than four bytes could be read.
    bool Read32(uint32_t& number) { return Read(&number, sizeof number) == sizeof number; }

    // Deducts that many bytes from the reader's limit of four times the stream's size (and a page). Intact streams stay
    // well below; values and tables that overlap many times exceed it. Returns false if the limit is exceeded.
    bool Spend(ULONGLONG bytes);

    // Sets the position of the stream to that of the reader.
    void SynchronizePosition();

private:
    ULONGLONG ReadStream(void* to, size_t size);

    IStream* stream_;
    ULONGLONG position_ = 0;
    ULONGLONG end_ = 0;
    ULONGLONG budget_ = 0;
    ULONGLONG windowAt_ = 0; // position of the buffer's first byte
    size_t windowSize_ = 0;
    std::array<uint8_t, 8192> buffer_;
    const uint8_t* window_ = buffer_.data();
};

} // namespace orlo
