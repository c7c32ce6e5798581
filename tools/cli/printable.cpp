// Escapes characters, and buffers whole lines.

#include "tools/cli/printable.h"

#include <algorithm>

#include "tools/cli/console.h"

namespace cli {
namespace {

constexpr size_t kChunkSize = 65536; // bytes per write

// Returns the size in bytes of the first character, or 1 for an invalid byte.
size_t CharacterSize(std::string_view utf8) {
    const auto lead = static_cast<unsigned char>(utf8[0]);
    const size_t size = lead < 0xC2 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 1;
    for (size_t i = 1; i < size; ++i)
        if (i == utf8.size() || (utf8[i] & 0xC0) != 0x80) return 1;
    return size;
}

// Returns whether the text is printed as it is, as nearly all texts are. The loops have no branch.
bool IsOnePlainLine(std::string_view text) {
    bool isPlain = true;
    for (const char c : text)
        isPlain &= c >= ' ' && c < '\x7F';
    return isPlain;
}

bool IsPlain(std::string_view text) {
    bool isPlain = true;
    for (const char c : text)
        isPlain &= (c >= ' ' && c < '\x7F') || c == '\n' || c == '\r';
    return isPlain;
}

} // namespace

std::string Printable(std::string_view utf8, const char* escape) {
    if (IsPlain(utf8)) return std::string(utf8);
    std::string printable;
    for (size_t i = 0, size = 0; i < utf8.size(); i += size) {
        unsigned code = static_cast<unsigned char>(utf8[i]);
        size = CharacterSize(utf8.substr(i));
        const bool endsLine = code == '\n' || code == '\r';
        if (size == 2 && code == 0xC2) code = static_cast<unsigned char>(utf8[i + 1]); // shown as a number
        const bool isControl = (code < 0x20 && !endsLine) || code == 0x7F || (size == 2 && code < 0xA0);
        const bool isStray = size == 1 && code >= 0x80; // possible in file names, which may contain any bytes
        if (isControl || isStray) {
            char escaped[16];
            std::snprintf(escaped, sizeof escaped, escape, code);
            printable += escaped;
        } else {
            printable += utf8.substr(i, size);
        }
    }
    return printable;
}

std::string OneLine(std::string_view utf8) {
    if (IsOnePlainLine(utf8)) return std::string(utf8);
    std::string line;
    for (const char c : utf8) {
        if (c == '\n')
            line += "\\n";
        else if (c == '\r')
            line += "\\r";
        else if (c == '\t')
            line += "\\t";
        else
            line += c;
    }
    return Printable(line);
}

PrintableBuffer::~PrintableBuffer() {
    if (PrintableBuffer::sync() != 0) stream_.setstate(std::ios::badbit);
    stream_.rdbuf(target_);
}

std::streamsize PrintableBuffer::xsputn(const char* text, std::streamsize size) {
    text_.append(text, static_cast<size_t>(size));
    // Only whole lines, because a piece must not end within a character.
    const size_t lines = text_.size() < kChunkSize ? std::string::npos : text_.rfind('\n');
    return lines == std::string::npos || Write(lines + 1) ? size : 0;
}

PrintableBuffer::int_type PrintableBuffer::overflow(int_type character) {
    const char c = traits_type::to_char_type(character);
    if (traits_type::eq_int_type(character, traits_type::eof())) return traits_type::not_eof(character);
    return xsputn(&c, 1) == 1 ? character : traits_type::eof();
}

int PrintableBuffer::sync() {
    return Write(text_.size()) && target_->pubsync() == 0 ? 0 : -1;
}

bool PrintableBuffer::Write(size_t size) {
    const std::string_view text = std::string_view(text_).substr(0, size);
    const std::string printable = Printable(text);
    const auto length = static_cast<std::streamsize>(printable.size());
    const bool isDone = PrintOnConsole(file_, printable) || target_->sputn(printable.data(), length) == length;
    text_.erase(0, size);
    return isDone;
}

} // namespace cli
