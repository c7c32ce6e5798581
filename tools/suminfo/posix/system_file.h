// Files of this machine.
#pragma once

#include <string>
#include <unistd.h>
#include <utility>

#include "orlo/summary/compound_reader.h"

namespace suminfo {

class OwnedFile {
public:
    explicit OwnedFile(int file) : file_(file) {}
    OwnedFile(OwnedFile&& other) noexcept : file_(std::exchange(other.file_, -1)) {}
    ~OwnedFile() {
        if (file_ >= 0) ::close(file_);
    }

    int get() const { return file_; }

private:
    int file_;
};

// To be read. Failure, with the reason, if the system doesn't open it.
OwnedFile OpenDocument(const std::string& file);
// Over the open file, which stays the caller's. What is no file on a disk, as a pipe, has no bytes.
orlo::CompoundReader ReadCompound(const OwnedFile& file);

} // namespace suminfo
