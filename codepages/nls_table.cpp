// A file consists of a header, the characters of single bytes, the characters of byte pairs, and the codes of all
// characters, all as 16-bit numbers.

#include "codepages/nls_table.h"

#include <cstdio>
#include <fstream>

namespace codepages {
namespace {

constexpr size_t kBytes = 256;
constexpr size_t kCharacters = 65536;

std::vector<uint16_t> ReadWords(uint16_t codePage) {
    char name[16];
    std::snprintf(name, sizeof name, "/c_%03u.nls", unsigned{codePage});
    std::ifstream file(std::string(ORLO_NLS_FOLDER) + name, std::ios::binary | std::ios::ate);
    if (!file) return {};
    std::vector<uint16_t> words(static_cast<size_t>(file.tellg()) / sizeof(uint16_t));
    file.seekg(0);
    file.read(reinterpret_cast<char*>(words.data()), static_cast<std::streamsize>(words.size() * sizeof words[0]));
    return file ? words : std::vector<uint16_t>();
}

} // namespace

NlsTable::NlsTable(uint16_t codePage) : words_(ReadWords(codePage)) {
    if (!Locate()) words_.clear();
}

bool NlsTable::Locate() {
    constexpr size_t kShortestHeader = 13;
    if (words_.size() < kShortestHeader || words_[0] < kShortestHeader) return false;
    noCharacter_ = words_[4];
    codeOfNoCharacter_ = words_[6];
    const size_t header = words_[0];
    singles_ = header + 1;
    if (words_.size() < singles_ + 2 * kBytes + 2) return false;
    codes_ = singles_ + words_[header];
    const size_t glyphs = singles_ + kBytes; // the flag may be followed by a glyph table
    pairs_ = glyphs + 2 + (words_[glyphs] != 0 ? kBytes : 0);
    if (words_.size() < pairs_) return false;
    isDouble_ = words_[pairs_ - 1] != 0;
    if (words_.size() < codes_ + kCharacters / (isDouble_ ? 1 : 2)) return false;
    for (size_t lead = 0; isDouble_ && lead < kBytes; ++lead)
        if (words_.size() < pairs_ + words_[pairs_ + lead] + kBytes) return false;
    return true;
}

char16_t NlsTable::CharacterOf(uint16_t code) const {
    const auto lead = static_cast<uint8_t>(code >> 8), last = static_cast<uint8_t>(code);
    return IsLead(lead) ? words_[pairs_ + words_[pairs_ + lead] + last] : words_[singles_ + last];
}

bool NlsTable::IsText(uint16_t code) const {
    const char16_t character = CharacterOf(code);
    // Undefined single bytes have a private-use character; for byte pairs, such characters are user-defined.
    const bool isPrivate = code <= 0xFF && character >= 0xE000 && character <= 0xF8FF;
    return !isPrivate && (character != noCharacter_ || code == codeOfNoCharacter_);
}

std::optional<std::u16string> NlsTable::ToUtf16(std::string_view text, Invalid invalid) const {
    std::u16string characters;
    characters.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        uint16_t code = static_cast<uint8_t>(text[i]);
        const bool isLead = IsLead(static_cast<uint8_t>(code)), isTruncated = isLead && i + 1 == text.size();
        if (isLead && !isTruncated) code = static_cast<uint16_t>(code << 8 | static_cast<uint8_t>(text[++i]));
        if (invalid == Invalid::Reject && (isTruncated || !IsText(code))) return std::nullopt;
        characters += isTruncated ? noCharacter_ : CharacterOf(code);
    }
    return characters;
}

std::optional<std::string> NlsTable::FromUtf16(std::u16string_view text) const {
    std::string bytes;
    bytes.reserve(text.size());
    for (const char16_t character : text) {
        const uint16_t word = words_[codes_ + (isDouble_ ? character : character / 2u)];
        const uint16_t code = isDouble_ ? word : static_cast<uint8_t>(word >> (character % 2 * 8));
        if (CharacterOf(code) != character) return std::nullopt;
        if (code > 0xFF) bytes += static_cast<char>(code >> 8);
        bytes += static_cast<char>(code);
    }
    return bytes;
}

} // namespace codepages
