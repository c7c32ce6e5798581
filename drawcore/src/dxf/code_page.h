// Turns bytes of a code page into UTF-8, by the system's own tables.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace dxf {

class CodePage {
public:
    // By a drawing's name for it ("ANSI_1252", "dos850", "gb2312"), in any case. A name that nobody knows:
    // Windows 1252.
    explicit CodePage(std::string_view name);
    explicit CodePage(int number);
    ~CodePage();
    CodePage(CodePage&&) noexcept;
    CodePage& operator=(CodePage&&) noexcept;

    // What the page has no character for becomes U+FFFD.
    std::string ToUtf8(std::string_view bytes) const;
    // None if the page lacks one of the characters.
    std::optional<std::string> FromUtf8(std::string_view text) const;

private:
    struct Converter; // the system's
    std::unique_ptr<Converter> converter_;
};

} // namespace dxf
