// A stream over bytes in memory, for the classes of property sets. Throws Failure.
#pragma once

#include <memory>
#include <objidl.h>

#include "orlo/propset/inspect/value.h"

namespace suminfo {

class ByteStream {
public:
    // At its beginning, with a copy of the bytes.
    explicit ByteStream(const orlo::Bytes& bytes = {});
    ~ByteStream();
    ByteStream(const ByteStream&) = delete;
    ByteStream& operator=(const ByteStream&) = delete;

    IStream* get() const;
    // All that is in it.
    orlo::Bytes Bytes() const;

private:
    class Stream;
    std::unique_ptr<Stream> stream_;
};

} // namespace suminfo
