// Converts texts for display and comparison.

#include "text.h"

#include <array>
#include <cstdio>
#ifdef _WIN32
#include <windows.h>

#include <bcrypt.h>
#else
#include <nettle/sha2.h>
#endif

#include "failure.h"
#include "orlo/propset/code_page.h"

namespace suminfo {
std::string Utf8(std::u16string text) {
    const auto isHalf = [&text](size_t i, char16_t first) {
        return i < text.size() && text[i] >= first && text[i] < first + 0x400;
    };
    for (size_t i = 0; i < text.size(); ++i) {
        if (isHalf(i, 0xD800) && isHalf(i + 1, 0xDC00))
            ++i;
        else if (isHalf(i, 0xD800) || isHalf(i, 0xDC00))
            text[i] = 0xFFFD;
    }
    const std::string_view bytes(reinterpret_cast<const char*>(text.data()), 2 * text.size());
    return orlo::CodePageToUtf8(bytes, orlo::kCodePageUtf16).value_or("");
}

std::string StreamNameShown(std::string_view name) {
    std::string shown;
    for (const char c : name) {
        if (c == '\005')
            shown += "\\005";
        else
            shown += c;
    }
    return shown;
}

std::string Hex(const uint8_t* bytes, size_t size) {
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    text.reserve(2 * size);
    for (size_t i = 0; i < size; ++i) {
        text += kDigits[bytes[i] >> 4];
        text += kDigits[bytes[i] & 0xF];
    }
    return text;
}

#ifdef _WIN32
std::string Sha256(const std::vector<uint8_t>& bytes) {
    std::array<uint8_t, 32> hash;
    auto* data = const_cast<uint8_t*>(bytes.data()); // the system's parameter is not const
    BCRYPT_ALG_HANDLE algorithm = nullptr;
    BCRYPT_HASH_HANDLE state = nullptr;
    const bool done = ::BCryptOpenAlgorithmProvider(&algorithm, BCRYPT_SHA256_ALGORITHM, nullptr, 0) >= 0 &&
                      ::BCryptCreateHash(algorithm, &state, nullptr, 0, nullptr, 0, 0) >= 0 &&
                      ::BCryptHashData(state, data, static_cast<ULONG>(bytes.size()), 0) >= 0 &&
                      ::BCryptFinishHash(state, hash.data(), static_cast<ULONG>(hash.size()), 0) >= 0;
    if (state) ::BCryptDestroyHash(state);
    if (algorithm) ::BCryptCloseAlgorithmProvider(algorithm, 0);
    if (!done) throw Failure("cannot calculate a SHA-256 hash");
    return Hex(hash.data(), hash.size());
}
#else
std::string Sha256(const std::vector<uint8_t>& bytes) {
    sha256_ctx state;
    std::array<uint8_t, SHA256_DIGEST_SIZE> hash;
    ::sha256_init(&state);
    ::sha256_update(&state, bytes.size(), bytes.data());
    ::sha256_digest(&state, hash.size(), hash.data());
    return Hex(hash.data(), hash.size());
}
#endif

} // namespace suminfo
