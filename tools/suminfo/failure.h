// What a command says when it can't do its work: one line, without the name of the file that it is about.
#pragma once

#include <stdexcept>
#include <string>
#include <windows.h>

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
    } catch (const Failure& failure) {
        throw Failure(file, failure.what());
    }
}

// A result of the storage in words, or its number where words are missing.
std::string TextOf(HRESULT result);
[[noreturn]] void Fail(HRESULT result, const std::string& doing);
// The same for the last error of the system.
[[noreturn]] void FailBySystem(const std::string& doing);

} // namespace suminfo
