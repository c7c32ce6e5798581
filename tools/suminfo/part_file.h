// A file that is written beside another and takes its place in one step: whatever fails before leaves what was there.
#pragma once

#include <cstdio>
#include <string>

namespace suminfo {

class PartFile {
public:
    // Empty, in the folder of `target` and with its permissions, if that exists. Failure if it can't be made.
    explicit PartFile(std::string target);
    // Removes it if it hasn't taken the target's place.
    ~PartFile();
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    const std::string& Path() const { return path_; }
    // For reading and writing, binary; null, with the system's reason, if it can't be opened.
    FILE* Open() const;
    // When all handles to both are closed. Failure leaves the target as it was.
    void TakePlace();

private:
    std::string target_, path_;
};

} // namespace suminfo
