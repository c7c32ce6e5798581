// Which letters are the same without their case, and hashes of texts.

#include "text.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cwctype>
#include <nettle/sha2.h>
#include <optional>

#include "orlo/propset/code_page.h"

namespace suminfo {
namespace {

// The letters of all scripts, whatever language the user has. Windows has upper case for letters that come back from it alone.
wint_t Upper(wint_t letter) {
    static const locale_t kAllScripts = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (!kAllScripts) return letter;
    const wint_t upper = ::towupper_l(letter, kAllScripts);
    return ::towlower_l(upper, kAllScripts) == letter ? upper : letter;
}

// In units of 16 bits, which is how the storage compares names.
std::optional<std::string> Folded(std::string_view utf8) {
    std::optional<std::string> units = orlo::Utf8ToCodePage(utf8, orlo::kCodePageUtf16);
    if (!units) return std::nullopt;
    for (size_t i = 0; i + 1 < units->size(); i += 2) {
        const wint_t unit =
            Upper(static_cast<uint8_t>((*units)[i]) | wint_t{static_cast<uint8_t>((*units)[i + 1])} << 8);
        (*units)[i] = static_cast<char>(unit);
        (*units)[i + 1] = static_cast<char>(unit >> 8);
    }
    return units;
}

} // namespace

bool SameName(std::string_view a, std::string_view b) {
    if (a == b) return true;
    const auto foldedA = Folded(a), foldedB = Folded(b);
    return foldedA && foldedA == foldedB;
}

std::string Sha256(const std::vector<uint8_t>& bytes) {
    sha256_ctx state;
    std::array<uint8_t, SHA256_DIGEST_SIZE> hash;
    ::sha256_init(&state);
    ::sha256_update(&state, bytes.size(), bytes.data());
    ::sha256_digest(&state, hash.size(), hash.data());
    return Hex(hash.data(), hash.size());
}

} // namespace suminfo
