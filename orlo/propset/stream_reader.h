// StreamReader: reads a stream through a window, so that a property set of the usual size costs one Read, and
// keeps account of what a reader of foreign data takes. Used inside the library.
#pragma once

#include <objidl.h>

#include <array>
#include <cstdint>

namespace orlo {

class StreamReader {
public:
    // Starts at the stream's position; the stream must outlive the reader. A stream that can't tell its
    // position or its end reads as empty.
    explicit StreamReader(IStream* stream);

    ULONGLONG Position() const { return position_; }
    void SeekTo(ULONGLONG position) { position_ = position; }
    // Bytes between the position and the end.
    ULONGLONG Left() const { return position_ < end_ ? end_ - position_ : 0; }

    // Reads and moves on; less than asked for only at the end or where the stream fails.
    size_t Read(void* to, size_t size);
    // False if fewer than four bytes could be read.
    bool Read32(uint32_t& number) { return Read(&number, sizeof number) == sizeof number; }

    // Takes that many bytes from the reader's allowance: four times the stream's size (and a page). What a
    // sound stream holds never comes near it; values and tables laid over one another many times run out of
    // it. False if they do.
    bool Spend(ULONGLONG bytes);

    // Moves the stream to the reader's position.
    void Settle();

private:
    ULONGLONG ReadStream(void* to, size_t size);

    IStream* stream_;
    ULONGLONG position_ = 0;
    ULONGLONG end_ = 0;
    ULONGLONG allowance_ = 0;
    ULONGLONG windowAt_ = 0; // position of the window's first byte
    size_t windowSize_ = 0;
    std::array<uint8_t, 8192> window_;
};

} // namespace orlo
