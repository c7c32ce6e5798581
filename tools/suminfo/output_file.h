// A file for a picture or a script, which takes over its name when it is complete: a failure leaves what was there.
#pragma once

#include <cstdio>
#include <string>
#include <utility>

#include "part_file.h"

namespace suminfo {

class OutputFile {
public:
    // Failure if it can't be made.
    explicit OutputFile(const std::string& file);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    // Open for reading and writing, binary.
    FILE* Stream() const { return stream_; }
    // The same for somebody who closes it.
    FILE* HandOver() { return std::exchange(stream_, nullptr); }
    // When a stream that was handed over is closed. Failure if not all of it could be written.
    void Finish();

private:
    PartFile part_;
    FILE* stream_;
};

} // namespace suminfo
