// ImageWriter: composes stream contents in memory, so that they are written with a single call of Write. Internal to
// the library.
#pragma once

#include <objidl.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>
#include <vector>

namespace orlo {

class ImageWriter {
public:
    size_t Size() const { return bytes_.size(); }

    // Reserves memory for about that many further bytes.
    void Reserve(size_t size) {
        if (bytes_.capacity() - bytes_.size() < size)
            bytes_.reserve(std::max(bytes_.size() + size, 2 * bytes_.capacity()));
    }

    void Put(const void* bytes, size_t size) {
        const auto* begin = static_cast<const uint8_t*>(bytes);
        bytes_.insert(bytes_.end(), begin, begin + size);
    }
    void Put16(uint16_t number) { Put(&number, sizeof number); }
    void Put32(uint32_t number) { Put(&number, sizeof number); }
    void PutZeros(size_t count) { bytes_.resize(bytes_.size() + count); }
    // Overwrites bytes that were already written.
    void Patch(size_t at, const void* bytes, size_t size) { std::memcpy(&bytes_[at], bytes, size); }
    void Patch32(size_t at, uint32_t number) { Patch(at, &number, sizeof number); }

    // Returns true if everything was written to the stream.
    bool WriteTo(IStream* stream) const {
        ULONG done = 0;
        return bytes_.size() <= UINT32_MAX &&
               SUCCEEDED(stream->Write(bytes_.data(), static_cast<ULONG>(bytes_.size()), &done)) &&
               done == bytes_.size();
    }
    // Writes to the stream what `append` composes. Returns false if append does, or if the memory is not sufficient.
    template <class Append>
    static bool WriteTo(IStream* stream, const Append& append) try {
        ImageWriter image;
        return append(image) && image.WriteTo(stream);
    } catch (const std::bad_alloc&) {
        return false;
    }
    std::vector<uint8_t> Take() { return std::move(bytes_); }

private:
    std::vector<uint8_t> bytes_;
};

} // namespace orlo
