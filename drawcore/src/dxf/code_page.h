// Converts text between a code page and UTF-8 with the system's tables.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace dxf {

class CodePage {
public:
    // Takes a name as in drawings ("ANSI_1252", "dos850", "gb2312"), ignoring case. Unknown names: Windows 1252.
    explicit CodePage(std::string_view name);
    explicit CodePage(int number);
    ~CodePage();
    CodePage(CodePage&&) noexcept;
    CodePage& operator=(CodePage&&) noexcept;

    // Undefined bytes become U+FFFD.
    std::string ToUtf8(std::string_view bytes) const;
    // Returns nothing if the code page cannot represent a character.
    std::optional<std::string> FromUtf8(std::string_view text) const;

private:
    struct Converter; // depends on the system
    std::unique_ptr<Converter> converter_;
};

} // namespace dxf
