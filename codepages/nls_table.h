// A code page, read from a Windows NLS table as supplied by Wine.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "codepages/conversion.h"

namespace codepages {

class NlsTable {
public:
    // Reads the table of the code page. It is unknown if there is no valid file.
    explicit NlsTable(uint16_t codePage);

    bool IsKnown() const { return !words_.empty(); }
    // With Reject, returns nothing if the bytes are not text in the code page.
    std::optional<std::u16string> ToUtf16(std::string_view text, Invalid invalid) const;
    // Returns nothing if a character is missing. Best-fit mappings are not used.
    std::optional<std::string> FromUtf16(std::u16string_view text) const;

private:
    bool Locate();
    bool IsLead(uint8_t byte) const { return isDouble_ && words_[pairs_ + byte] != 0; }
    // Returns the character of a byte, or of a lead byte and the following byte.
    char16_t CharacterOf(uint16_t code) const;
    // Returns false for undefined codes.
    bool IsText(uint16_t code) const;

    std::vector<uint16_t> words_; // contents of the file
    // Offsets of its parts.
    size_t singles_ = 0, pairs_ = 0, codes_ = 0;
    bool isDouble_ = false;          // some characters have two bytes
    char16_t noCharacter_ = 0;       // replacement for undefined codes
    uint16_t codeOfNoCharacter_ = 0; // the code for which it is valid
};

} // namespace codepages
