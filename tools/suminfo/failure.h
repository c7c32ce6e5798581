// The error of a command, with a one-line message that does not include the file's name.
#pragma once

#include <stdexcept>
#include <string>

namespace suminfo {

class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    Failure(const std::string& file, const std::string& text) : std::runtime_error(text), file_(file) {}

    // Returns the file if it is not the one that the command processes, or an empty string.
    const std::string& File() const { return file_; }

private:
    std::string file_;
};

// Runs work on the command's second file, and attributes failures to that file.
template <class Work>
void OnFile(const std::string& file, Work work) {
    try {
        work();
    } catch (const std::runtime_error& failure) { // a Failure, or an error of the system
        throw Failure(file, failure.what());
    }
}

} // namespace suminfo
