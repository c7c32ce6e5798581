// A file for a picture or a script, which takes over its name when it is complete: a failure leaves what was there.
#pragma once

#include <cstdio>
#include <string>

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
    // Failure if not all of it could be written.
    void Finish();

private:
    PartFile part_;
    FILE* stream_;
};

} // namespace suminfo
