// What a command says when it can't do its work: one line, without the name of the file that it is about.
#pragma once

#include <stdexcept>
#include <string>

namespace suminfo {

class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    Failure(const std::string& file, const std::string& text) : std::runtime_error(text), file_(file) {}

    // Empty for the file that the command works on; another one where it has two.
    const std::string& File() const { return file_; }

private:
    std::string file_;
};

// Work on the command's other file: a failure in it is that file's.
template <class Work>
void OnFile(const std::string& file, Work work) {
    try {
        work();
    } catch (const std::runtime_error& failure) { // Failure, or one of the system
        throw Failure(file, failure.what());
    }
}

} // namespace suminfo
