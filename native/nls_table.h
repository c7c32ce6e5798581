// One code page by its table in the form that Windows has them in (NLS), as Wine brings them along.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlo {

class NlsTable {
public:
    // The table of that code page; unknown if there is no such file, or if it is none.
    explicit NlsTable(uint16_t codePage);

    bool IsKnown() const { return !words_.empty(); }
    // Nothing if the bytes are no text in it.
    std::optional<std::u16string> ToUtf16(std::string_view text) const;
    // Nothing if it lacks a character. Those that only look alike don't count.
    std::optional<std::string> FromUtf16(std::u16string_view text) const;

private:
    bool Locate();
    bool IsLead(uint8_t byte) const { return isDouble_ && words_[pairs_ + byte] != 0; }
    // Of a byte, or of a lead byte and the one after it.
    char16_t CharacterOf(uint16_t code) const;
    // False for codes that stand for no character.
    bool IsText(uint16_t code) const;

    std::vector<uint16_t> words_; // the file
    // Where its parts are.
    size_t singles_ = 0, pairs_ = 0, codes_ = 0;
    bool isDouble_ = false;          // some characters take two bytes
    char16_t noCharacter_ = 0;       // what codes stand for that are none
    uint16_t codeOfNoCharacter_ = 0; // the one for which that is right
};

} // namespace orlo
