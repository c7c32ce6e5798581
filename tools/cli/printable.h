// Makes texts from files safe to print.
#pragma once

#include <cstdio>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

namespace cli {

// Escapes control characters, which a terminal would interpret, and bytes that are not UTF-8, in this format. Line ends
// are not escaped.
std::string Printable(std::string_view utf8, const char* escape = "\\x%02x");
// Also escapes line ends and tabs, as \n, \r and \t.
std::string OneLine(std::string_view utf8);

// During its lifetime, text that is written to the stream is escaped by Printable. If `file`, the file of the stream,
// is a console, the text is printed on it. The stream fails if the text cannot be written.
class PrintableBuffer : public std::streambuf {
public:
    PrintableBuffer(std::ostream& stream, FILE* file) : stream_(stream), file_(file), target_(stream.rdbuf(this)) {}
    ~PrintableBuffer() override;
    PrintableBuffer(const PrintableBuffer&) = delete;
    PrintableBuffer& operator=(const PrintableBuffer&) = delete;

protected:
    std::streamsize xsputn(const char* text, std::streamsize size) override;
    int_type overflow(int_type character) override;
    int sync() override;

private:
    bool Write(size_t size);

    std::ostream& stream_;
    FILE* const file_;
    std::streambuf* const target_;
    std::string text_; // not yet written
};

} // namespace cli
