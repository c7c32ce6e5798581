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
    } catch (const Failure& failure) {
        throw Failure(file, failure.what());
    }
}

// Why a system doesn't do what it is asked, in the same words on each.
namespace why {
constexpr char kNoFile[] = "no such file";
constexpr char kNoFolder[] = "no such folder";
constexpr char kDenied[] = "access is denied, or the file is read-only";
constexpr char kFull[] = "the disk is full";
constexpr char kNotWritten[] = "it can't be written: the disk is full or failed";
constexpr char kNoMemory[] = "not enough memory";
} // namespace why

// Throws what failed, with the last error of the system in words, or its number where words are missing.
[[noreturn]] void FailBySystem(const std::string& doing);

} // namespace suminfo
